// A template for tests and benchmarks, made of facts about the format alone. No file of the game's is in it, so a Sim
// that is made of it would not act as the game's own do.
#ifndef SAMPLE_FACT_TEMPLATE_H
#define SAMPLE_FACT_TEMPLATE_H

#include <filesystem>

#include "gamefiles/templates.h"

// A "Template.iff": the character file of an adult. The chunks that a save overwrites lie where it expects them
// (gamefiles/templates.h).
Bytes makeFactTemplate(Editions editions = Editions::base);

// Writes it and "famtemplate" into an existing directory, and both for later editions. Returns false if one can't be
// written.
bool writeTemplates(const std::filesystem::path& directory);

#endif
