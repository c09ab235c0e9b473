// The program's own files: their names, and whether one is there.
#ifndef WORLD_PROGRAM_FILES_H
#define WORLD_PROGRAM_FILES_H

#include "platform/files.h"

// For ownDirectory of platform/own_directory.h: this is the tool directory, in which restore points lie, too.
constexpr const char* ownDirectoryName = "Tidewright";

// In the tool directory.
constexpr const char* settingsName = "tidewright.ini";  // what the player has chosen
constexpr const char* restorePointsDirectory = "restore-points";
constexpr const char* skinSetsName = "skinsets.cfg";           // which head follows which
constexpr const char* characterTemplateName = "Template.iff";  // what character files are made of
constexpr const char* familyTemplateName = "famtemplate";      // what the records of new families are made of

// The same for later editions of the game.
constexpr const char* laterCharacterTemplateName = "Template-later.iff";
constexpr const char* laterFamilyTemplateName = "famtemplate-later";

// In the game's directory, a skin.
constexpr const char* installedSkin = "GameData\\Skins\\xskin-c601fa_amanda-HEAD-HEAD.skn";

// Whether the file exists and holds at least 1 byte.
inline bool hasBytes(const char* path) {
    FileStatus status{};
    return queryFileStatus(path, status) && status.size >= 1;
}

#endif
