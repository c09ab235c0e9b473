// Reads a text file line by line.
#ifndef LIFESTAGE_TEXT_LINES_H
#define LIFESTAGE_TEXT_LINES_H

#include <array>
#include <cstddef>
#include <cstdio>
#include <string_view>

// A line ends with LF, with CR LF or with the file. It has at most 319 characters; the rest of a longer one is a line
// of its own.
class TextLines {
 public:
    static constexpr std::size_t longestLine = 319;

    // `file` is open for reading raw bytes. The caller closes it.
    explicit TextLines(std::FILE* file) : file_(file) {}

    // Reads the next line, without its end. It is valid until the next call. False at the end of the file.
    bool next(std::string_view& line);

 private:
    // The next character, with CR LF as LF; EOF at the end of the file.
    int nextCharacter();
    int nextByte();

    std::FILE* file_;
    std::array<char, 4096> block_{};
    std::size_t blockSize_ = 0;
    std::size_t blockAt_ = 0;
    std::array<char, longestLine> line_{};
};

#endif
