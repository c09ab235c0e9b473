#include "lifestage/text_lines.h"

int TextLines::nextByte() {
    if (blockAt_ == blockSize_) {
        blockSize_ = std::fread(block_.data(), 1, block_.size(), file_);
        blockAt_ = 0;
        if (blockSize_ == 0) return EOF;
    }
    return static_cast<unsigned char>(block_[blockAt_++]);
}

int TextLines::nextCharacter() {
    const int byte = nextByte();
    if (byte != '\r') return byte;
    if (nextByte() == '\n') return '\n';
    if (blockSize_ != 0) --blockAt_;  // a CR without LF is a character like any other
    return '\r';
}

bool TextLines::next(std::string_view& line) {
    std::size_t size = 0;
    int character = nextCharacter();
    if (character == EOF) return false;
    while (character != EOF && character != '\n') {
        line_[size++] = static_cast<char>(character);
        if (size == longestLine) break;
        character = nextCharacter();
    }
    line = {line_.data(), size};
    return true;
}
