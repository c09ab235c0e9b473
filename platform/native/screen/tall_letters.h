// Capitals with marks, which fonts draw higher than they claim.
#ifndef PLATFORM_NATIVE_SCREEN_TALL_LETTERS_H
#define PLATFORM_NATIVE_SCREEN_TALL_LETTERS_H

#include <QFont>

// Returns by how many pixels the tallest letters of Windows-1252 exceed the font's ascent. Qt's line heights don't
// include them, so a line that is clipped needs that much more room at its top.
int riseOfTallLetters(const QFont& font);

#endif
