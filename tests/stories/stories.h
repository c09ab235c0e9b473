// A player at the built programs, on a virtual display of its own.
#ifndef TESTS_STORIES_STORIES_H
#define TESTS_STORIES_STORIES_H

#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>
#include <regex>
#include <utility>

#include "sample/installation.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/x_server.h"

// The directory of the Windows programs, if the stories are to start these. Wine runs them in a prefix made for this.
inline const char* const windowsPrograms = std::getenv("TIDEWRIGHT_WINDOWS_PROGRAMS");

// A button by its middle: from the window's left edge, and above its bottom.
struct Button {
    const char* name;
    int x, aboveBottom;
};
constexpr Button childToTeen{"Child to Teen", 60, 135}, teenToAdult{"Teen to Adult", 170, 135};
constexpr Button moveOut{"Move Out", 60, 35};

// Fails the test, with the name of the step, if it isn't done within 30 seconds.
inline void waitUntil(const std::string& step, const std::function<bool()>& done) {
    for (int tenths = 0; tenths < 300; ++tenths) {
        if (done()) return;
        usleep(100'000);
    }
    ADD_FAILURE() << "never happened: " << step;
}

// Each begins with an unprepared game, and a player who has no files of this program yet.
class Stories : public testing::Test {
 protected:
    Stories() {
        writeInstallation(prefix_);
        if (windowsPrograms == nullptr) return;
        // Wine's server keeps the display of its first program, and waits between programs.
        run("wineserver -k; wineserver -w; wineserver -p >/dev/null 2>&1");
        std::filesystem::remove_all(ownDirectory(true));
    }

    // Where the player's own files of this program are.
    std::string ownDirectory(bool onWindows = windowsPrograms != nullptr) const {
        if (!onWindows) return files_.path("home/.local/share/tidewright");
        return run("ls -d \"$WINEPREFIX\"/drive_c/users/*/AppData/Local | grep -v /Public/") + "/Tidewright";
    }

    // The first word that this command prints; a failure fails the test.
    std::string run(const std::string& command) const {
        std::FILE* const output = popen(("export DISPLAY=" + screen_.display() + "; " + command).c_str(), "r");
        std::string word;
        for (int byte = std::fgetc(output); byte > ' '; byte = std::fgetc(output))
            word.push_back(static_cast<char>(byte));
        EXPECT_EQ(pclose(output), 0) << command;
        return word;
    }
    std::string act(const std::string& arguments) const { return run("timeout 60 xdotool " + arguments); }

    // Waits for a window by its title's pattern. A search fails if any window goes meanwhile, so it is repeated.
    std::string findWindow(const std::string& title) const {
        std::string window;
        waitUntil("a window " + title + " opens", [&] {
            window = act("search --onlyvisible --name '^" + title + "$' 2>/dev/null | tail -n 1");
            return !window.empty();
        });
        return window;
    }

    // Waits until the window's picture has several colors and stays the same: Wine loses what comes before that.
    void waitUntilDrawn(const std::string& window) const {
        std::string before, now;
        waitUntil("the window is drawn", [&] {
            before = std::exchange(now, run("import -window " + window + " -format '%k:%#' info: 2>/dev/null || true"));
            return !now.empty() && !now.starts_with("1:") && now == before;
        });
    }

    // How many windows the screen shows, menus, lists and the screen itself among them.
    int windowCount() const {
        std::string count;
        waitUntil("the windows are counted", [&] {
            count = act("search --onlyvisible --maxdepth 1 --name '' 2>/dev/null | wc -l");
            return count != "0";
        });
        return std::stoi(count);
    }

    // Starts a program of the build, with what it says in the file "said". It is killed after two minutes. Natively the
    // game is where the start finds it by itself; only the editor needs WINEPREFIX.
    void launch(const std::string& command, bool onWindows = windowsPrograms != nullptr) {
        const std::size_t nameEnd = command.find(' ');
        const std::string name = command.substr(0, nameEnd);
        std::string program = "env -u WINEPREFIX HOME='" + files_.path("home") + "' " +
                              (name == "tidewright" ? "WINEPREFIX='" + prefix_ + "' '" : "'") +
                              (buildDirectory() / name).string() + "'";
        if (onWindows) {
            run("wine reg add 'HKLM\\Software\\Maxis\\The Sims' /v SIMS_DATA /f /reg:32 /d \"$(winepath -w '" +
                game_.string() + "' 2>/dev/null)\" >/dev/null 2>&1");
            program = "wine '" + std::string(windowsPrograms) + "/" + name + ".exe'";
        }
        if (nameEnd != std::string::npos) program += command.substr(nameEnd);
        const std::string environment = "env -u QT_QPA_PLATFORM -u WAYLAND_DISPLAY DISPLAY=" + screen_.display();
        program = environment + " timeout -s KILL 120 " + program + " >'" + files_.path("said") + "' 2>&1";
        std::filesystem::create_directories(ownDirectory(onWindows));
        process_ = popen(("cd '" + ownDirectory(onWindows) + "' && exec " + program).c_str(), "r");
    }

    bool isSaid(const std::string& words) const {
        return run("grep -q -a -F -e \"" + words + "\" '" + files_.path("said") + "' && echo yes || echo no") == "yes";
    }

    void prepareGame(bool onWindows = windowsPrograms != nullptr) {
        launch("tidewright-start --prepare --yes", onWindows);
        EXPECT_EQ(waitForExit(), 0);
    }

    // Answers the start's question or report.
    void answerStart() const { answerBox("Tidewright Start", "Return"); }

    // Answers all that the start asks and says before the editor's window.
    void answerUntilEditor() {
        waitUntil("the editor's window opens", [this] {
            if (!act("search --onlyvisible --name '^Tidewright$' 2>/dev/null | tail -n 1").empty()) return true;
            if (!act("search --onlyvisible --name '^Tidewright Start$' 2>/dev/null | tail -n 1").empty()) answerStart();
            return false;
        });
        useWindow();
    }

    void start(bool onWindows = windowsPrograms != nullptr) {
        launch("tidewright", onWindows);
        useWindow(onWindows);
    }

    // Waits for the editor's window. The menu is above the window's controls: natively in the part of the window
    // outside the client area, 430 rows high, and under Wine below the caption.
    void useWindow(bool onWindows = windowsPrograms != nullptr) {
        window_ = findWindow("(Tidewright|Installation Problem)");
        windowHeight_ = std::stoi(act("getwindowgeometry --shell " + window_ + " | sed -n s/HEIGHT=//p"));
        clientTop_ = onWindows ? 42 : windowHeight_ - 430;
        placeWindow(window_);
        focus_ = firstList;
    }

    // At the screen's corner, with the keyboard.
    void placeWindow(const std::string& window) const {
        waitUntilDrawn(window);
        act("windowmove --sync " + window + " 0 0 windowfocus --sync " + window);
    }

    void clickAt(int x, int y) const { act("mousemove " + std::to_string(x) + " " + std::to_string(y) + " click 1"); }

    // Waits for a list or a menu that `open` opens, presses the keys, and waits until it is closed.
    void chooseByKeys(const std::string& step, const std::string& keys, const std::function<void()>& open) const {
        const int before = windowCount();
        int tries = 0;
        waitUntil(step + " opens", [&] {
            if (tries++ % 50 == 0) open();  // again after 5 seconds: X drops what comes while the focus moves
            return windowCount() > before;
        });
        act("key " + keys);
        waitUntil(step + " closes", [&] { return windowCount() <= before; });
    }
    void pickEntry(int list, int index) const {
        std::string keys = "Home";
        for (int i = 0; i < index; ++i)
            keys += " Down";
        chooseByKeys("list " + std::to_string(list), keys + " Return", [=, this] {
            if (byKeys_) return void(act("key alt+Down"));
            clickAt(250, clientTop_ + 20 + 30 * list);
        });
    }
    void chooseFileItem(const std::string& mnemonic) const {
        chooseByKeys("File menu", mnemonic, [this] { act(byKeys_ ? "key F10 Down" : "key alt+f"); });
    }

    // An enabled button has dark letters in its middle.
    bool isEnabled(const Button& button) const {
        const std::string left = std::to_string(button.x - 30);
        const std::string top = std::to_string(windowHeight_ - button.aboveBottom - 6);
        return run("import -window root -crop 60x12+" + left + "+" + top +
                   " -colorspace Gray -format '%[fx:minima < 0.3]' info:") == "1";
    }

    void returnToFirstList() const {
        act("windowfocus --sync " + window_);
        for (int stop = focus_; stop > firstList; --stop)
            act("key shift+Tab");
    }

    // Picks a Sim, by indexes of entries, and presses the button: the only one that is enabled.
    void press(const Button& button, int neighborhood, int family, int sim) {
        if (byKeys_) returnToFirstList();
        pickEntry(0, neighborhood);
        if (byKeys_) act("key Tab");
        pickEntry(1, family);
        if (byKeys_) act("key Tab");
        pickEntry(2, sim);
        waitUntil(std::string(button.name) + " is enabled", [&] { return isEnabled(button); });
        const int before = windowCount();
        byKeys_ ? void(act("key Tab space")) : clickAt(button.x, windowHeight_ - button.aboveBottom);
        waitUntil(std::string(button.name) + " is disabled, or asks",
                  [&] { return !isEnabled(button) || windowCount() > before; });
        focus_ = lastList;  // unless the button stays enabled
    }

    // Waits for a box with this title and presses the key in it; it must close.
    void answerBox(const std::string& title, const std::string& key) const {
        const std::string box = findWindow(title);
        act("windowfocus --sync " + box + " key " + key);
        waitUntil(title + " closes", [&] { return act("getwindowname " + box + " >/dev/null 2>&1; echo $?") != "0"; });
    }

    void killStartAndEditor() {
        run(windowsPrograms != nullptr
                ? "wineserver -k; wineserver -w; wineserver -p >/dev/null 2>&1"
                : "editor=$(xdotool getwindowpid " + window_ + ") && kill -9 $(ps -o ppid= \"$editor\") \"$editor\"");
        pclose(process_);
    }

    // What the game reads: neither backups nor what a save leaves that was cut off.
    Tree playedFiles() const {
        Tree tree = treeOf(game_);
        const std::regex leftOver("Backups/|/TMP|[.]tidewright-");
        std::erase_if(tree, [&](const auto& file) { return std::regex_search(file.first, leftOver); });
        return tree;
    }

    // The exit code as a signed byte.
    int waitForExit() const {
        const int status = pclose(process_);
        return WIFEXITED(status) ? static_cast<signed char>(WEXITSTATUS(status)) : -128;
    }

    const TempDirectory files_;
    const std::string prefix_ = files_.path("home/Games/sims");
    const std::filesystem::path game_ = gameDirectory(prefix_);
    const XServer screen_;
    std::FILE* process_ = nullptr;
    std::string window_;
    int windowHeight_ = 0, clientTop_ = 0;
    bool byKeys_ = false;
    enum Stop { firstList, lastList = 2, enabledButton } focus_ = firstList;
};

#endif
