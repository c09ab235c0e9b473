#include "gamefiles/text_chunk.h"

Bytes textChunkContent(const std::vector<std::string>& texts, std::size_t size) {
    constexpr int usEnglish = 1;
    ByteWriter content;
    content.u8(0xFD).u8(0xFF).u16Le(static_cast<std::int64_t>(texts.size()));
    for (const std::string& text : texts) {
        content.u8(usEnglish).text(text).u8(0).u8(0);
    }
    return content.fillTo(size, textFill).written();
}
