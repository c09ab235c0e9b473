#include "platform/own_directory.h"

#include <windows.h>
// After windows.h.
#include <shlobj.h>

#include <array>

#include "platform/windows/ansi_path.h"

namespace {

// No working directory of the programs may have a longer path.
constexpr std::size_t longestPath = 199;

// A probe is the only sure way: rights, quotas and redirections decide together.
bool mayWriteInto(const std::string& directory) {
    HANDLE const probe = CreateFileA((directory + "\\write test").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                     FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (probe == INVALID_HANDLE_VALUE) return false;
    CloseHandle(probe);
    return true;
}

std::string faultOf(const std::string& path) {
    if (path.size() > longestPath) {
        return "The path " + path + " has 200 characters or more, which is too long.";
    }
    const std::string code = " (error " + std::to_string(GetLastError()) + ").";
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return "The directory " + path + " can't be made" + code;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return path + " isn't a directory.";
    if (mayWriteInto(path)) return "";
    return "The directory " + path + " can't be written into (error " + std::to_string(GetLastError()) + ").";
}

}  // namespace

OwnDirectory ownDirectory(const std::string& name) {
    std::array<wchar_t, MAX_PATH> base{};
    const HRESULT result =
        SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, base.data());
    const std::string place = SUCCEEDED(result) ? ansiPath(base.data()) : "";
    if (place.empty()) return {"", "Windows names no directory for this user's local application data."};
    const std::string path = place + '\\' + name;
    CreateDirectoryA(path.c_str(), nullptr);
    return {path, faultOf(path)};
}
