// Capitals with marks, which fonts draw higher than they claim.
#ifndef PLATFORM_NATIVE_SCREEN_TALL_LETTERS_H
#define PLATFORM_NATIVE_SCREEN_TALL_LETTERS_H

#include <QFont>

// How many pixels the tallest letters of Windows-1252 rise above the font's ascent. Qt leaves them no room, so what
// clips lines of text must.
int riseOfTallLetters(const QFont& font);

#endif
