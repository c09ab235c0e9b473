#include "platform/last_written.h"

#include <windows.h>

#include <array>
#include <cstdio>

std::string lastWritten(const char* path) {
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    SYSTEMTIME utc = {};
    SYSTEMTIME local = {};
    if (GetFileAttributesExA(path, GetFileExInfoStandard, &file) == FALSE ||
        FileTimeToSystemTime(&file.ftLastWriteTime, &utc) == FALSE ||
        SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local) == FALSE) {
        return "";
    }
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d", local.wYear, local.wMonth, local.wDay,
                  local.wHour, local.wMinute);
    return text.data();
}
