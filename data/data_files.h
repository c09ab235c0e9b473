// The two binary files that lie beside the program: what it makes character files and family records from.
#ifndef DATA_DATA_FILES_H
#define DATA_DATA_FILES_H

#include <filesystem>

#include "gamefiles/byte_writer.h"

// "Template.iff", a whole character file of an adult. The program writes over five fields of it and nothing else, so
// its chunks stand where the program expects them: "OBJD" at 3976, "CTSS" at 4268, "STR#" 200 at 54016. There is room
// for a name of 64 bytes at 4349 and for a body-string text of 1041 bytes at 54102.
Bytes makeCharacterTemplate();

// "famtemplate", a family's two chunks without a file around them: "FAMI" with 124 bytes for one member, "FAMs" with
// 108 bytes for a name of 24 characters. Number, funds, member and name are zero.
Bytes makeFamilyTemplate();

// Writes both into the directory, which must exist. False if one can't be written.
bool writeDataFiles(const std::filesystem::path& directory);

#endif
