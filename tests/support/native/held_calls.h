// Runs code in a process of its own whose system calls a test answers, to stop it at each of them or to make it fail.
#ifndef TESTS_SUPPORT_NATIVE_HELD_CALLS_H
#define TESTS_SUPPORT_NATIVE_HELD_CALLS_H

#include <linux/seccomp.h>
#include <sys/syscall.h>

#include <cerrno>
#include <functional>

// What becomes of a held call: one of these, or the `errno` of a call that fails without being carried out.
constexpr int carryOut = 0;
constexpr int endProcess = -1;  // instead of the call, as by `kill -9`

using CallDecision = std::function<int(const seccomp_data& call)>;

// Runs `act` in a child, a copy of this process, which ends with it. Nothing is loaded into the child: the kernel stops
// each of its calls that opens, asks about, reads, writes, names or deletes a file, and `decide` answers by the call's
// number (SYS_openat and so on) and arguments. A sync succeeds without reaching the disk.
void runWithHeldCalls(const std::function<void()>& act, const CallDecision& decide);

#endif
