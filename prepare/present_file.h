// What is there already under the name of a file that is to be made.
#ifndef PREPARE_PRESENT_FILE_H
#define PREPARE_PRESENT_FILE_H

#include <string>

#include "gamefiles/templates.h"

enum class Present {
    nothing,  // or an empty file, which is replaced
    deadLink,
    unusable,          // it can't be read, or a save couldn't be made with it
    ofEarlierVersion,  // this program's own, whose Sims stand still
    usable,
};

// Any byte makes the file usable. Dead links are recognized natively only; Windows reports one as an empty file.
Present presentFile(const std::string& path);

// For "Template.iff": usable with the chunks that a save patches, where a save expects them. Earlier packages of this
// program came with a template of their own.
Present presentTemplate(const std::string& path, Editions editions = Editions::base);

// For "famtemplate": usable with the size that a save expects.
Present presentFamilyTemplate(const std::string& path, Editions editions = Editions::base);

#endif
