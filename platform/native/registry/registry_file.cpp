#include "platform/native/registry/registry_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/letter_case.h"
#include "platform/native/api/registry.h"
#include "platform/native/base/text1252.h"

namespace {

// The value of a digit of any base up to 16; 16 if it isn't one.
unsigned digitValue(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    const char lower = lowerCase(c);
    return lower >= 'a' && lower <= 'f' ? static_cast<unsigned>(lower - 'a' + 10) : 16;
}

// A line and the position of its unread part.
class LineReader {
 public:
    explicit LineReader(std::string_view line) : rest_(line) {}

    // Skips `text` if it comes next.
    bool take(std::string_view text) {
        if (rest_.substr(0, text.size()) != text) return false;
        rest_.remove_prefix(text.size());
        return true;
    }

    // Reads a text up to the first `end` that isn't escaped, as UTF-8. False if there is none, because the line is cut
    // off.
    bool takeText(char end, std::string& utf8) {
        utf8.clear();
        while (!rest_.empty()) {
            const char c = next();
            if (c == end) return true;
            if (c != '\\') {
                utf8 += c;
            } else if (!rest_.empty()) {
                appendEscaped(utf8);
            }
        }
        return false;
    }

 private:
    char next() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    unsigned takeNumber(unsigned base, int digits) {
        unsigned number = 0;
        for (; digits > 0 && !rest_.empty() && digitValue(rest_.front()) < base; --digits) {
            number = number * base + digitValue(next());
        }
        return number;
    }

    // Reads what follows a backslash: a letter for a control character, an octal number, "x" and a number of UTF-16, or
    // a plain character. Appends it as UTF-8.
    void appendEscaped(std::string& utf8) {
        constexpr std::string_view letters = "abtnvfr";  // for 7 to 13
        constexpr int octalDigits = 3;
        constexpr int hexDigits = 4;
        char16_t unit = 0;
        if (digitValue(rest_.front()) < 8) {
            unit = static_cast<char16_t>(takeNumber(8, octalDigits));
        } else {
            const char c = next();
            const std::size_t letter = letters.find(c);
            if (c == 'x' && !rest_.empty() && digitValue(rest_.front()) < 16) {
                unit = static_cast<char16_t>(takeNumber(16, hexDigits));
            } else if (letter != std::string_view::npos) {
                unit = static_cast<char16_t>(7 + letter);
            } else {
                utf8 += c;
                return;
            }
        }
        utf8 += QString(QChar(unit)).toStdString();
    }

    std::string_view rest_;
};

// Anything after a value or a key, such as the CR of DOS line ends, is ignored.
std::string_view takeLine(std::string_view& file) {
    const std::size_t end = std::min(file.find('\n'), file.size());
    const std::string_view line = file.substr(0, end);
    file.remove_prefix(std::min(end + 1, file.size()));
    return line;
}

bool readValue(std::string_view line, RegistryValue& value) {
    LineReader reader(line);
    std::string name;
    const bool named = reader.take("\"") ? reader.takeText('"', name) : reader.take("@");
    if (!named || !reader.take("=")) return false;
    value.name = text1252FromUtf8(name);
    value.type = reader.take("str(2):") ? REG_EXPAND_SZ : REG_SZ;
    if (!reader.take("\"") || !reader.takeText('"', value.utf8)) return false;
    value.text = text1252FromUtf8(value.utf8);
    return true;
}

}  // namespace

// Reads no more than the size at first, because Wine may be rewriting the file.
std::string readRegistryFile(const std::string& path) {
    constexpr off_t largest = 256 << 20;
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return {};
    struct stat status = {};
    const bool readable = fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= largest;
    std::string content(readable ? static_cast<std::size_t>(status.st_size) : 0, '\0');
    std::size_t filled = 0;
    ssize_t count = 1;
    while (count > 0 && filled < content.size()) {
        count = read(file, &content[filled], content.size() - filled);
        if (count > 0) filled += static_cast<std::size_t>(count);
    }
    close(file);
    content.resize(filled);
    return content;
}

bool readRegistryKey(std::string_view file, std::string_view key, std::vector<RegistryValue>& values) {
    bool found = false;
    bool inKey = false;
    while (!file.empty()) {
        const std::string_view line = takeLine(file);
        LineReader reader(line);
        if (reader.take("[")) {
            std::string section;
            inKey = reader.takeText(']', section) && equalInAnyCase(text1252FromUtf8(section), key);
            found = found || inKey;
        } else if (inKey) {
            RegistryValue value = {};
            if (readValue(line, value)) values.push_back(std::move(value));
        }
    }
    return found;
}
