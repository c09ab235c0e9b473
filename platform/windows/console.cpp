#include "platform/console.h"

#include <windows.h>

#include <vector>

namespace {

bool isUsable(HANDLE handle) {
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

bool isConsole(HANDLE handle) {
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != FALSE;
}

std::string withWindowsLineEnds(const std::string& text) {
    std::string lines;
    for (const char c : text) {
        if (c == '\n') lines += '\r';
        lines += c;
    }
    return lines;
}

// A console shows bytes in a code page of its own, so it gets characters.
bool writeToConsole(HANDLE console, const std::string& text) {
    const int size = static_cast<int>(text.size());
    std::vector<wchar_t> wide(text.size());
    const int count = MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
    DWORD written = 0;
    return WriteConsoleW(console, wide.data(), static_cast<DWORD>(count), &written, nullptr) != FALSE &&
           written == static_cast<DWORD>(count);
}

bool writeToFile(HANDLE file, const std::string& text) {
    DWORD written = 0;
    return WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != FALSE &&
           written == text.size();
}

// The console of the program that started this one, kept until the end. Its shell doesn't wait for programs with
// windows, so its prompt is there already: the first words begin a line of their own.
HANDLE parentsConsole() {
    static const HANDLE console = [] {
        AttachConsole(ATTACH_PARENT_PROCESS);
        HANDLE const opened = CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                          nullptr, OPEN_EXISTING, 0, nullptr);
        if (isUsable(opened)) writeToConsole(opened, "\r\n");
        return opened;
    }();
    return console;
}

bool writeTo(DWORD stream, const std::string& text) {
    const std::string lines = withWindowsLineEnds(text);
    HANDLE const given = GetStdHandle(stream);
    if (isUsable(given) && isConsole(given)) return writeToConsole(given, lines);
    if (isUsable(given) && writeToFile(given, lines)) return true;
    HANDLE const console = parentsConsole();
    return isUsable(console) && writeToConsole(console, lines);
}

}  // namespace

bool writeToOutput(const std::string& text) {
    return writeTo(STD_OUTPUT_HANDLE, text);
}

bool writeToErrors(const std::string& text) {
    return writeTo(STD_ERROR_HANDLE, text);
}
