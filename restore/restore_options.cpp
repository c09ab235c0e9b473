#include "restore/restore_options.h"

#include <charconv>
#include <string_view>

#include "world/sims_directory.h"

namespace {

bool* switchOf(std::string_view argument, RestoreOptions& options) {
    if (argument == "--help") return &options.help;
    if (argument == "--version") return &options.version;
    if (argument == "--list") return &options.list;
    if (argument == "--make") return &options.make;
    if (argument == "--yes") return &options.askNothing;
    return nullptr;
}

void readValue(std::string_view name, std::string_view value, RestoreOptions& options) {
    if (name == "--to") {
        options.target = value;
        if (value.empty()) options.fault = "--to needs the name of a restore point, as --list shows it.";
    } else if (name == "--game") {
        options.game = value;
        if (value.empty()) options.fault = "--game needs a directory.";
    } else if (name == "--neighborhood") {
        const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), options.neighborhood);
        const bool isNumber = error == std::errc() && end == value.data() + value.size();
        if (!isNumber || options.neighborhood < 1 || options.neighborhood > highestNeighborhoodCount) {
            options.fault = "--neighborhood needs a number from 1 to " + std::to_string(highestNeighborhoodCount) + ".";
        }
    } else {
        options.fault = "There is no option " + std::string(name) + ".";
    }
}

// What fits no window and no single action.
std::string contradictionIn(const RestoreOptions& options) {
    const int actions = (options.list ? 1 : 0) + (options.make ? 1 : 0) + (options.target.empty() ? 0 : 1);
    if (actions > 1) return "--list, --make and --to exclude each other.";
    if (options.neighborhood != 0 && options.target.empty()) return "--neighborhood needs --to.";
    if (options.askNothing && actions == 0) return "--yes needs --make or --to.";
    return {};
}

}  // namespace

RestoreOptions restoreOptionsOf(int count, const char* const* arguments) {
    RestoreOptions options;
    for (int i = 1; i < count && options.fault.empty(); ++i) {
        const std::string_view argument = arguments[i];
        if (bool* const chosen = switchOf(argument, options)) {
            *chosen = true;
            continue;
        }
        const std::size_t equals = argument.find('=');
        const std::string_view name = argument.substr(0, equals);
        const bool takesNext =
            equals == std::string_view::npos && (name == "--to" || name == "--neighborhood" || name == "--game");
        std::string_view value = equals == std::string_view::npos ? std::string_view() : argument.substr(equals + 1);
        if (takesNext && i + 1 < count) value = arguments[++i];
        readValue(name, value, options);
    }
    if (options.fault.empty()) options.fault = contradictionIn(options);
    return options;
}

std::string restoreOptionList() {
    return "--list                 show the restore points: name, time in UTC and reason, with tabs between them\n"
           "--make                 make a restore point\n"
           "--to NAME              go back to the restore point of this name\n"
           "--neighborhood NUMBER  go back with this neighborhood alone\n"
           "--game DIRECTORY       the game, by its directory or the Wine prefix that it is in\n"
           "--yes                  ask nothing and show no box\n"
           "--help                 show this list\n"
           "--version              show the version\n"
           "Without an option a window opens.\n";
}
