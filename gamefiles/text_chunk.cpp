#include "gamefiles/text_chunk.h"

ByteWriter beginTextChunk(std::size_t textCount) {
    ByteWriter content;
    content.u8(0xFD).u8(0xFF).u16Le(static_cast<std::int64_t>(textCount));
    return content;
}

Bytes textChunkContent(const std::vector<std::string>& texts, std::size_t size) {
    ByteWriter content = beginTextChunk(texts.size());
    for (const std::string& text : texts) {
        content.u8(usEnglish).text(text).u8(0).u8(0);
    }
    return content.fillTo(size, textFill).written();
}
