#include "platform/child_process.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <array>
#include <cerrno>
#include <climits>

#include "platform/files.h"
#include "platform/native/api/system.h"
#include "platform/native/events/event_pump.h"
#include "platform/native/files/path_status.h"
#include "platform/native/files/paths.h"
#include "platform/native/screen/display.h"

namespace {

// Nothing runs Qt's events while the other program does, so what was closed must be gone from the screen before.
void finishWithScreen() {
    if (!hasDisplay()) return;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    bringToScreen();
}

}  // namespace

std::string programBeside(const std::string& name) {
    std::array<char, PATH_MAX> running{};
    const ssize_t length = readlink("/proc/self/exe", running.data(), running.size());
    if (length <= 0 || static_cast<std::size_t>(length) == running.size()) return "";
    const std::string path(running.data(), static_cast<std::size_t>(length));
    return path.substr(0, path.rfind('/') + 1) + name;
}

bool runAndWait(const std::string& program, const std::string& directory, const DirectoryLock& shared, int& exitCode) {
    finishWithScreen();
    std::string argument = program;
    std::array<char*, 2> arguments{argument.data(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, nativePath(directory.c_str()).c_str());
    // Onto itself: the child keeps the descriptor, which would be closed there.
    const int lock = static_cast<int>(shared.handle());
    if (shared.isHeld()) posix_spawn_file_actions_adddup2(&actions, lock, lock);
    pid_t child = -1;
    const int error = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        setPathError(error, locate(program.c_str()));
        return false;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    exitCode = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return true;
}
