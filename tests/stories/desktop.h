// A virtual display, and the built program on it or without one, driven by mouse and keyboard alone.
#ifndef TESTS_STORIES_DESKTOP_H
#define TESTS_STORIES_DESKTOP_H

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <set>
#include <string>

#include "tests/support/x_server.h"

class Desktop : public XServer {
 public:
    Desktop();

    // Runs xdotool with these arguments and returns the first line of what it prints; a failure fails the test.
    std::string act(const std::string& arguments) const;

    // Waits for a visible window whose title matches this pattern; its number for xdotool.
    std::string findWindow(const std::string& title) const;

    // The windows that the screen shows, menus and lists among them.
    std::set<unsigned> shownWindows() const;

    // Whether the middle of the button around this point of the screen has letters as dark as an enabled one's.
    bool hasDarkText(int x, int y) const;
};

// The Windows program that the stories start, quoted for the shell. Wine runs it in a prefix made for this. Null if
// they start the native program.
inline const char* const windowsProgram = std::getenv("TIDEWRIGHT_EXE");

class RunningProgram {
 public:
    // Starts the program in `toolDirectory` on the game of `prefix`. Only the native program can run without a desktop,
    // that is, without a display. It is killed after two minutes.
    RunningProgram(const std::string& prefix, const std::string& toolDirectory, const Desktop* desktop,
                   const char* windowsExe = windowsProgram);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    // Picks entries down to a Sim, counted from 0.
    void pick(int neighborhood, int family, int sim) const;

    // Each waits until the button is enabled, and after the click until it is disabled or asks a question.
    void clickChildToTeen() const { clickButton("Child to Teen", 60, 135); }
    void clickTeenToAdult() const { clickButton("Teen to Adult", 170, 135); }
    void clickMoveOut() const { clickButton("Move Out", 60, 35); }

    // Waits until "Move Out" is enabled; the two buttons of stages must be disabled then.
    void expectOnlyMoveOut() const;

    // Waits for the menu to open, and to close when the item is chosen.
    void chooseFileItem(char mnemonic) const;

    // Waits for a box whose title matches this pattern and presses the key in it; it must close.
    void answerBox(const std::string& title, const std::string& key) const;

    // Asks the window to close, as a window manager does.
    void closeWindow() const;

    // Waits until the program has ended; the exit code as a signed byte.
    int waitForExit();
    const std::string& errorOutput() const { return errorOutput_; }  // once it has ended, of the native one

 private:
    void clickAt(int x, int y) const;
    bool isButtonEnabled(int x, int aboveBottom) const;
    void clickButton(const std::string& name, int x, int aboveBottom) const;

    // Waits for a list or a menu that `open` opens, presses the keys, and waits until it is closed.
    void chooseByKeys(const std::string& step, const std::function<void()>& open, const std::string& keys) const;
    void pickEntry(int comboTop, int index) const;

    const Desktop* desktop_;
    std::FILE* process_ = nullptr;
    std::string errorOutput_;
    std::string window_;
    int windowHeight_ = 0;
    int clientTop_ = 0;
};

#endif
