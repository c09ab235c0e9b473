// Where the programs and data files of the build lie.
#ifndef TESTS_SUPPORT_BUILD_DIRECTORY_H
#define TESTS_SUPPORT_BUILD_DIRECTORY_H

#include <filesystem>

// The directory in which the test program was started.
inline const std::filesystem::path& buildDirectory() {
    static const std::filesystem::path directory = std::filesystem::current_path();
    return directory;
}

// Asked once before any test changes the current directory.
inline const std::filesystem::path& askedAtStart = buildDirectory();

#endif
