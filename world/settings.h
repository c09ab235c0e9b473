// The file of what the player has chosen (settingsName in world/program_files.h): sections "[section]" with lines
// "name=value", as GetPrivateProfileStringA reads it. A file in which anything else is found is damaged, and counts as
// none: part of a path would lead to another game.
#ifndef WORLD_SETTINGS_H
#define WORLD_SETTINGS_H

#include <string>

namespace settingsSection {
constexpr const char* game = "Game";
constexpr const char* editions = "Editions";
}  // namespace settingsSection

// A sentence for the player if the file is damaged; empty if it isn't, or isn't there.
std::string faultOfSettings(const std::string& path);

// Empty if there is no such value, or the file is damaged.
std::string readSetting(const std::string& path, const char* section, const char* name);

// Writes a value, or removes it if `value` is empty. A damaged file gets ".damaged" behind its name before. False if
// that can't be done, or the file can't be written.
bool writeSetting(const std::string& path, const char* section, const char* name, const std::string& value);

#endif
