// The paths of a save. The temporary files lie beside the live ones, the backups in a directory below them.
#ifndef SAVE_SAVE_PATHS_H
#define SAVE_SAVE_PATHS_H

#include "platform/fixed_text.h"

using SavePath = FixedText<299>;

// All parts one behind the other.
template <typename... Parts>
SavePath joinPath(const Parts&... parts) {
    SavePath path;
    (path.append(parts), ...);
    return path;
}

constexpr const char* characterTemplateName = "\\Template.iff";
constexpr const char* familyTemplateName = "\\famtemplate";
constexpr const char* tempNeighborhoodName = "\\TMPneighborhood.iff";
constexpr const char* tempCharacterPrefix = "\\Characters\\TMP";
constexpr const char* charactersDirectory = "Characters";
constexpr const char* backupsDirectory = "Backups";

#endif
