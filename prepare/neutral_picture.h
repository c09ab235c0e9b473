// Takes a Sim's face out of its pictures.
#ifndef PREPARE_NEUTRAL_PICTURE_H
#define PREPARE_NEUTRAL_PICTURE_H

#include "gamefiles/byte_writer.h"

// The bitmap file with each pixel as its first stored one, in nearly all pictures of the game the background. Headers,
// size and the fill of each row stay. Anything but a whole uncompressed bitmap of 24 bits a pixel is returned as it is.
Bytes neutralPicture(const Bytes& bitmap);

#endif
