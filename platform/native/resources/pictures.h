// The pictures behind the handles of icons and bitmaps.
#ifndef PLATFORM_NATIVE_RESOURCES_PICTURES_H
#define PLATFORM_NATIVE_RESOURCES_PICTURES_H

#include <QImage>
#include <vector>

#include "platform/native/api/types.h"

// An icon's pictures, in several sizes; none if the handle is not an icon.
std::vector<QImage> picturesOf(HICON icon);

// Null if the handle is not a bitmap.
QImage* bitmapOf(const void* bitmap);

// The bitmap of one pixel in a new memory context. It can't be deleted.
HBITMAP emptyBitmap();

bool deleteBitmap(HGDIOBJ bitmap);

#endif
