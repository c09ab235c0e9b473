#include "platform/native/base/text1252.h"

#include <algorithm>
#include <array>

namespace {

// The characters of the bytes 80 to 9F. All other bytes are their own Unicode numbers.
constexpr std::array<char16_t, 32> highControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr std::uint8_t firstHighControl = 0x80;

struct Utf8Character {
    char32_t unicode;
    std::size_t length;  // in bytes; 0 if it isn't valid UTF-8
};

// The length of a character by its first byte, and the smallest number that needs this length. A longer form of a
// smaller number isn't UTF-8.
Utf8Character utf8Head(std::uint8_t first) {
    if (first < 0x80) return {first, 1};
    if (first >= 0xC2 && first <= 0xDF) return {first & 0x1FU, 2};
    if (first >= 0xE0 && first <= 0xEF) return {first & 0x0FU, 3};
    if (first >= 0xF0 && first <= 0xF4) return {first & 0x07U, 4};
    return {0, 0};
}

// The character at the start of `text`, which isn't empty.
Utf8Character firstCharacter(std::string_view text) {
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    Utf8Character character = utf8Head(static_cast<std::uint8_t>(text[0]));
    if (character.length == 0 || character.length > text.size()) return {0, 0};
    for (std::size_t i = 1; i < character.length; ++i) {
        const auto byte = static_cast<std::uint8_t>(text[i]);
        if ((byte & 0xC0) != 0x80) return {0, 0};
        character.unicode = character.unicode << 6 | (byte & 0x3FU);
    }
    const bool surrogate = character.unicode >= 0xD800 && character.unicode <= 0xDFFF;
    if (character.unicode < smallest[character.length] || character.unicode > 0x10FFFF || surrogate) return {0, 0};
    return character;
}

}  // namespace

std::string utf8From1252(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const char32_t unicode = unicodeFrom1252(static_cast<std::uint8_t>(c));
        if (unicode < 0x80) {
            utf8 += c;
            continue;
        }
        if (unicode < 0x800) {
            utf8 += static_cast<char>(0xC0 | unicode >> 6);
        } else {
            utf8 += static_cast<char>(0xE0 | unicode >> 12);
            utf8 += static_cast<char>(0x80 | (unicode >> 6 & 0x3F));
        }
        utf8 += static_cast<char>(0x80 | (unicode & 0x3F));
    }
    return utf8;
}

std::string text1252FromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const Utf8Character character = firstCharacter(utf8);
        if (character.length == 0) {
            text += utf8[0];
            utf8.remove_prefix(1);
        } else {
            text += static_cast<char>(byte1252FromUnicode(character.unicode));
            utf8.remove_prefix(character.length);
        }
    }
    return text;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = firstCharacter(text).length;
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

char32_t unicodeFrom1252(std::uint8_t byte) {
    const unsigned index = static_cast<unsigned>(byte) - firstHighControl;
    return index < highControls.size() ? highControls[index] : byte;
}

std::uint8_t byte1252FromUnicode(char32_t unicode) {
    if (unicode < 0x80 || (unicode >= 0xA0 && unicode <= 0xFF)) return static_cast<std::uint8_t>(unicode);
    const auto* const found = std::find(highControls.begin(), highControls.end(), unicode);
    if (found == highControls.end()) return '?';
    return static_cast<std::uint8_t>(firstHighControl + (found - highControls.begin()));
}
