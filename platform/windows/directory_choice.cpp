#include "platform/directory_choice.h"

// After windows.h.
#include <shlobj.h>

#include <array>

#include "platform/path_text.h"
#include "platform/windows/ansi_path.h"

bool chooseDirectory(HWND owner, const char* title, std::string& directory) {
    BROWSEINFOA browse = {};
    browse.hwndOwner = owner;
    browse.lpszTitle = title;
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    LPITEMIDLIST const chosen = SHBrowseForFolderA(&browse);
    if (chosen == nullptr) return false;
    std::array<wchar_t, MAX_PATH> path{};
    const bool hasPath = SHGetPathFromIDListW(chosen, path.data()) != FALSE;
    ILFree(chosen);
    directory = hasPath ? ansiPath(path.data()) : "";
    // The path of some of the shell's own directories ends with a backslash.
    if (!directory.empty()) directory = absolutePath(directory);
    return true;
}
