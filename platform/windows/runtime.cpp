// Our own versions of two parts of the C++ runtime. The linker finds them before the originals.
#include <windows.h>

#include <cstdlib>

#if defined(__i386__)
#define TICK_COUNT_IMPORT "__imp__GetTickCount64@0"
#else
#define TICK_COUNT_IMPORT "__imp_GetTickCount64"
#endif

namespace {

ULONGLONG WINAPI tickCount() {
    return GetTickCount();
}

}  // namespace

// The runtime's thread library imports GetTickCount64 for waits with a time limit. XP doesn't have it and refuses to
// start such a program. This program never waits like that, so XP's GetTickCount will do, although it wraps around
// after 49 days. The symbol is the pointer through which imported functions are called.
extern "C" {
extern ULONGLONG(WINAPI* const importedTickCount)() __asm__(TICK_COUNT_IMPORT);
ULONGLONG(WINAPI* const importedTickCount)() = tickCount;
}

// The original prints the exception's name on a console, which this program doesn't have, and adds 50,000 bytes.
namespace __gnu_cxx {
void __verbose_terminate_handler();   // NOLINT(bugprone-reserved-identifier)
void __verbose_terminate_handler() {  // NOLINT(bugprone-reserved-identifier)
    std::abort();
}
}  // namespace __gnu_cxx
