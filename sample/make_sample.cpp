// Writes a sample installation of the game, in one of two sizes.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string_view>

#include "sample/installation.h"

namespace {

constexpr int badUsage = 2;
constexpr long usualNeighborhoods = 3;
constexpr long mostNeighborhoods = 100;

int usage() {
    std::fputs(
        "make_sample installation DIR            make DIR a Wine prefix with a small installation of the game\n"
        "make_sample --later DIR                 the same with a fourth neighborhood, of later editions of the game\n"
        "make_sample large DIR [NEIGHBORHOODS]   the same of a real size, with 1 to 100 neighborhoods (3);\n"
        "                                        the second is full: 100 families, 820 Sims, names of 99 characters\n",
        stderr);
    return badUsage;
}

int report(bool written, const char* directory) {
    if (written) return EXIT_SUCCESS;
    std::fprintf(stderr, "make_sample: %s can't be written, or holds files that aren't make_sample's\n", directory);
    return EXIT_FAILURE;
}

int run(int count, char** arguments) {
    if (count < 3) return usage();
    const std::string_view command = arguments[1];
    const char* directory = arguments[2];
    const bool withLater = command == "--later";
    if ((withLater || command == "installation") && count == 3) {
        return report(writeInstallation(directory, withLater), directory);
    }
    const long neighborhoods = count == 4 ? std::strtol(arguments[3], nullptr, 10) : usualNeighborhoods;
    if (command != "large" || count > 4 || neighborhoods < 1 || neighborhoods > mostNeighborhoods) return usage();
    return report(writeLargeInstallation(directory, static_cast<int>(neighborhoods)), directory);
}

}  // namespace

int main(int count, char** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {  // a directory that can't be made
        std::fprintf(stderr, "make_sample: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
