#include "platform/console.h"

#include <cstdio>

#include "platform/native/base/text1252.h"

namespace {

bool writeTo(std::FILE* stream, const std::string& text) {
    return std::fputs(utf8From1252(text).c_str(), stream) >= 0 && std::fflush(stream) == 0;
}

}  // namespace

bool writeToOutput(const std::string& text) {
    return writeTo(stdout, text);
}

bool writeToErrors(const std::string& text) {
    return writeTo(stderr, text);
}
