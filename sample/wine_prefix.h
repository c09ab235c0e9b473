// A small Wine prefix: the registry file, the link of drive C and the game's directory.
#ifndef SAMPLE_WINE_PREFIX_H
#define SAMPLE_WINE_PREFIX_H

#include <filesystem>

// The game's directory in a prefix.
std::filesystem::path gameDirectory(const std::filesystem::path& prefix);

// Makes a prefix in the directory, which it creates or empties. The registry is that of a 64-bit Wine and names the
// game's directory, which has an expansion pack but no neighborhoods, and isn't prepared. Returns false and changes
// nothing if the directory has files but wasn't made by an earlier call: a player's own prefix is never emptied.
// Returns false also if a file can't be written.
bool makeWinePrefix(const std::filesystem::path& prefix);

#endif
