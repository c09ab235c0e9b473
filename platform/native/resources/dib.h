// Pictures as the resources hold them: a 40-byte header, colours of 4 bytes (blue, green, red, unused), rows of pixels
// filled up to 4 bytes, the lowest row first. Uncompressed, of 1, 4, 8, 24 or 32 bits.
#ifndef PLATFORM_NATIVE_RESOURCES_DIB_H
#define PLATFORM_NATIVE_RESOURCES_DIB_H

#include <QImage>

#include "platform/native/resources/resource_bytes.h"

// A null picture for bytes that hold no whole one.
QImage readDib(ResourceBytes bytes);

// A picture of an icon: the header counts its rows twice, and a mask of 1 bit follows that cuts out what is set. With
// 32 bits the fourth byte of a pixel is its opacity instead.
QImage readIconDib(ResourceBytes bytes);

#endif
