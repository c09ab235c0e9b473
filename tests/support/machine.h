// The machine around the program, as a test wants it.
#ifndef TESTS_SUPPORT_MACHINE_H
#define TESTS_SUPPORT_MACHINE_H

#include <filesystem>
#include <string>

// Where the programs and data files of the build lie: where the test program was started. A test that changes the
// working directory asks before.
std::filesystem::path buildDirectory();

// Makes the game of this sample prefix the one that is installed, and returns its directory as the registry has it,
// with a separator at the end.
std::string installGame(const std::filesystem::path& prefix);

// Takes the registry's value of that game away again; its key stays.
void uninstallGame(const std::filesystem::path& prefix);

#endif
