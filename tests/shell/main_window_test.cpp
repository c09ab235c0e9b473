// The main window on the sample installation, driven as a user drives it.
#include "shell/main_window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <thread>

#include "data/data_files.h"
#include "sample/installation.h"
#include "shell/selection.h"
#include "shell/splash.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/controls.h"
#include "ui/cursors.h"
#include "ui/status_line.h"
#include "world/neighborhoods.h"

namespace {

class MainWindowTest : public testing::Test {
 protected:
    MainWindowTest() {
        writeInstallation(files_.path("prefix"));
        files_.write("tool/skinsets.cfg", "CHILD=c001fclgt_amanda01;\nTEENAGER=c008falgt_alt;t\nADULT=a;a\n");
        loadCursors();
        loadNeighborhoods(installGame(files_.path("prefix")).c_str(), files_.path("tool").c_str());
        selection() = {};
    }

    // Runs the window and lets the user act in it; it is closed afterwards without a word.
    static void run(const std::function<void()>& actions) {
        later([&] {
            actions();
            PostQuitMessage(7);
        });
        EXPECT_EQ(runMainWindow(SW_SHOWNORMAL), 7);
        DestroyWindow(controls().mainWindow);
        runMessages();
    }

    static void pick(int neighborhood, int family, int sim) {
        pickEntry(controls().neighborhoodCombo, neighborhood);
        pickEntry(controls().familyCombo, family);
        pickEntry(controls().simCombo, sim);
    }

    // The buttons that are enabled, as letters: Child to Teen, Teen to Adult, Move Out.
    static std::string enabled() {
        std::string letters;
        for (const auto& [button, letter] : {std::pair(controls().childToTeenButton, 'C'),
                                             {controls().teenToAdultButton, 'T'},
                                             {controls().moveOutButton, 'M'}}) {
            if (textOf(button).empty()) letters += "hidden ";
            if (isEnabled(button)) letters += letter;
        }
        return letters;
    }

    static std::string entries(HWND combo) {
        std::string all;
        for (int i = 0; i < SendMessageA(combo, CB_GETCOUNT, 0, 0); ++i)
            all += entryText(combo, i) + "|";
        return all;
    }

    // Whether the lines show this Sim; without texts, whether they show any.
    static bool shows(const std::string& name = "", const std::string& stage = "") {
        return showsText(controls().mainWindow, "Name: " + name) && showsText(controls().mainWindow, "Stage: " + stage);
    }

    // Left, top, right and bottom of what isn't background between these rows.
    static RECT inkBetween(const Picture& picture, int top, int bottom) {
        RECT ink{picture.width, bottom, -1, -1};
        for (LONG y = top; y < bottom; ++y)
            for (LONG x = 0; x < picture.width; ++x)
                if (picture.at(x, y) != picture.at(0, bottom - 1))
                    ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x), y};
        return ink;
    }

    TempDirectory files_;
};

TEST_F(MainWindowTest, StandsWithItsControlsAtTheirPlaces) {
    run([] {
        const Controls& all = controls();
        RECT client{};
        GetClientRect(all.mainWindow, &client);
        EXPECT_EQ(textOf(all.mainWindow), "Tidewright");
        const struct {
            HWND control;
            LONG left, top, width;
            const char* text;
        } rows[] = {
            {all.neighborhoodCombo, 160, 10, 200, ""},
            {all.familyCombo, 160, 40, 200, ""},
            {all.simCombo, 160, 70, 200, ""},
            {all.childToTeenButton, 10, client.bottom - 150, 100, "Child to Teen"},
            {all.teenToAdultButton, 120, client.bottom - 150, 100, "Teen to Adult"},
            {all.moveOutButton, 10, client.bottom - 50, 100, "Move Out"},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(row.top);
            const RECT place = placeOf(row.control);
            EXPECT_EQ(place.left, row.left);
            EXPECT_EQ(place.top, row.top);
            EXPECT_EQ(place.right - place.left, row.width);
            EXPECT_EQ(textOf(row.control), row.text);
        }
        for (const char* const label : {"Pick a Neighborhood:", "Pick a Family:", "Pick a Sim:"})
            EXPECT_TRUE(showsText(all.mainWindow, label)) << label;
        EXPECT_EQ(entries(all.neighborhoodCombo), "Neighborhood 1|Neighborhood 2|Neighborhood 3|");
        EXPECT_EQ(enabled(), "");
        // Every known command ends with a repaint, and that with the arrow. Only a pick or a click does anything else.
        pick(0, 0, 3);
        for (const unsigned id : {1001U, 1002U, 1003U, 2001U, 2002U, 2010U, 32774U}) {
            SCOPED_TRACE(id);
            showWaitCursor();
            SendMessageA(all.mainWindow, WM_COMMAND, MAKEWPARAM(id, 7), 0);
            EXPECT_EQ(waitCursorShows(), id == 32774);
            EXPECT_EQ(enabled(), "C");
        }
    });
}

TEST_F(MainWindowTest, ShowsWhatIsPickedAndWhatItAllows) {
    run([] {
        pickEntry(controls().neighborhoodCombo, 0);
        EXPECT_EQ(entries(controls().familyCombo), "Thistlewood|Q&A|Cr\xE8me|Pennyfarthing|Larkspur|");
        pickEntry(controls().familyCombo, 0);
        EXPECT_EQ(entries(controls().simCombo), "Hazel|Rowan|Bramble|Clover|Fern|Moss|Biscuit|Marmalade|");
        const struct {
            int neighborhood, family, sim;
            const char *name, *stage, *buttons;
        } rows[] = {
            {0, 0, 2, "Bramble Thistlewood", "teenager", "T"},
            {0, 0, 3, "Clover Thistlewood", "child", "C"},
            {0, 0, 6, "Biscuit Thistlewood", "not applicable (pet)", ""},
            {0, 2, 1, "Se\xF1or Cr\xE8me", "adult", "M"},
            {0, 3, 0, "Pip Pennyfarthing", "adult", "M"},  // money is asked for when the button is clicked
            {0, 4, 0, "Juniper Larkspur", "adult", ""},    // the only adult
            {1, 1, 1, "Barley Oats", "teenager", "T"},     // by its body, at an adult's age
            {1, 3, 4, "Wisp Tumbledown", "unknown", ""},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            pick(row.neighborhood, row.family, row.sim);
            EXPECT_EQ(enabled(), row.buttons);
            EXPECT_TRUE(shows(row.name, row.stage));
        }
        const Picture picture = pictureOf(controls().mainWindow);
        const RECT name = inkBetween(picture, 130, 160), stage = inkBetween(picture, 160, 190);
        EXPECT_GT(stage.bottom - stage.top, name.bottom - name.top - 4) << "both lines are whole";
        EXPECT_GT(name.right, stage.right);
        pick(1, 2, 2);
        EXPECT_EQ(textOf(controls().simCombo), "*Unreadable sim*");
        EXPECT_TRUE(enabled().empty() && !shows());

        pick(0, 0, 0);
        pickEntry(controls().familyCombo, 1);
        EXPECT_TRUE(enabled().empty() && !shows());
        pick(0, 0, 0);
        pickEntry(controls().neighborhoodCombo, 0);  // the entry that is selected already
        EXPECT_EQ(entries(controls().simCombo) + enabled(), "");
        EXPECT_FALSE(shows() || selection().currentSim);
    });
}

TEST_F(MainWindowTest, TakesAChildToItsOwnHousehold) {
    run([] {
        pick(0, 0, 3);
        clickButton(controls().childToTeenButton);
        EXPECT_EQ(enabled(), "T");
        clickButton(controls().teenToAdultButton);
        EXPECT_EQ(enabled(), "M");
        EXPECT_TRUE(shows("Clover Thistlewood", "adult"));
        clickButton(controls().moveOutButton);
        EXPECT_EQ(enabled(), "");
        EXPECT_EQ(entries(controls().familyCombo) + entries(controls().simCombo), "");
        EXPECT_TRUE(shows("Clover Thistlewood", "adult")) << "the lines stay until the next pick";
        pick(0, 0, 3);
        EXPECT_EQ(textOf(controls().simCombo), "Fern") << "the members behind her moved up";
    });
}

TEST_F(MainWindowTest, AsksBeforeItLosesChanges) {
    run([] {
        const HWND window = controls().mainWindow;
        pick(1, 0, 0);
        clickButton(controls().moveOutButton);  // a Move Out alone is a change, and so in any neighborhood
        for (const int answer : {IDCANCEL, IDOK}) {
            const AnsweredBox box = answerNextBox(answer);
            closeWindow(window);
            runMessages();
            EXPECT_EQ(box->title + ": " + box->text, "Exit?: You haven't saved your changes.  Exit without saving?");
            EXPECT_EQ(IsWindow(window) != FALSE, answer == IDCANCEL);
        }
    });
}

TEST_F(MainWindowTest, TheMenuSaves) {
    EXPECT_TRUE(writeDataFiles(files_.path("tool")));
    run([] {
        pick(0, 0, 2);
        clickButton(controls().teenToAdultButton);
        EXPECT_TRUE(neighborhoods[0]->isDirty());
        EXPECT_TRUE(chooseMenu(controls().mainWindow, {"File", "Save"}));
        EXPECT_FALSE(runMessages());
        EXPECT_FALSE(neighborhoods[0]->isDirty());

        pick(1, 0, 0);
        clickButton(controls().moveOutButton);
        EXPECT_TRUE(chooseMenu(controls().mainWindow, {"File", "Save and Exit"}));
        EXPECT_TRUE(runMessages());
        EXPECT_FALSE(neighborhoods[1]->isDirty());
    });
}

TEST_F(MainWindowTest, KeysAndMenuShowDialogsAndExitWithoutAQuestion) {
    later([] {
        const HWND window = controls().mainWindow;
        pick(1, 0, 0);
        clickButton(controls().moveOutButton);
        pickEntry(controls().neighborhoodCombo, 1);
        SendMessageA(controls().neighborhoodCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("? is also a key"));
        const AnsweredBox about = answerNextBox(IDOK);
        pressKey(window, '?', Hold::altShift);
        later([=] {
            EXPECT_EQ(about->title, "About");
            EXPECT_EQ(textOf(controls().neighborhoodCombo), "Neighborhood 2") << "the list doesn't have the key";
            const AnsweredBox credits = answerNextBox(answerByEscape);
            EXPECT_TRUE(chooseMenu(window, {"Help", "Credits"}));
            later([=] {
                EXPECT_EQ(credits->title, "Credits");
                EXPECT_TRUE(chooseMenu(window, {"File", "Exit Without Saving"}));
            });
        });
    });
    EXPECT_EQ(runMainWindow(SW_SHOWNORMAL), 0);
    EXPECT_TRUE(IsWindow(controls().mainWindow)) << "the loop ends directly";
    DestroyWindow(controls().mainWindow);
    runMessages();
}

TEST_F(MainWindowTest, TheMenuOpensThePagesOfTheProgram) {
    files_.write("opened", "");
    writePagesTo(files_.path("opened"));
    run([this] {
        const struct {
            const char *menu, *item, *address;
        } rows[] = {
            {"Online help", "Online Help", "http://tidewright.example/Help/"},
            {"Online help", "Frequently Asked Questions", "http://tidewright.example/faq.html"},
            {"Donate", "Support TDW with a small donation", "http://tidewright.example/donate.html"},
        };
        std::string expected, opened;
        for (const auto& row : rows) {
            EXPECT_TRUE(chooseMenu(controls().mainWindow, {"Help", row.menu, row.item}));
            runMessages();
            expected += std::string(row.address) + "\n";
            for (int tries = 0; tries < 500 && opened.size() < expected.size(); ++tries) {
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
                const Bytes lines = files_.bytesOf("opened");
                opened.assign(lines.begin(), lines.end());
                std::erase(opened, '\r');
            }
            EXPECT_EQ(opened, expected);
        }
    });
}

TEST_F(MainWindowTest, FollowsTheSplashWindow) {
    setStatusLine("Please wait while the data is loaded");
    ASSERT_TRUE(showSplashWindow());
    const HWND splash = splashWindow();
    EXPECT_EQ(textOf(splash), "Loading");
    const Picture before = pictureOf(splash);
    setStatusLine("Loading Neighborhood 2");
    showStatusLine();
    const Picture after = pictureOf(splash);
    EXPECT_NE(after.pixels, before.pixels) << "the line is another";
    const RECT line = inkBetween(after, after.height - 30, after.height);
    EXPECT_NEAR(line.left + line.right, after.width, 4) << "centred";
    EXPECT_NE(screenPixel(splash, 20, 20), screenPixel(splash, 20, 200)) << "the picture is a picture";
    run([splash] { EXPECT_FALSE(IsWindow(splash)); });
}

}  // namespace
