#include "platform/path_text.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <memory>

#include "platform/native/base/text1252.h"
#include "platform/native/files/paths.h"

std::string shownPath(const std::string& path) {
    std::string text = text1252FromUtf8(path);
    std::ranges::replace(text, '\\', '/');
    return text;
}

std::string absolutePath(const std::string& path) {
    const auto startsWith = [&](const char* text) { return path.rfind(text, 0) == 0; };
    const char* const home = std::getenv("HOME");
    std::string absolute = path;
    if ((path == "~" || startsWith("~/")) && home != nullptr) {
        absolute = home + path.substr(1);
    } else if (!startsWith("/")) {
        absolute = realPath(".") + '/' + path;
    }
    while (absolute.size() > 1 && absolute.back() == '/') {
        absolute.pop_back();
    }
    return absolute;
}

std::string realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(nativePath(path.c_str()).c_str(), nullptr),
                                                           &std::free);
    return real != nullptr ? real.get() : path;
}

std::string linkTarget(const std::string& path) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(nativePath(path.c_str()).c_str(), target.data(), target.size());
    return {target.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}
