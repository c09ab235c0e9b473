// A process whose system calls on files are held one by one, so that a test decides what becomes of each.
#ifndef TESTS_SUPPORT_NATIVE_HELD_CALLS_H
#define TESTS_SUPPORT_NATIVE_HELD_CALLS_H

#include <linux/seccomp.h>

#include <functional>

// What becomes of a held call: one of these, or the `errno` of a call that fails without being carried out.
namespace heldCall {
constexpr int carryOut = 0;
constexpr int endProcess = -1;  // instead of the call, as by `kill -9`
}  // namespace heldCall

// Runs `act` in a child, a copy of this process, which ends with it. Nothing is loaded into the child: the kernel stops
// each of its calls that opens, asks about, reads, writes, names or deletes a file, and `decide` answers by the call's
// number (SYS_openat and so on) and arguments. A sync succeeds without reaching the disk. False if the child was ended
// before `act` had returned.
bool runWithHeldCalls(const std::function<void()>& act, const std::function<int(const seccomp_data& call)>& decide);

#endif
