// Text of a fixed capacity, as the game's records and the program's tables hold it: 8-bit characters and a terminator.
#ifndef PLATFORM_FIXED_TEXT_H
#define PLATFORM_FIXED_TEXT_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

// Holds at most N characters. A longer text is cut, which is not an error; nothing is written beyond the terminator.
template <std::size_t N>
class FixedText {
 public:
    FixedText() = default;
    FixedText(std::string_view text) { assign(text); }  // NOLINT(google-explicit-constructor): a text is a text

    static constexpr std::size_t capacity() { return N; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    const char* c_str() const { return chars_.data(); }
    std::string_view view() const { return {chars_.data(), size_}; }
    operator std::string_view() const { return view(); }  // NOLINT(google-explicit-constructor)

    void clear() {
        size_ = 0;
        chars_[0] = '\0';
    }

    void assign(std::string_view text) {
        clear();
        append(text);
    }

    // `text` must not point into this object.
    void append(std::string_view text) {
        const std::size_t count = std::min(text.size(), N - size_);
        std::copy_n(text.data(), count, chars_.data() + size_);
        size_ += count;
        chars_[size_] = '\0';
    }

    void append(char character) { append(std::string_view(&character, 1)); }

    // Compared as text: up to the first zero byte of either.
    friend bool operator==(const FixedText& a, std::string_view b) { return a.view() == b; }

 private:
    std::array<char, N + 1> chars_{};
    std::size_t size_ = 0;
};

// All parts one after the other, texts or single characters. What doesn't fit into a `Text`, a FixedText, is cut off.
template <typename Text, typename... Parts>
Text joined(const Parts&... parts) {
    Text text;
    (text.append(parts), ...);
    return text;
}

#endif
