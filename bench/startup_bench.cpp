// The start of the program on the sample installation, from its execution to its main window on an X server of its own,
// against the start of a plain Qt program with the same contents.
#include <benchmark/benchmark.h>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "bench/installations.h"
#include "tests/support/x_server.h"

namespace fs = std::filesystem;

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

xcb_window_t rootOf(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

// Has each new window on the server reported to this process.
void watchWindows(xcb_connection_t* connection) {
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, rootOf(connection), XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);
}

bool hasTitle(xcb_connection_t* connection, xcb_window_t window, std::string_view title) {
    const auto asked = xcb_get_property(connection, 0, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 100);
    const std::unique_ptr<xcb_get_property_reply_t, Free> name(xcb_get_property_reply(connection, asked, nullptr));
    if (name == nullptr) return false;
    const auto size = static_cast<std::size_t>(xcb_get_property_value_length(name.get()));
    return title == std::string_view(static_cast<const char*>(xcb_get_property_value(name.get())), size);
}

void waitForWindow(xcb_connection_t* connection, std::string_view title) {
    for (;;) {
        const std::unique_ptr<xcb_generic_event_t, Free> event(xcb_wait_for_event(connection));
        if (event == nullptr) std::abort();
        if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
        if (hasTitle(connection, reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window, title)) return;
    }
}

// Starts `program` of the build directory and waits until its window `title` is on the screen.
void start(benchmark::State& state, const char* program, const char* title) {
    static const XServer server;
    setenv("WINEPREFIX", samplePrefix().c_str(), 1);
    setenv("DISPLAY", server.display().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);  // the program does so itself
    watchWindows(server.connection());
    const std::string path = fs::read_symlink("/proc/self/exe").parent_path() / program;
    posix_spawn_file_actions_t inToolDirectory;
    posix_spawn_file_actions_init(&inToolDirectory);
    posix_spawn_file_actions_addchdir_np(&inToolDirectory, toolDirectory().c_str());
    char* arguments[] = {const_cast<char*>(path.c_str()), nullptr};
    for ([[maybe_unused]] auto _ : state) {
        const auto before = std::chrono::steady_clock::now();
        pid_t child = 0;
        if (posix_spawn(&child, path.c_str(), &inToolDirectory, nullptr, arguments, environ) != 0) std::abort();
        waitForWindow(server.connection(), title);
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count());
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    posix_spawn_file_actions_destroy(&inToolDirectory);
    setenv("WINEPREFIX", largePrefix().c_str(), 1);
}
BENCHMARK_CAPTURE(start, bare, "bare_window", "Bare")->Name("startBareWindow")->UseManualTime();
BENCHMARK_CAPTURE(start, program, "tidewright", "Tidewright")->Name("startProgram")->UseManualTime();

}  // namespace
