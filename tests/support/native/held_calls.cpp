#include "tests/support/native/held_calls.h"

#include <gtest/gtest.h>
#include <linux/filter.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <iterator>
#include <vector>

namespace {

constexpr unsigned fileCalls[] = {
    SYS_openat, SYS_close,      SYS_newfstatat, SYS_fstat, SYS_statx,   SYS_faccessat, SYS_lseek,    SYS_read,
    SYS_write,  SYS_getdents64, SYS_fcntl,      SYS_fsync, SYS_linkat,  SYS_unlinkat,  SYS_mkdirat,  SYS_ftruncate,
    SYS_chdir,  SYS_faccessat2, SYS_dup,        SYS_dup3,  SYS_fstatfs, SYS_getcwd,    SYS_renameat2};

// What parent and child share: where the kernel hands the calls to, once the child has asked it to.
struct Meeting {
    std::atomic<int> listener{-1};
    std::atomic<bool> taken{false};
};

int holdFileCalls() {
    std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const unsigned call : fileCalls) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return -1;
    return static_cast<int>(syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

[[noreturn]] void runChild(Meeting& meeting, const std::function<void()>& act) {
    const int listener = holdFileCalls();
    if (listener < 0) _exit(1);
    meeting.listener = listener;
    while (!meeting.taken)
        sched_yield();
    act();
    _exit(0);
}

int takeListener(Meeting& meeting, pid_t child) {
    while (meeting.listener < 0) {
        if (waitpid(child, nullptr, WNOHANG) != 0) return -1;
        sched_yield();
    }
    const auto process = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
    const auto listener = static_cast<int>(syscall(SYS_pidfd_getfd, process, meeting.listener.load(), 0));
    close(process);
    meeting.taken = true;
    return listener;
}

// Answers the calls until the child has ended.
void answerCalls(int listener, pid_t child, const std::function<int(const seccomp_data&)>& decide) {
    pollfd waiting{listener, POLLIN, 0};
    while (poll(&waiting, 1, -1) == 1 && (waiting.revents & POLLIN) != 0) {
        seccomp_notif held{};
        if (ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &held) != 0) continue;
        seccomp_notif_resp answer{held.id, 0, 0, 0};
        const int decision = decide(held.data);
        if (decision == heldCall::endProcess) kill(child, SIGKILL);
        if (decision > 0) answer.error = -decision;
        // Without a power cut the disk itself doesn't matter, and it takes its time.
        if (decision == heldCall::carryOut && held.data.nr != SYS_fsync) {
            answer.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        }
        ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &answer);
    }
}

}  // namespace

bool runWithHeldCalls(const std::function<void()>& act, const std::function<int(const seccomp_data&)>& decide) {
    void* const shared = mmap(nullptr, sizeof(Meeting), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    Meeting& meeting = *new (shared) Meeting;
    const pid_t child = fork();
    if (child == 0) runChild(meeting, act);
    const int listener = takeListener(meeting, child);
    EXPECT_GE(listener, 0) << "the kernel doesn't hand over a process's calls";
    if (listener >= 0) answerCalls(listener, child, decide);
    close(listener);
    int status = 0;
    waitpid(child, &status, 0);
    munmap(shared, sizeof(Meeting));
    return listener >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
