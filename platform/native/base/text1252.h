// Conversion between Windows-1252, the program's encoding, and those of native file names, UTF-8, and of Qt.
#ifndef PLATFORM_NATIVE_BASE_TEXT1252_H
#define PLATFORM_NATIVE_BASE_TEXT1252_H

#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

// Converts every byte. The five that the code page leaves undefined (81, 8D, 8F, 90, 9D) become the control characters
// of the same numbers, as on Windows.
std::string utf8From1252(std::string_view text);

// A character outside the code page becomes "?". A byte that isn't part of valid UTF-8 is assumed to be Windows-1252
// and stays.
std::string text1252FromUtf8(std::string_view utf8);

bool isUtf8(std::string_view text);

// The byte of a Unicode number; "?" if it has none.
std::uint8_t byte1252FromUnicode(char32_t unicode);

QString qtText(std::string_view text);

// Null gives an empty text.
QString qtText(const char* text);

// A character outside the code page becomes "?".
std::string programText(const QString& text);

#endif
