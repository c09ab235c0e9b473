#include "tests/stories/desktop.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <memory>
#include <span>
#include <thread>
#include <utility>

#include "sample/wine_prefix.h"
#include "tests/support/build_directory.h"

namespace {

// The menu is above the controls: natively in the part of the window outside the client area, under Wine below the
// caption.
constexpr int nativeClientHeight = 430;
constexpr int wineClientTop = 42;

std::string readToEnd(std::FILE* output) {
    std::string text;
    for (int byte = std::fgetc(output); byte != EOF; byte = std::fgetc(output))
        text.push_back(static_cast<char>(byte));
    return text;
}

// Wine's command that enters the game of `prefix` in the registry, or removes the entry if the prefix has no registry.
std::string registryCommand(const std::string& prefix) {
    const std::string value = " 'HKLM\\Software\\Maxis\\The Sims' /v SIMS_DATA /f /reg:32";
    if (!std::filesystem::exists(prefix + "/system.reg")) return "wine reg delete" + value;
    std::string directory = "Z:" + gameDirectory(prefix).string();
    std::ranges::replace(directory, '/', '\\');
    return "wine reg add" + value + " /d '" + directory + "'";
}

// Fails the test, with the name of the step, if it isn't done within 30 seconds.
void waitUntil(const std::string& step, const std::function<bool()>& done) {
    for (int tenths = 0; tenths < 300; ++tenths) {
        if (done()) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    ADD_FAILURE() << "never happened: " << step;
}

}  // namespace

// Starts Wine's server anew, because a server keeps the display of its first program. It waits between programs.
Desktop::Desktop() {
    if (windowsProgram == nullptr) return;
    EXPECT_EQ(std::system("wineserver -k; wineserver -w; wineserver -p >/dev/null 2>&1"), 0);
}

std::string Desktop::act(const std::string& arguments) const {
    const std::string command = "export DISPLAY=" + display() + "; timeout 60 xdotool " + arguments;
    std::FILE* const output = popen(command.c_str(), "r");
    const std::string text = readToEnd(output);
    EXPECT_EQ(pclose(output), 0) << command;
    return text.substr(0, text.find('\n'));
}

// A search by xdotool fails if any window goes meanwhile, so it is repeated.
std::string Desktop::findWindow(const std::string& title) const {
    std::string window;
    waitUntil("a window " + title + " opens", [&] {
        window = act("search --onlyvisible --name '^" + title + "$' 2>/dev/null || true");
        return !window.empty();
    });
    return window;
}

std::set<unsigned> Desktop::shownWindows() const {
    const auto ask = [this](auto request, auto reply, xcb_window_t window) {
        return std::unique_ptr<std::remove_pointer_t<decltype(reply(connection(), {}, nullptr))>, decltype(&std::free)>(
            reply(connection(), request(connection(), window), nullptr), &std::free);
    };
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    const auto tree = ask(xcb_query_tree, xcb_query_tree_reply, root);
    std::set<unsigned> shown;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        const auto state = ask(xcb_get_window_attributes, xcb_get_window_attributes_reply, window);
        if (state != nullptr && state->map_state == XCB_MAP_STATE_VIEWABLE) shown.insert(window);
    }
    return shown;
}

bool Desktop::hasDarkText(int x, int y) const {
    constexpr int width = 60, height = 12, darkest = 80;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    const auto asked =
        xcb_get_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, root, static_cast<std::int16_t>(x - width / 2),
                      static_cast<std::int16_t>(y - height / 2), width, height, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image(
        xcb_get_image_reply(connection(), asked, nullptr), &std::free);
    if (image == nullptr) return false;
    const std::uint8_t* const pixels = xcb_get_image_data(image.get());
    for (int i = 0; i < width * height; ++i) {
        const std::span colors(pixels + std::ptrdiff_t{4} * i, 3);
        if (std::ranges::max(colors) < darkest) return true;
    }
    return false;
}

RunningProgram::RunningProgram(const std::string& prefix, const std::string& toolDirectory, const Desktop* desktop,
                               const char* windowsExe)
    : desktop_(desktop) {
    const std::string display = desktop != nullptr ? "DISPLAY=" + desktop->display() : "-u DISPLAY";
    const std::string environment = "env -u QT_QPA_PLATFORM -u WAYLAND_DISPLAY " + display + " ";
    const std::string limited = "exec " + environment + "timeout -s KILL 120 ";
    // Wine's own processes outlive the program, and would keep its output open.
    const std::string command = windowsExe != nullptr
                                    ? environment + registryCommand(prefix) + " >/dev/null 2>&1 && " + limited +
                                          "wine " + windowsExe + " >/dev/null 2>&1"
                                    : limited + "env WINEPREFIX=" + prefix + " '" +
                                          (buildDirectory() / "tidewright").string() + "' 2>&1 >/dev/null";
    process_ = popen(("cd '" + toolDirectory + "' && " + command).c_str(), "r");
    if (desktop == nullptr) return;
    window_ = desktop_->findWindow("(Tidewright|.*Sims|Installation Problem|Missing Config Files)");
    windowHeight_ = std::atoi(desktop_->act("getwindowgeometry --shell " + window_ + " | sed -n s/HEIGHT=//p").c_str());
    clientTop_ = windowsExe != nullptr ? wineClientTop : windowHeight_ - nativeClientHeight;
    desktop_->act("windowmove --sync " + window_ + " 0 0 windowfocus --sync " + window_);
}

RunningProgram::~RunningProgram() {
    if (process_ != nullptr) waitForExit();
}

void RunningProgram::clickAt(int x, int y) const {
    desktop_->act("mousemove " + std::to_string(x) + " " + std::to_string(y) + " click 1");
}

bool RunningProgram::isButtonEnabled(int x, int aboveBottom) const {
    return desktop_->hasDarkText(x, windowHeight_ - aboveBottom);
}

void RunningProgram::expectOnlyMoveOut() const {
    waitUntil("Move Out is enabled", [this] { return isButtonEnabled(60, 35); });
    EXPECT_FALSE(isButtonEnabled(60, 135) || isButtonEnabled(170, 135));
}

void RunningProgram::clickButton(const std::string& name, int x, int aboveBottom) const {
    const auto isEnabled = [=, this] { return isButtonEnabled(x, aboveBottom); };
    waitUntil(name + " is enabled", isEnabled);
    const std::set<unsigned> before = desktop_->shownWindows();
    clickAt(x, windowHeight_ - aboveBottom);
    waitUntil(name + " is disabled, or asks",
              [&] { return !isEnabled() || !std::ranges::includes(before, desktop_->shownWindows()); });
}

void RunningProgram::chooseByKeys(const std::string& step, const std::function<void()>& open,
                                  const std::string& keys) const {
    const std::set<unsigned> before = desktop_->shownWindows();
    std::set<unsigned> opened;
    open();
    waitUntil(step + " opens", [&] {
        std::ranges::set_difference(desktop_->shownWindows(), before, std::inserter(opened, opened.end()));
        return !opened.empty();
    });
    desktop_->act("key " + keys);
    waitUntil(step + " closes", [&] {
        std::set<unsigned> left;
        std::ranges::set_intersection(desktop_->shownWindows(), opened, std::inserter(left, left.end()));
        return left.empty();
    });
}

void RunningProgram::pickEntry(int comboTop, int index) const {
    std::string keys = "Home";
    for (int i = 0; i < index; ++i)
        keys += " Down";
    chooseByKeys(
        "list at " + std::to_string(comboTop) + ", for entry " + std::to_string(index),
        [=, this] { clickAt(250, clientTop_ + comboTop + 10); }, keys + " Return");
}

void RunningProgram::pick(int neighborhood, int family, int sim) const {
    pickEntry(10, neighborhood);
    pickEntry(40, family);
    pickEntry(70, sim);
}

void RunningProgram::chooseFileItem(char mnemonic) const {
    chooseByKeys(
        "File menu", [this] { desktop_->act("key alt+f"); }, std::string(1, mnemonic));
}

void RunningProgram::answerBox(const std::string& title, const std::string& key) const {
    const std::string box = desktop_->findWindow(title);
    desktop_->act("windowfocus --sync " + box + " key " + key + "; while xdotool getwindowname " + box +
                  " >/dev/null 2>&1; do sleep 0.1; done");
}

void RunningProgram::closeWindow() const {
    desktop_->act("key alt+slash");  // the message would overtake keys and clicks that the program hasn't taken yet
    answerBox("About", "Return");
    xcb_connection_t* const server = desktop_->connection();
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<unsigned>(std::stoul(window_));
    event.type = desktop_->atom("WM_PROTOCOLS");
    event.data.data32[0] = desktop_->atom("WM_DELETE_WINDOW");
    xcb_send_event(server, 0, event.window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(server);
}

int RunningProgram::waitForExit() {
    errorOutput_ = readToEnd(process_);
    const int status = pclose(std::exchange(process_, nullptr));
    return WIFEXITED(status) ? static_cast<signed char>(WEXITSTATUS(status)) : -128;
}
