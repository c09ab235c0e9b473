// The head that the program's package puts into the game's directory; the program looks for it at its start.
#ifndef DATA_SKIN_FILE_H
#define DATA_SKIN_FILE_H

#include <string_view>

// The file's name under "GameData/Skins".
constexpr std::string_view packageSkinName = "xskin-c601fa_amanda-HEAD-HEAD.skn";

// The game's text form of a skin: a head of eight triangles that hangs on the bone "HEAD".
std::string_view packageSkin();

#endif
