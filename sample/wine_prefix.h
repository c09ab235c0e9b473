// A small Wine prefix: the registry file, the link of drive C and the game's directory with its usual mixed-case names.
#ifndef SAMPLE_WINE_PREFIX_H
#define SAMPLE_WINE_PREFIX_H

#include <filesystem>

// Where the game lies in a prefix.
std::filesystem::path gameDirectory(const std::filesystem::path& prefix);

// Empties the directory, or makes it, and puts a prefix into it: a 64-bit registry that names the game's directory, and
// that directory with the package's skin and an expansion pack, but without neighborhoods. False, with nothing
// changed, if the directory holds files and none of them says that an earlier call of this made it: a player's real
// prefix is never emptied. False also if a file can't be written.
bool makeWinePrefix(const std::filesystem::path& prefix);

#endif
