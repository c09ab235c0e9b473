#include "restore/point_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <span>

#include "restore/escaped_text.h"
#include "restore/point_files.h"
#include "world/content_sum.h"

namespace {

constexpr std::string_view firstLine = "Tidewright restore point 1";

constexpr struct ReasonWord {
    PointReason reason;
    std::string_view word;
} reasonWords[] = {
    {PointReason::evening, "evening"}, {PointReason::byHand, "hand"}, {PointReason::goingBack, "going back"}};

constexpr std::array<std::string_view, 2> endedWords = {"no", "yes"};

std::string inHex(std::uint32_t value) {
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "%08x", static_cast<unsigned>(value));
    return text.data();
}

template <typename Number>
bool readNumber(std::string_view text, Number& number, int base = 10) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size();
}

// Takes lines, and in them words, from the front of a text. After a first one that isn't there, nothing is.
class Lines {
 public:
    explicit Lines(std::string_view text) : text_(text) {}

    std::string_view next() {
        const std::size_t end = text_.find('\n', at_);
        ++number_;
        if (end == std::string_view::npos) {
            failed_ = true;
            return {};
        }
        const std::string_view line = text_.substr(at_, end - at_);
        at_ = end + 1;
        return line;
    }

    // The next line without this word in front.
    std::string_view next(std::string_view word) { return behind(next(), word); }

    std::string_view behind(std::string_view line, std::string_view word) {
        if (line.starts_with(word) && line.size() > word.size() && line[word.size()] == ' ') {
            return line.substr(word.size() + 1);
        }
        failed_ = true;
        return {};
    }

    std::size_t offset() const { return at_; }
    bool isAtEnd() const { return at_ == text_.size(); }
    int number() const { return number_; }
    bool failed() const { return failed_; }

 private:
    std::string_view text_;
    std::size_t at_ = 0;
    int number_ = 0;
    bool failed_ = false;
};

// Takes a word and the space behind it off the front.
std::string_view takeWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

bool readTime(std::string_view text, SYSTEMTIME& time) {
    constexpr std::string_view shape = "dddd-dd-dd dd:dd:dd.ddd";
    if (text.size() != shape.size()) return false;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (shape[i] == 'd' ? !isDigit : text[i] != shape[i]) return false;
    }
    const auto part = [&](std::size_t at, std::size_t count) {
        WORD value = 0;
        readNumber(text.substr(at, count), value);
        return value;
    };
    time = {part(0, 4), part(5, 2), 0, part(8, 2), part(11, 2), part(14, 2), part(17, 2), part(20, 3)};
    return time.wYear >= 1601 && time.wMonth >= 1 && time.wMonth <= 12 && time.wDay >= 1 && time.wDay <= 31 &&
           time.wHour < 24 && time.wMinute < 60 && time.wSecond < 60;
}

bool readReason(std::string_view text, PointReason& reason) {
    const auto* const found = std::ranges::find(reasonWords, text, &ReasonWord::word);
    if (found == std::end(reasonWords)) return false;
    reason = found->reason;
    return true;
}

bool readFile(std::string_view line, PointFile& file) {
    return readNumber(takeWord(line), file.stamp.size) && file.stamp.size >= 0 &&
           readNumber(takeWord(line), file.checksum, 16) && readNumber(takeWord(line), file.stamp.time) &&
           readNumber(takeWord(line), file.stamp.mode, 8) && readEscaped(line, file.path) && belongsToPoint(file.path);
}

bool readHeader(Lines& lines, RestorePoint& point) {
    if (lines.next() != firstLine) return false;
    if (!readTime(lines.next("time"), point.time)) {
        point.time = {};
        return false;
    }
    if (!readReason(lines.next("reason"), point.reason)) return false;
    const std::string_view ended = lines.next("ended");
    if (std::ranges::find(endedWords, ended) == endedWords.end()) return false;
    point.sessionEnded = ended == endedWords[1];
    return readEscaped(lines.next("game"), point.simsDirectory) && !lines.failed();
}

std::uint32_t textChecksum(std::string_view text) {
    ContentSum sum;
    sum.add({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    return sum.checksum;
}

// From the first file on, whose line is `line`.
bool readFiles(Lines& lines, std::string_view text, RestorePoint& point) {
    std::size_t lineAt = lines.offset();
    std::string_view line = lines.next();
    while (line.starts_with("file ")) {
        PointFile file;
        if (!readFile(lines.behind(line, "file"), file)) return false;
        if (!point.files.empty() && !(point.files.back().path < file.path)) return false;
        point.files.push_back(std::move(file));
        lineAt = lines.offset();
        line = lines.next();
    }
    std::string_view end = lines.behind(line, "end");
    std::size_t count = 0;
    std::uint32_t checksum = 0;
    return !lines.failed() && readNumber(takeWord(end), count) && count == point.files.size() &&
           readNumber(end, checksum, 16) && checksum == textChecksum(text.substr(0, lineAt)) && lines.isAtEnd();
}

}  // namespace

std::string textOfPoint(const RestorePoint& point) {
    std::array<char, 64> time{};
    const SYSTEMTIME& at = point.time;
    std::snprintf(time.data(), time.size(), "%04u-%02u-%02u %02u:%02u:%02u.%03u", at.wYear, at.wMonth, at.wDay,
                  at.wHour, at.wMinute, at.wSecond, at.wMilliseconds);
    const std::string_view reason = std::ranges::find(reasonWords, point.reason, &ReasonWord::reason)->word;
    std::string text = std::string(firstLine) + "\ntime " + time.data() + "\nreason " + std::string(reason) +
                       "\nended " + std::string(endedWords[point.sessionEnded ? 1 : 0]) + "\ngame " +
                       escaped(point.simsDirectory) + '\n';
    for (const PointFile& file : point.files) {
        std::array<char, 16> mode{};
        std::snprintf(mode.data(), mode.size(), "%o", static_cast<unsigned>(file.stamp.mode));
        text += "file " + std::to_string(file.stamp.size) + ' ' + inHex(file.checksum) + ' ' +
                std::to_string(file.stamp.time) + ' ' + mode.data() + ' ' + escaped(file.path) + '\n';
    }
    return text + "end " + std::to_string(point.files.size()) + ' ' + inHex(textChecksum(text)) + '\n';
}

bool readPointText(std::string_view text, RestorePoint& point) {
    Lines lines(text);
    if (readHeader(lines, point) && readFiles(lines, text, point)) return true;
    point.files.clear();
    point.damage = "Line " + std::to_string(lines.number()) + " of \"" + point.name + ".txt\" can't be understood.";
    return false;
}
