#include "ui/sentence_parts.h"

std::string counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string listed(const std::vector<std::string>& names) {
    constexpr std::size_t most = 30;
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool isLast = i + 1 == names.size();
        if (i > 0) text += isLast || i == most ? " and " : ", ";
        if (i == most && !isLast) return text + std::to_string(names.size() - most) + " more";
        text += names[i];
    }
    return text;
}

std::string withCommas(std::int64_t amount) {
    std::string text = std::to_string(amount);
    const std::size_t firstDigit = amount < 0 ? 1 : 0;
    for (std::size_t at = text.size(); at > firstDigit + 3;) {
        at -= 3;
        text.insert(at, ",");
    }
    return text;
}
