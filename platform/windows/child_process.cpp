#include "platform/child_process.h"

#include <windows.h>

#include <array>

#include "platform/files.h"
#include "platform/windows/ansi_path.h"

std::string programBeside(const std::string& name) {
    std::array<wchar_t, MAX_PATH> running{};
    const DWORD length = GetModuleFileNameW(nullptr, running.data(), running.size());
    if (length == 0 || length == running.size()) return "";
    const std::string path = ansiPath(running.data());
    if (path.empty()) return "";
    return path.substr(0, path.rfind('\\') + 1) + name + ".exe";
}

// A mutex belongs to a thread, so the lock can't be shared.
bool runAndWait(const std::string& program, const std::string& directory, const DirectoryLock&, int& exitCode) {
    std::string commandLine = '"' + program + '"';
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION child = {};
    if (CreateProcessA(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, directory.c_str(),
                       &start, &child) == FALSE) {
        return false;
    }
    CloseHandle(child.hThread);
    DWORD code = 0;
    const bool ended = WaitForSingleObject(child.hProcess, INFINITE) == WAIT_OBJECT_0 &&
                       GetExitCodeProcess(child.hProcess, &code) != 0;
    CloseHandle(child.hProcess);
    if (ended) exitCode = static_cast<int>(code);
    return ended;
}
