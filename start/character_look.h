// What a character file says of its Sim. The chunks are walked to the file's end, unlike in the editor's reader, so a
// file that is cut or has the wrong sizes is noticed.
#ifndef START_CHARACTER_LOOK_H
#define START_CHARACTER_LOOK_H

#include <string>

enum class Body { unknown, child, teen, adult };

struct CharacterLook {
    std::string fault = {};  // as the end of a sentence ("ends inside the chunk at 64"); empty for a whole file
    std::string name = {};   // Windows-1252
    std::string guid = {};   // 4 bytes; empty without an object definition
    Body body = Body::unknown;
};

CharacterLook lookAtCharacter(const std::string& path);

#endif
