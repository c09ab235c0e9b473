// Looks for the character file of the player's game that a template is made of.
#ifndef PREPARE_CHARACTER_FILES_H
#define PREPARE_CHARACTER_FILES_H

#include <string>
#include <vector>

#include "gamefiles/templates.h"

struct TemplateSource {
    std::string path;    // of the chosen file
    Bytes madeTemplate;  // out of that file; empty if no file serves
    int found = 0;       // character files, in all neighborhoods
    int unreadable = 0;  // of these
};

// Whether the name is like "User00042.iff", in any case.
bool isCharacterName(const std::string& name);

// The names of the character files in a directory, in any case and sorted without it: "User00042.iff".
std::vector<std::string> characterNamesIn(const char* directory);

// Chooses among the files of all neighborhoods, in the order of their numbers and then of the names, in any case
// (prepare/source_choice.h). A file that can't be read or doesn't serve is left out. `simsDirectory` has a trailing
// backslash.
TemplateSource findTemplateSource(const char* simsDirectory, Editions editions = Editions::base);

#endif
