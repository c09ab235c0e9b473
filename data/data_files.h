// The two templates that lie beside the program: it copies them and overwrites a few fields to make a new character
// file or a new family's record.
#ifndef DATA_DATA_FILES_H
#define DATA_DATA_FILES_H

#include <filesystem>

#include "data/family_template.h"
#include "gamefiles/byte_writer.h"

// "Template.iff", the character file of an adult. The program overwrites five fields at fixed file offsets, so the
// chunks must lie there: "OBJD" at 3976, "CTSS" at 4268 and "STR#" 200 at 54016. There is room for a name of 64 bytes
// at 4349 and for a body-string text of 1041 bytes at 54102.
Bytes makeCharacterTemplate();

// Writes both files into an existing directory. Returns false if one can't be written.
bool writeDataFiles(const std::filesystem::path& directory);

#endif
