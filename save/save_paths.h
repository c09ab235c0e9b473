// The paths of a save's temporary files, which are beside the live ones.
#ifndef SAVE_SAVE_PATHS_H
#define SAVE_SAVE_PATHS_H

#include <string_view>

#include "platform/fixed_text.h"
#include "world/paths.h"
#include "world/program_files.h"

// `directory` is the neighborhood's.
inline PathText tempNeighborhoodPath(std::string_view directory) {
    return joined<PathText>(directory, '\\', temporaryPrefix, neighborhoodFileName);
}

inline PathText tempCharacterPath(std::string_view directory, std::string_view fileName) {
    return joined<PathText>(directory, '\\', charactersDirectory, '\\', temporaryPrefix, fileName);
}

#endif
