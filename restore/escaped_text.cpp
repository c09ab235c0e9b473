#include "restore/escaped_text.h"

#include <charconv>
#include <cstdint>

namespace {

bool isControl(char c) {
    return (c >= 0 && c < ' ') || c == '\x7F';
}

bool readByte(std::string_view digits, std::uint8_t& value) {
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return error == std::errc() && end == digits.data() + digits.size();
}

}  // namespace

std::string escaped(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string line;
    for (const char c : text) {
        if (!isControl(c) && c != '%') {
            line += c;
            continue;
        }
        const auto value = static_cast<unsigned char>(c);
        line += '%';
        line += digits[value / 16];
        line += digits[value % 16];
    }
    return line;
}

bool readEscaped(std::string_view line, std::string& text) {
    for (std::size_t at = 0; at < line.size(); ++at) {
        std::uint8_t value = 0;
        if (line[at] != '%') {
            text += line[at];
        } else if (line.size() - at > 2 && readByte(line.substr(at + 1, 2), value) && value != 0) {
            text += static_cast<char>(value);
            at += 2;
        } else {
            return false;
        }
    }
    return true;
}
