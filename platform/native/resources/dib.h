// Pictures in the form of the resources: a 40-byte header, colors of 4 bytes (blue, green, red, unused), and rows of
// pixels padded to 4 bytes, bottom row first. Uncompressed, with 1, 4, 8, 24 or 32 bits per pixel.
#ifndef PLATFORM_NATIVE_RESOURCES_DIB_H
#define PLATFORM_NATIVE_RESOURCES_DIB_H

#include <QImage>

#include "platform/native/resources/resource_bytes.h"

// A null picture if the bytes hold no complete one.
QImage readDib(ResourceBytes bytes);

// A picture of an icon: the header's height counts the rows twice, and a mask of 1 bit per pixel follows, in which set
// bits are transparent. With 32 bits per pixel the fourth byte is the opacity instead.
QImage readIconDib(ResourceBytes bytes);

#endif
