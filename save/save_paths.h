// The names of a save's files. Temporary files are beside the live ones, backups in a directory below them.
#ifndef SAVE_SAVE_PATHS_H
#define SAVE_SAVE_PATHS_H

#include <string_view>

#include "platform/fixed_text.h"
#include "world/paths.h"
#include "world/program_files.h"

constexpr const char* backupsDirectory = "Backups";

// `directory` is the neighborhood's.
inline PathText tempNeighborhoodPath(std::string_view directory) {
    return joined<PathText>(directory, "\\TMPneighborhood.iff");
}

inline PathText tempCharacterPath(std::string_view directory, std::string_view fileName) {
    return joined<PathText>(directory, '\\', charactersDirectory, "\\TMP", fileName);
}

#endif
