// A template for tests and benchmarks, made of facts about the format alone. No file of the game's is in it, so a Sim
// that is made of it would not act as the game's own do.
#ifndef SAMPLE_FACT_TEMPLATE_H
#define SAMPLE_FACT_TEMPLATE_H

#include <filesystem>

#include "gamefiles/byte_writer.h"

// A "Template.iff": the character file of an adult. A save overwrites five fields at fixed file offsets, so the chunks
// lie there: "OBJD" at 3976, "CTSS" at 4268 and "STR#" 200 at 54016. There is room for a name of 64 bytes at 4349 and
// for a body-string text of 1041 bytes at 54102.
Bytes makeFactTemplate();

// Writes it and "famtemplate" into an existing directory. Returns false if one can't be written.
bool writeTemplates(const std::filesystem::path& directory);

#endif
