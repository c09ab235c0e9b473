#include "start/options.h"

#include <optional>
#include <string_view>

#include "platform/path_text.h"

namespace {

// Goes through the arguments.
class Arguments {
 public:
    Arguments(int count, const char* const* arguments) : count_(count), arguments_(arguments) {}

    bool next() {
        if (at_ + 1 >= count_) return false;
        current_ = arguments_[++at_];
        return true;
    }

    std::string_view current() const { return current_; }

    bool is(std::string_view option) const { return current_ == option; }

    // Whether the current argument is this option, alone or with a value after "=".
    bool names(std::string_view option) const {
        return current_.substr(0, option.size()) == option &&
               (current_.size() == option.size() || current_[option.size()] == '=');
    }

    // The value of the current option, which `names` has found. Nothing if there is none.
    std::optional<std::string> value() {
        const std::size_t equals = current_.find('=');
        if (equals != std::string_view::npos) current_.remove_prefix(equals + 1);
        if (equals == std::string_view::npos && !next()) return {};
        if (current_.empty()) return {};
        return std::string(current_);
    }

 private:
    int count_;
    const char* const* arguments_;
    int at_ = 0;
    std::string_view current_;
};

void readEditions(Arguments& arguments, Options& options) {
    const std::string value = arguments.value().value_or("");
    if (value == "later") {
        options.editions = EditionsWish::later;
    } else if (value == "base") {
        options.editions = EditionsWish::base;
    } else if (value == "ask") {
        options.editions = EditionsWish::ask;
    } else {
        options.fault = "--editions needs one of later, base and ask.";
    }
}

void readGame(Arguments& arguments, Options& options) {
    options.game = arguments.value().value_or("");
    if (options.game.empty()) options.fault = "--game needs a directory.";
}

bool* switchOf(const Arguments& arguments, Options& options) {
    if (arguments.is("--help")) return &options.help;
    if (arguments.is("--version")) return &options.version;
    if (arguments.is("--prepare")) return &options.prepareOnly;
    if (arguments.is("--new-template")) return &options.newTemplate;
    if (arguments.is("--yes")) return &options.askNothing;
    return nullptr;
}

}  // namespace

Options optionsOf(int count, const char* const* arguments) {
    Options options;
    Arguments rest(count, arguments);
    while (options.fault.empty() && rest.next()) {
        if (bool* const chosen = switchOf(rest, options)) {
            *chosen = true;
        } else if (rest.names("--game")) {
            readGame(rest, options);
        } else if (rest.names("--editions")) {
            readEditions(rest, options);
        } else {
            options.fault = "There is no option " + shownPath(std::string(rest.current())) + ".";
        }
    }
    return options;
}

std::string optionList() {
    return "--help                     show this list\n"
           "--version                  show the version\n"
           "--prepare                  make the game ready and end\n"
           "--new-template             make Template.iff anew\n"
           "--game DIRECTORY           use the game in this directory from now on\n"
           "--editions later|base|ask  open a game of a later edition as one or not, or ask\n"
           "--yes                      ask nothing and show no box\n";
}
