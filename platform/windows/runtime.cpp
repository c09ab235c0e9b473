// Two parts of the C++ runtime in a version of this program's own, which the linker finds before the runtime's.
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

// The runtime's thread library asks Windows for GetTickCount64, for waits with a time limit; XP doesn't have it and
// refuses to start a program that asks. The program never waits like that, so the count that XP has serves, although
// it starts anew after 49 days. The name is that of the pointer through which imported functions are called.
extern "C" {
extern ULONGLONG(WINAPI* const importedTickCount)() __asm__(TICK_COUNT_IMPORT);
ULONGLONG(WINAPI* const importedTickCount)() = tickCount;
}

// The runtime's own names the exception on a console, which the program doesn't have, and takes 50,000 bytes for it.
namespace __gnu_cxx {
void __verbose_terminate_handler();  // NOLINT(bugprone-reserved-identifier)
void __verbose_terminate_handler() {  // NOLINT(bugprone-reserved-identifier)
    std::abort();
}
}  // namespace __gnu_cxx
