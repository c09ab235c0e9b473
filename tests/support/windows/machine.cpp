#include "tests/support/machine.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <utility>

#include "sample/wine_prefix.h"

namespace {

constexpr const char* gameKey = "Software\\Maxis\\The Sims";  // of 32-bit programs

// What follows bends the runtime's way to Windows in its own import table, so that everything above it meets what a
// full disk does.

constexpr LONGLONG endless = std::numeric_limits<LONGLONG>::max();
LONGLONG room = endless;  // that a file has

BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED overlapped) {
    LARGE_INTEGER at{};
    if (GetFileType(file) != FILE_TYPE_DISK || !SetFilePointerEx(file, {}, &at, FILE_CURRENT) ||
        at.QuadPart + count <= room)
        return WriteFile(file, bytes, count, written, overlapped);
    const LONGLONG fitting = std::max<LONGLONG>(room - at.QuadPart, 0);
    WriteFile(file, bytes, static_cast<DWORD>(fitting), written, overlapped);
    SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

// Where a module keeps the address of a function that it imports by name.
FARPROC* importOf(HMODULE module, const char* function) {
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* const headers =
        reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + table); from->Name != 0; ++from) {
        const auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* address = reinterpret_cast<FARPROC*>(base + from->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++address) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
            const auto* const import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), function) == 0) return address;
        }
    }
    return nullptr;
}

// Puts a function of ours in the place of Windows'.
template <typename Function>
void bend(HMODULE module, const char* name, Function* function) {
    FARPROC* const import = importOf(module, name);
    EXPECT_NE(import, nullptr) << name;
    DWORD access = 0;
    VirtualProtect(import, sizeof *import, PAGE_READWRITE, &access);
    *import = std::bit_cast<FARPROC>(function);
    VirtualProtect(import, sizeof *import, access, &access);
}

}  // namespace

std::string installGame(const std::filesystem::path& prefix) {
    const std::string directory = gameDirectory(prefix).make_preferred().string();
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_LOCAL_MACHINE, gameKey, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &key, nullptr);
    EXPECT_EQ(RegSetValueExA(key, "SIMS_DATA", 0, REG_SZ, reinterpret_cast<const BYTE*>(directory.c_str()),
                             static_cast<DWORD>(directory.size() + 1)),
              ERROR_SUCCESS);
    RegCloseKey(key);
    return directory + "\\";
}

void uninstallGame(const std::filesystem::path&) {
    EXPECT_EQ(RegDeleteKeyExA(HKEY_LOCAL_MACHINE, gameKey, KEY_WOW64_32KEY, 0), ERROR_SUCCESS);
}

void writePagesTo(const std::string& file) {
    const std::string command = "cmd /c echo %1>>\"" + file + "\"";
    EXPECT_EQ(RegSetValueA(HKEY_CLASSES_ROOT, "http\\shell\\open\\command", REG_SZ, command.c_str(),
                           static_cast<DWORD>(command.size())),
              ERROR_SUCCESS);
}

FullDisk::FullDisk(std::uint64_t size) {
    static bool isBent = false;
    if (!std::exchange(isBent, true)) bend(GetModuleHandleA("msvcrt.dll"), "WriteFile", writeFile);
    room = static_cast<LONGLONG>(size);
}

FullDisk::~FullDisk() {
    room = endless;
}
