// The skin by which the program knows, when it starts, that the game is prepared. The start writes it into the
// game's directory.
#ifndef GAMEFILES_SKIN_FILE_H
#define GAMEFILES_SKIN_FILE_H

#include <string_view>

// The file's name in "GameData/Skins".
constexpr std::string_view packageSkinName = "xskin-c601fa_amanda-HEAD-HEAD.skn";

// The file's text: a head of eight triangles on the bone "HEAD", in the game's text format for skins.
std::string_view packageSkin();

#endif
