// What keeps the program from starting, and what it says then.
#include "shell/start_checks.h"

#include "sample/wine_prefix.h"
#include "shell/window_class.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"

namespace {

HWND openWindow(const char* title) {
    registerWindowClass("SomeGame", DefWindowProcA, IDC_ARROW, nullptr);
    return CreateWindowExA(0, "SomeGame", title, WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr, nullptr,
                           nullptr);
}

void expectRefusal(int code, const std::string& said, const char* toolDirectory = "tool") {
    DirectoryText directory;
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(checkStart(directory, toolDirectory), code);
    EXPECT_EQ(box->title + ": " + box->text, said);
    EXPECT_EQ(box->buttons, std::vector<std::string>{"OK"});
    int quitCode = 0;
    EXPECT_TRUE(runMessages(&quitCode));
    EXPECT_EQ(quitCode, code);
}

// Everything is wrong, and is put right from one check to the next.
TEST(StartChecksTest, EachRefusalHasItsBoxAndCode) {
    const TempDirectory files;
    files.makeDirectory("tool");
    fs::current_path(files.path("tool"));
    const std::string prefix = files.path("prefix"), game = installGame(prefix);
    const auto skin = gameDirectory(prefix) / "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn";
    makeWinePrefix(prefix);
    uninstallGame(prefix);
    HWND running = openWindow("The Sims");
    expectRefusal(-1,
                  "Cannot find The Sims: Cannot find The Sims in the registry.  Please check the FAQ to see how to "
                  "proceed.");

    makeWinePrefix(prefix);
    installGame(prefix);
    EXPECT_TRUE(writeFile(skin, ""));
    for (const char* const title : {"The Sims", "The Sims Hot Date", "The Sims House Party", "The Sims Livin' Large"}) {
        DestroyWindow(std::exchange(running, openWindow(title)));
        expectRefusal(-2,
                      "Exit The Sims: The Sims is currently running.  Please save and exit The Sims before using "
                      "Marrowfen or any other Sims-modifying software.");
    }
    DestroyWindow(std::exchange(running, openWindow("The Sims 2")));  // only whole titles count

    expectRefusal(-3,
                  "Installation Problem: Tidewright appears to have been installed incorrectly.  It must be unzipped "
                  "to your Sims directory.\n\nYour Sims directory appears to be\n" +
                      game);
    EXPECT_TRUE(writeFile(skin, "skin"));

    const std::string noConfig =
        "Missing Config Files: Tidewright cannot find its config files.  It must be in the "
        "same directory as its skin config file and template files.";
    expectRefusal(-4, noConfig);
    files.write("tool/skinsets.cfg", "");
    expectRefusal(-4, noConfig);
    files.write("tool/skinsets.cfg", "x");
    expectRefusal(-4, noConfig, "");  // as of too long a path

    DirectoryText directory;
    EXPECT_EQ(checkStart(directory, "tool"), 0);
    EXPECT_EQ(directory.view(), game);
    DestroyWindow(running);
}

}  // namespace
