// Where the programs and data files of the build lie: the directory in which the test program was started.
#ifndef TESTS_SUPPORT_BUILD_DIRECTORY_H
#define TESTS_SUPPORT_BUILD_DIRECTORY_H

#include <filesystem>

// Asked before any test changes the current directory.
inline const std::filesystem::path buildDirectory = std::filesystem::current_path();

#endif
