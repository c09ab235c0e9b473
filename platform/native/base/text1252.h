// Windows-1252, the program's text, against UTF-8, the text of native file names and windows.
#ifndef PLATFORM_NATIVE_BASE_TEXT1252_H
#define PLATFORM_NATIVE_BASE_TEXT1252_H

#include <cstdint>
#include <string>
#include <string_view>

// Every byte stands for one character: the five that the code page leaves open (81, 8D, 8F, 90, 9D) stand for the
// control characters of the same numbers, as on Windows.
std::string utf8From1252(std::string_view text);

// A character that the code page lacks becomes "?". Bytes that aren't UTF-8 are taken for Windows-1252 already and
// stay.
std::string text1252FromUtf8(std::string_view utf8);

bool isUtf8(std::string_view text);

// The Unicode number of a byte, and the byte of a Unicode number ("?" if there is none).
char32_t unicodeFrom1252(std::uint8_t byte);
std::uint8_t byte1252FromUnicode(char32_t unicode);

#endif
