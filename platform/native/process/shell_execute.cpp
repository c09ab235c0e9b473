#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"

namespace {

constexpr ULONG_PTR started = 33;
constexpr ULONG_PTR noAssociation = 31;

using Arguments = std::vector<std::string>;

HINSTANCE resultOf(ULONG_PTR code) {
    return reinterpret_cast<HINSTANCE>(code);  // NOLINT(performance-no-int-to-ptr): a number, by Windows' custom
}

bool isWebAddress(std::string_view address) {
    return address.starts_with("http://") || address.starts_with("https://");
}

// Starts a program found along $PATH, in its own session so that it outlives this program and its terminal. Returns 0
// or the value of `errno`.
int start(const Arguments& arguments) {
    std::vector<char*> pointers;
    for (const std::string& argument : arguments) {
        pointers.push_back(const_cast<char*>(argument.c_str()));
    }
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        posix_spawn_file_actions_addopen(&actions, descriptor, "/dev/null", O_RDWR, 0);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t child = 0;
    const int error = posix_spawnp(&child, pointers[0], &actions, &attributes, pointers.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    // Without this wait the ended child would stay in the process table until this program ends.
    if (error == 0) std::thread([child] { waitpid(child, nullptr, 0); }).detach();
    return error;
}

Arguments dividedAt(char divider, std::string_view text) {
    Arguments parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(divider), text.size());
        if (end > 0) parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

// The arguments of one command of $BROWSER, with the address in place of "%s", or last if there is none.
Arguments browserCommand(std::string_view command, const std::string& address) {
    Arguments arguments = dividedAt(' ', command);
    bool placed = false;
    for (std::string& argument : arguments) {
        const std::size_t at = argument.find("%s");
        if (at == std::string::npos) continue;
        argument.replace(at, 2, address);
        placed = true;
    }
    if (!placed) arguments.push_back(address);
    return arguments;
}

// xdg-open follows the user's settings. Without it, $BROWSER lists commands, separated by colons.
int openInBrowser(const std::string& address) {
    int error = start({"xdg-open", address});
    const char* browsers = std::getenv("BROWSER");
    if (error == 0 || browsers == nullptr) return error;
    for (const std::string& command : dividedAt(':', browsers)) {
        error = start(browserCommand(command, address));
        if (error == 0) break;
    }
    return error;
}

}  // namespace

HINSTANCE ShellExecuteA(HWND, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR directory, int) {
    const bool opens = verb != nullptr && std::strcmp(verb, "open") == 0;
    if (!opens || file == nullptr || !isWebAddress(file) || parameters != nullptr || directory != nullptr) {
        return resultOf(noAssociation);
    }
    const int error = openInBrowser(file);
    if (error == 0) return resultOf(started);
    SetLastError(windowsError(error));
    return resultOf(ERROR_FILE_NOT_FOUND);
}
