// Win32's types, structures and shared constants, with Windows' widths and values. Handles are opaque: every operation
// checks that a handle is valid and never dereferences it.
#ifndef PLATFORM_NATIVE_API_TYPES_H
#define PLATFORM_NATIVE_API_TYPES_H

#include <cstdint>

#define WINAPI
#define CALLBACK

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using ATOM = WORD;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using LSTATUS = LONG;
using REGSAM = DWORD;
using HANDLE = void*;
using HGDIOBJ = void*;
using LPVOID = void*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPBYTE = BYTE*;
using LPDWORD = DWORD*;

#define PLATFORM_HANDLE(name) \
    struct name##__;          \
    using name = struct name##__*  // NOLINT(bugprone-macro-parentheses): a type

PLATFORM_HANDLE(HWND);
PLATFORM_HANDLE(HINSTANCE);
PLATFORM_HANDLE(HMENU);
PLATFORM_HANDLE(HACCEL);
PLATFORM_HANDLE(HICON);
PLATFORM_HANDLE(HDC);
PLATFORM_HANDLE(HBITMAP);
PLATFORM_HANDLE(HBRUSH);
PLATFORM_HANDLE(HKEY);
#undef PLATFORM_HANDLE
using HCURSOR = HICON;

using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using DLGPROC = INT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

struct POINT {
    LONG x, y;
};

struct RECT {
    LONG left, top, right, bottom;
};

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;
constexpr int MAX_PATH = 260;

constexpr WORD LOWORD(ULONG_PTR value) {
    return static_cast<WORD>(value & 0xFFFF);
}

constexpr WORD HIWORD(ULONG_PTR value) {
    return static_cast<WORD>(value >> 16 & 0xFFFF);
}

constexpr WPARAM MAKEWPARAM(ULONG_PTR low, ULONG_PTR high) {
    return (low & 0xFFFF) | (high & 0xFFFF) << 16;
}

// A resource or cursor id in place of a name.
inline LPCSTR MAKEINTRESOURCEA(ULONG_PTR id) {
    return reinterpret_cast<LPCSTR>(id & 0xFFFF);  // NOLINT(performance-no-int-to-ptr): Windows' own trick
}

#endif
