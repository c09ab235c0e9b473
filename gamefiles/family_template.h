#ifndef GAMEFILES_FAMILY_TEMPLATE_H
#define GAMEFILES_FAMILY_TEMPLATE_H

#include "gamefiles/byte_writer.h"

// "famtemplate", the two chunks of a family with one member, without a file around them: 124 bytes of "FAMI", then 108
// bytes of "FAMs" with room for a name of 24 characters. Number, funds, member and name are zero.
Bytes makeFamilyTemplate();

#endif
