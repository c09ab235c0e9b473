#include "platform/windows/own_calls.h"

#undef RegOpenKeyExA

LSTATUS ownRegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result) {
    const LSTATUS status = RegOpenKeyExA(key, subKey, options, access | KEY_WOW64_32KEY, result);
    if (status != ERROR_ACCESS_DENIED) return status;
    return RegOpenKeyExA(key, subKey, options, KEY_READ | KEY_WOW64_32KEY, result);
}
