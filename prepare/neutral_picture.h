// Takes a Sim's face out of its pictures.
#ifndef PREPARE_NEUTRAL_PICTURE_H
#define PREPARE_NEUTRAL_PICTURE_H

#include "gamefiles/byte_writer.h"

// Returns the bitmap file with every pixel set to the color of the first one stored. In the game's pictures that is
// nearly always the background. Headers, size and the fill of each row stay. Anything but a whole uncompressed bitmap
// of 24 bits a pixel is returned unchanged.
Bytes neutralPicture(const Bytes& bitmap);

#endif
