#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "platform/files.h"
#include "platform/native/files/paths.h"

DirectoryLock::DirectoryLock(const char* path) {
    using namespace std::chrono_literals;
    const auto begin = std::chrono::steady_clock::now();
    const NativePath directory = locate(path);
    const int opened = openat(directory.directory, directory.name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return;
    handle_ = opened;
    int result = flock(opened, LOCK_EX | LOCK_NB);
    while (result != 0 && errno == EWOULDBLOCK && std::chrono::steady_clock::now() - begin < 2s) {
        std::this_thread::sleep_for(20ms);
        result = flock(opened, LOCK_EX | LOCK_NB);
    }
    if (result == 0) {
        state_ = State::held;
    } else if (errno == EWOULDBLOCK) {
        state_ = State::heldByAnother;
    }
}

DirectoryLock::~DirectoryLock() {
    if (handle_ >= 0) close(static_cast<int>(handle_));
}
