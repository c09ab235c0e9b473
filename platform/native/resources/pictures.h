// The pictures behind the handles of icons and bitmaps.
#ifndef PLATFORM_NATIVE_RESOURCES_PICTURES_H
#define PLATFORM_NATIVE_RESOURCES_PICTURES_H

#include <QImage>
#include <vector>

#include "platform/native/api/types.h"

// An icon's pictures, of several sizes; none if the handle is no icon's.
std::vector<QImage> picturesOf(HICON icon);

// Null if the handle is no bitmap's.
QImage* bitmapOf(const void* bitmap);

// The bitmap of one pixel that a new memory context holds. It can't be deleted.
HBITMAP emptyBitmap();

bool deleteBitmap(HGDIOBJ bitmap);

#endif
