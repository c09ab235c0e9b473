// What a test can see only natively: the picture on the screen, the cursors, and the pages that a browser is asked to
// open.
#include <unistd.h>

#include <QComboBox>

#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"
#include "sample/installation.h"
#include "shell/main_window.h"
#include "shell/splash.h"
#include "tests/support/machine.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/controls.h"
#include "ui/cursors.h"
#include "ui/status_line.h"
#include "world/neighborhoods.h"

namespace {

TEST(MainWindowNativeTest, TheSplashPictureFillsTheWindowAboveTheLine) {
    ASSERT_TRUE(showSplashWindow());
    const Picture splash = pictureOf(splashWindow());
    EXPECT_EQ(splash.at(0, 0), 0x0D1430U);
    EXPECT_EQ(splash.at(597, 399), 0x0B1026U);
    EXPECT_EQ(splash.at(0, 400), splash.at(0, splash.height - 1)) << "the line is below it";
    EXPECT_EQ(findWindow(splashWindow())->clientArea()->cursor().shape(), Qt::BusyCursor);
    InvalidateRect(splashWindow(), nullptr, TRUE);
    UpdateWindow(splashWindow());
    EXPECT_EQ(pictureOf(splashWindow()).at(0, 0), splash.at(0, 400)) << "only until the window is painted again";
}

TEST(MainWindowNativeTest, AFamilysMembersAreReadUnderTheWaitCursor) {
    const TempDirectory files;
    writeInstallation(files.path("prefix"), true);
    loadCursors();
    loadNeighborhoods(installGame(files.path("prefix")).c_str(), files.path().c_str());
    later([] {
        const auto& sims = static_cast<QComboBox&>(*findWindow(controls().simCombo)->widget());
        bool isWaiting = false;
        QObject::connect(sims.model(), &QAbstractItemModel::rowsInserted, [&] { isWaiting = waitCursorShows(); });
        pickEntry(controls().neighborhoodCombo, 0);
        pickEntry(controls().familyCombo, 0);
        EXPECT_TRUE(isWaiting);
        PostQuitMessage(0);
    });
    runMainWindow(SW_SHOWNORMAL);
}

TEST(MainWindowNativeTest, TheMenuOpensThePagesOfTheProgram) {
    const TempDirectory files;
    files.write("opened", "");
    const ScopedVariable path("PATH", files.path());
    ScopedVariable browser("BROWSER", "");
    later([&] {
        for (const auto& [menu, item, opener, browsers] :
             {std::tuple("Online help", "Online Help", "xdg-open", "none"),
              {"Online help", "Frequently Asked Questions", "browser", "none:browser -new"},
              {"Donate", "Support TDW with a small donation", "browser", "browser -url=%s -new"}}) {
            files.write(opener, "#!/bin/sh\necho \"$@\" >> '" + files.path("opened") + "'\n");
            fs::permissions(files.path(opener), fs::perms::owner_all);
            browser.set(browsers);
            const Bytes before = files.bytesOf("opened");
            EXPECT_TRUE(chooseMenu(controls().mainWindow, {"Help", menu, item}));
            runMessages();
            for (int tries = 0; tries < 500 && files.bytesOf("opened") == before; ++tries)
                usleep(10'000);
            files.remove(opener);
        }
        PostQuitMessage(0);
    });
    runMainWindow(SW_SHOWNORMAL);
    EXPECT_EQ(files.bytesOf("opened"), bytesFrom("http://tidewright.example/Help/\n"
                                                 "-new http://tidewright.example/faq.html\n"
                                                 "-url=http://tidewright.example/donate.html -new\n"));
}

}  // namespace
