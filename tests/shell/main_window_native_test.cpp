// What a test can see only natively: the picture on the screen, and the pages that a browser is told to open.
#include <gtest/gtest.h>
#include <unistd.h>

#include "shell/main_window.h"
#include "shell/splash.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/controls.h"
#include "ui/status_line.h"

namespace {

TEST(MainWindowNativeTest, TheSplashPictureFillsTheWindowAboveTheLine) {
    ASSERT_TRUE(showSplashWindow());
    const Picture splash = pictureOf(splashWindow());
    EXPECT_EQ(splash.at(0, 0), 0x0D1430U);
    EXPECT_EQ(splash.at(597, 399), 0x0B1026U);
    EXPECT_EQ(splash.at(0, 400), splash.at(0, splash.height - 1)) << "the line is below it";
    InvalidateRect(splashWindow(), nullptr, TRUE);
    UpdateWindow(splashWindow());
    EXPECT_EQ(pictureOf(splashWindow()).at(0, 0), splash.at(0, 400)) << "only until the window is painted again";
}

TEST(MainWindowNativeTest, TheMenuOpensThePagesOfTheProgram) {
    const TempDirectory files;
    files.write("opened", "");
    files.write("xdg-open", "#!/bin/sh\necho \"$1\" >> '" + files.path("opened") + "'\n");
    std::filesystem::permissions(files.path("xdg-open"), std::filesystem::perms::owner_all);
    const ScopedVariable path("PATH", files.path());
    later([&] {
        for (const auto& [menu, item] : {std::pair("Online help", "Online Help"),
                                         {"Online help", "Frequently Asked Questions"},
                                         {"Donate", "Support TDW with a small donation"}}) {
            const Bytes before = files.bytesOf("opened");
            EXPECT_TRUE(chooseMenu(controls().mainWindow, {"Help", menu, item}));
            runMessages();
            for (int tries = 0; tries < 500 && files.bytesOf("opened") == before; ++tries)
                usleep(10'000);
        }
        PostQuitMessage(0);
    });
    runMainWindow(SW_SHOWNORMAL);
    EXPECT_EQ(files.bytesOf("opened"), bytesFrom("http://tidewright.example/Help/\nhttp://tidewright.example/faq.html\n"
                                                 "http://tidewright.example/donate.html\n"));
}

}  // namespace
