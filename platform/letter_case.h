// Text without the difference of upper and lower case. Only ASCII letters count, whatever the locale.
#ifndef PLATFORM_LETTER_CASE_H
#define PLATFORM_LETTER_CASE_H

#include <algorithm>
#include <string>
#include <string_view>

constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
static_assert(lowerCase('A') == 'a' && lowerCase('Z') == 'z' && lowerCase('[') == '[' && lowerCase('\xC4') == '\xC4');

inline std::string lowered(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), lowerCase);
    return lower;
}

inline bool equalInAnyCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

#endif
