// What keeps the program from starting, and what it says then.
#include "shell/start_checks.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/win32.h"
#include "sample/wine_prefix.h"
#include "shell/window_class.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/status_line.h"
#include "world/neighborhoods.h"

namespace {

constexpr const char* skin = "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn";

// A window of another program's kind, with this title.
HWND openWindow(const char* title) {
    registerWindowClass("SomeGame", DefWindowProcA, IDC_ARROW, nullptr);
    return CreateWindowExA(0, "SomeGame", title, WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr, nullptr,
                           nullptr);
}

class StartChecksTest : public testing::Test {
 protected:
    StartChecksTest() {
        makeWinePrefix(files_.path("prefix"));
        directory_ = installGame(files_.path("prefix"));
        files_.write("tool/skinsets.cfg", "x");
        std::filesystem::current_path(files_.path("tool"));
    }

    std::filesystem::path game() const { return gameDirectory(files_.path("prefix")); }

    TempDirectory files_;
    std::string directory_;  // the game's, as the program knows it
};

TEST_F(StartChecksTest, EachRefusalHasItsBoxAndCode) {
    const char* running =
        "The Sims is currently running.  Please save and exit The Sims before using Marrowfen or any other "
        "Sims-modifying software.";
    const std::string badlyInstalled =
        "Tidewright appears to have been installed incorrectly.  It must be unzipped to your Sims directory.\n\nYour "
        "Sims directory appears to be\n" +
        directory_;
    const char* noConfig =
        "Tidewright cannot find its config files.  It must be in the same directory as its skin config file and "
        "template files.";
    const struct {
        const char* what;
        const char* windowTitle;
        bool registry, noSkin;
        const char* config;
        int code;
        const char* title;
        std::string text;
    } rows[] = {
        {"no registry, whatever else is wrong", "The Sims", false, true, nullptr, -1, "Cannot find The Sims",
         "Cannot find The Sims in the registry.  Please check the FAQ to see how to proceed."},
        {"the game runs, and the skin is missing", "The Sims", true, true, "x", -2, "Exit The Sims", running},
        {"Hot Date", "The Sims Hot Date", true, false, "x", -2, "Exit The Sims", running},
        {"House Party", "The Sims House Party", true, false, "x", -2, "Exit The Sims", running},
        {"Livin' Large", "The Sims Livin' Large", true, false, "x", -2, "Exit The Sims", running},
        {"no skin, and no config", nullptr, true, true, nullptr, -3, "Installation Problem", badlyInstalled},
        {"no config", nullptr, true, false, nullptr, -4, "Missing Config Files", noConfig},
        {"an empty config", nullptr, true, false, "", -4, "Missing Config Files", noConfig},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        makeWinePrefix(files_.path("prefix"));
        installGame(files_.path("prefix"));
        if (!row.registry) uninstallGame(files_.path("prefix"));
        if (row.noSkin) std::filesystem::remove(game() / skin);
        files_.write("tool/skinsets.cfg", row.config != nullptr ? row.config : "");
        if (row.config == nullptr) files_.remove("tool/skinsets.cfg");
        const HWND window = row.windowTitle != nullptr ? openWindow(row.windowTitle) : nullptr;

        DirectoryText directory;
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(checkStart(directory, "tool"), row.code);
        EXPECT_EQ(box->title + ": " + box->text, row.title + (": " + row.text));
        EXPECT_EQ(box->buttons, std::vector<std::string>{"OK"});
        int quitCode = 0;
        EXPECT_TRUE(runMessages(&quitCode));
        EXPECT_EQ(quitCode, row.code);
        if (window != nullptr) DestroyWindow(window);
    }
}

TEST_F(StartChecksTest, PassOnAWholeInstallationOnly) {
    const HWND window = openWindow("The Sims 2");  // only whole titles count
    DirectoryText directory;
    EXPECT_EQ(checkStart(directory, "tool"), 0);
    EXPECT_EQ(directory.view(), directory_);
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(checkStart(directory, ""), -4) << "a tool directory of too long a path";
    EXPECT_EQ(box->title, "Missing Config Files");
    std::filesystem::resize_file(game() / skin, 0);
    const AnsweredBox second = answerNextBox(IDOK);
    EXPECT_EQ(checkStart(directory, "tool"), -3) << "an empty skin is none";
    DestroyWindow(window);
}

}  // namespace
