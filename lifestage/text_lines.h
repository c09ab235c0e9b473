// Lines of a text file, a block of it at a time.
#ifndef LIFESTAGE_TEXT_LINES_H
#define LIFESTAGE_TEXT_LINES_H

#include <array>
#include <cstddef>
#include <cstdio>
#include <string_view>

// A line ends with LF, or with CR LF, which counts the same, or with the file. At most 319 characters make a line: of a
// longer one the rest is a line of its own.
class TextLines {
 public:
    static constexpr std::size_t longestLine = 319;

    // `file` is open for reading raw bytes and stays the caller's.
    explicit TextLines(std::FILE* file) : file_(file) {}

    // The next line without its end, good until the next call; false at the end of the file.
    bool next(std::string_view& line);

 private:
    // The next character, CR LF read as LF; EOF at the end of the file.
    int nextCharacter();
    int nextByte();

    std::FILE* file_;
    std::array<char, 4096> block_{};
    std::size_t blockSize_ = 0;
    std::size_t blockAt_ = 0;
    std::array<char, longestLine> line_{};
};

#endif
