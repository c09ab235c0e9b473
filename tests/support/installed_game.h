// The game that is installed, as the program under test finds it by the registry. Each system has its own
// implementation in a folder beside this file.
#ifndef TESTS_SUPPORT_INSTALLED_GAME_H
#define TESTS_SUPPORT_INSTALLED_GAME_H

#include <filesystem>
#include <string>

// Makes the game of this sample prefix the one that is installed, and returns its directory as the registry has it,
// with a separator at the end.
std::string installGame(const std::filesystem::path& prefix);

// Takes the registry's value of that game away again.
void uninstallGame(const std::filesystem::path& prefix);

#endif
