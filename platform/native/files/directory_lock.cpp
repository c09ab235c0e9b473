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
    constexpr int tries = 100;
    const NativePath directory = locate(path);
    const int opened = openat(directory.directory, directory.name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return;
    handle_ = opened;
    int result = flock(opened, LOCK_EX | LOCK_NB);
    for (int tried = 1; result != 0 && errno == EWOULDBLOCK && tried < tries; ++tried) {
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
