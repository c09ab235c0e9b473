// Starts that the program refuses.
#include <gtest/gtest.h>

#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"

namespace {

TEST_F(Stories, ARefusedStartSaysWhy) {
    const struct {
        std::string missing;
        int code;
        std::string title;
    } rows[] = {
        {"", 0, ""},  // the window itself can't be created
        {toolDirectory() + "/skinsets.cfg", -4, "Missing Config Files"},
        {game() / "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn", -3, "Installation Problem"},
        {prefix() + "/system.reg", -1, "Cannot find The Sims"},
    };
    const Desktop desktop;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.missing);
        if (!row.missing.empty()) std::filesystem::remove(row.missing);
        if (windowsProgram == nullptr) {
            RunningProgram program(prefix(), toolDirectory(), nullptr);
            EXPECT_EQ(program.waitForExit(), row.code);
            EXPECT_EQ(program.errorOutput().substr(0, program.errorOutput().find('\n')), row.title);
        } else if (!row.title.empty()) {  // Windows always has a display for a window or a box
            RunningProgram program(prefix(), toolDirectory(), &desktop);
            program.answerBox(row.title, "Return");
            EXPECT_EQ(program.waitForExit(), row.code);
        }
    }
}

TEST_F(Stories, TheProgramDoesNotStartBesideTheGame) {
    const Desktop desktop;
    // What has the game's title is a second Tidewright whose window is given it; under Wine, the window in which the
    // file manager shows the directory of that name.
    const bool wine = windowsProgram != nullptr;
    RunningProgram other(prefix(), wine ? game().string() : toolDirectory(), &desktop, wine ? "explorer ." : nullptr);
    const std::string window = desktop.act("search --onlyvisible --name '^(Tidewright|The Sims)$'");
    desktop.act("set_window --name 'The Sims' " + window);
    RunningProgram program(prefix(), toolDirectory(), &desktop);
    program.answerBox("Exit The Sims", "Return");
    EXPECT_EQ(program.waitForExit(), -2);
    desktop.act("windowkill " + window);
}

}  // namespace
