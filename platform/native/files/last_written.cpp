#include "platform/last_written.h"

#include <sys/stat.h>

#include <array>
#include <ctime>

#include "platform/native/files/paths.h"

std::string lastWritten(const char* path) {
    struct stat status = {};
    struct tm local = {};
    const NativePath file = locate(path);
    if (fstatat(file.directory, file.name.c_str(), &status, 0) != 0 ||
        localtime_r(&status.st_mtime, &local) == nullptr) {
        return "";
    }
    std::array<char, 40> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &local)};
}
