#include "tests/support/native/held_calls.h"

#include <gtest/gtest.h>
#include <linux/filter.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <vector>

namespace {

[[noreturn]] void runChild(const std::function<void()>& act) {
    std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const long call :
         {SYS_openat,   SYS_close,    SYS_newfstatat, SYS_fstat,     SYS_statx,      SYS_faccessat, SYS_faccessat2,
          SYS_lseek,    SYS_read,     SYS_write,      SYS_ftruncate, SYS_getdents64, SYS_fcntl,     SYS_fsync,
          SYS_rename,   SYS_renameat, SYS_renameat2,  SYS_unlinkat,  SYS_mkdirat,    SYS_chdir,     SYS_getcwd,
          SYS_fchmod,   SYS_fchown,   SYS_flock,      SYS_dup,       SYS_dup3,       SYS_fstatfs,   SYS_linkat,
          SYS_fchmodat, SYS_fchownat, SYS_utimensat,  SYS_syncfs}) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    if (syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program) < 0) _exit(1);
    act();
    _exit(0);
}

// Answers the calls until the child has ended.
void answerCalls(int listener, pid_t child, const CallDecision& decide) {
    pollfd waiting{listener, POLLIN, 0};
    while (poll(&waiting, 1, -1) == 1 && (waiting.revents & POLLIN) != 0) {
        seccomp_notif held{};
        if (ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &held) != 0) continue;
        seccomp_notif_resp answer{held.id, 0, 0, 0};
        const int decision = decide(held.data);
        if (decision == endProcess) kill(child, SIGKILL);
        if (decision > 0) answer.error = -decision;
        // Nothing here cuts the power, so a sync would only take time.
        if (decision == carryOut && held.data.nr != SYS_fsync && held.data.nr != SYS_syncfs)
            answer.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &answer);
    }
}

}  // namespace

void runWithHeldCalls(const std::function<void()>& act, const CallDecision& decide) {
    const int childsListener = dup(STDERR_FILENO);  // the lowest free descriptor, which the child's listener will get
    close(childsListener);
    const pid_t child = fork();
    if (child == 0) runChild(act);
    const long process = syscall(SYS_pidfd_open, child, 0);
    long listener = -1;
    while (listener < 0 && waitpid(child, nullptr, WNOHANG) == 0) {
        sched_yield();
        listener = syscall(SYS_pidfd_getfd, process, childsListener, 0);
    }
    close(static_cast<int>(process));
    ASSERT_GE(listener, 0) << "the kernel doesn't hand over a process's calls";
    answerCalls(static_cast<int>(listener), child, decide);
    close(static_cast<int>(listener));
    waitpid(child, nullptr, 0);
}
