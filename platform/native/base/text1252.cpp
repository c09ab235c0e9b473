#include "platform/native/base/text1252.h"

#include <QStringDecoder>
#include <QUtf8StringView>
#include <algorithm>
#include <array>

namespace {

// The characters of the bytes 80 to 9F. All other bytes are their own Unicode numbers.
constexpr std::array<char16_t, 32> highControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr std::uint8_t firstHighControl = 0x80;

char16_t unicodeFrom1252(std::uint8_t byte) {
    const unsigned index = static_cast<unsigned>(byte) - firstHighControl;
    return index < highControls.size() ? highControls[index] : byte;
}

bool isAscii(char c) {
    return static_cast<std::uint8_t>(c) < firstHighControl;
}

// The length in bytes of the UTF-8 character at the start of `text`; 0 if it isn't valid.
std::size_t characterLength(std::string_view text) {
    constexpr std::size_t longest = 4;
    if (!text.empty() && isAscii(text.front())) return 1;
    for (std::size_t length = 1; length <= std::min(text.size(), longest); ++length) {
        if (isUtf8(text.substr(0, length))) return length;
    }
    return 0;
}

char16_t decoded(std::string_view character) {
    if (isAscii(character.front())) return static_cast<char16_t>(character.front());  // far faster, and nearly all are
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(QByteArrayView(character.data(), static_cast<qsizetype>(character.size())));
    return text.front().unicode();  // a surrogate if there are two, which has no byte either
}

}  // namespace

std::string utf8From1252(std::string_view text) {
    return qtText(text).toStdString();
}

std::string text1252FromUtf8(std::string_view utf8) {
    std::string text;
    while (!utf8.empty()) {
        const std::size_t length = characterLength(utf8);
        text += length > 0 ? static_cast<char>(byte1252FromUnicode(decoded(utf8.substr(0, length)))) : utf8[0];
        utf8.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

bool isUtf8(std::string_view text) {
    return QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

std::uint8_t byte1252FromUnicode(char32_t unicode) {
    if (unicode < 0x80 || (unicode >= 0xA0 && unicode <= 0xFF)) return static_cast<std::uint8_t>(unicode);
    const auto* const found = std::find(highControls.begin(), highControls.end(), unicode);
    if (found == highControls.end()) return '?';
    return static_cast<std::uint8_t>(firstHighControl + (found - highControls.begin()));
}

QString qtText(std::string_view text) {
    QString unicode;
    for (const char c : text) {
        unicode += QChar(unicodeFrom1252(static_cast<std::uint8_t>(c)));
    }
    return unicode;
}

QString qtText(const char* text) {
    return text == nullptr ? QString() : qtText(std::string_view(text));
}

std::string programText(const QString& text) {
    return text1252FromUtf8(text.toStdString());
}
