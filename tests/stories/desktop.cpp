#include "tests/stories/desktop.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include "tests/support/build_directory.h"

namespace {

// What the program's window leaves below its menu.
constexpr int clientHeight = 430;

}  // namespace

std::string Desktop::act(const std::string& arguments) const {
    const std::string command = "DISPLAY=" + server_.display() + " timeout 60 xdotool " + arguments;
    std::FILE* output = popen(command.c_str(), "r");
    std::array<char, 256> line{};
    std::string first;
    while (std::fgets(line.data(), line.size(), output) != nullptr)
        if (first.empty()) first = line.data();
    EXPECT_EQ(pclose(output), 0) << command;
    if (!first.empty() && first.back() == '\n') first.pop_back();
    return first;
}

void Desktop::askToClose(unsigned window) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = server_.atom("WM_PROTOCOLS");
    event.data.data32[0] = server_.atom("WM_DELETE_WINDOW");
    xcb_send_event(server_.connection(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(server_.connection());
}

RunningProgram::RunningProgram(const std::string& prefix, const std::string& toolDirectory, const Desktop* desktop)
    : desktop_(desktop), errorFile_(toolDirectory + "/errors.txt") {
    const std::string program = (buildDirectory() / "tidewright").string();
    process_ = fork();
    if (process_ == 0) {
        setenv("WINEPREFIX", prefix.c_str(), 1);
        unsetenv("QT_QPA_PLATFORM");
        unsetenv("WAYLAND_DISPLAY");
        if (desktop != nullptr)
            setenv("DISPLAY", desktop->display().c_str(), 1);
        else
            unsetenv("DISPLAY");
        if (chdir(toolDirectory.c_str()) != 0) _exit(126);
        freopen(errorFile_.c_str(), "w", stderr);
        execl(program.c_str(), program.c_str(), nullptr);
        _exit(127);
    }
    if (desktop != nullptr) waitForWindow();
}

RunningProgram::~RunningProgram() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    std::remove(errorFile_.c_str());
}

void RunningProgram::waitForWindow() {
    window_ = desktop_->act("search --sync --onlyvisible --name '^(Tidewright|Exit The Sims)$'");
    const std::string height = desktop_->act("getwindowgeometry --shell " + window_ + " | grep ^HEIGHT");
    if (height.size() <= sizeof "HEIGHT=" - 1) return;
    windowHeight_ = std::atoi(height.c_str() + sizeof "HEIGHT=" - 1);
    clientTop_ = windowHeight_ - clientHeight;
    desktop_->act("windowmove --sync " + window_ + " 0 0");
}

void RunningProgram::clickAt(int x, int y) const {
    desktop_->act("mousemove " + std::to_string(x) + " " + std::to_string(y) + " click 1");
}

void RunningProgram::pickEntry(int comboTop, int index) const {
    clickAt(250, clientTop_ + comboTop + 10);
    std::string keys = "key Home";
    for (int i = 0; i < index; ++i)
        keys += " Down";
    desktop_->act(keys + " Return");
}

void RunningProgram::pick(int neighborhood, int family, int sim) const {
    pickEntry(10, neighborhood);
    pickEntry(40, family);
    pickEntry(70, sim);
}

void RunningProgram::chooseFileItem(char mnemonic) const {
    desktop_->act(std::string("key alt+f sleep 0.2 key ") + mnemonic + " sleep 0.3");  // at a hand's pace
}

void RunningProgram::answerBox(const std::string& title, const std::string& key) const {
    const std::string box = desktop_->act("search --sync --onlyvisible --name '^" + title + "$'");
    desktop_->act("windowfocus --sync " + box + " key " + key);
}

void RunningProgram::closeWindow() const {
    desktop_->askToClose(static_cast<unsigned>(std::stoul(window_)));
}

int RunningProgram::waitForExit() {
    int status = 0;
    for (int tenths = 0; waitpid(process_, &status, WNOHANG) == 0; ++tenths) {
        if (tenths == 600) {
            ADD_FAILURE() << "the program doesn't end";
            return -128;
        }
        usleep(100'000);
    }
    process_ = -1;
    return WIFEXITED(status) ? static_cast<signed char>(WEXITSTATUS(status)) : -127;
}

std::string RunningProgram::errorOutput() const {
    std::ifstream file(errorFile_);
    return {std::istreambuf_iterator<char>(file), {}};
}
