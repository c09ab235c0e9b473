// The main window on the sample installation, driven as a user drives it.
#include "shell/main_window.h"

#include <algorithm>

#include "sample/fact_template.h"
#include "sample/installation.h"
#include "shell/selection.h"
#include "shell/splash.h"
#include "shell/window_texts.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/controls.h"
#include "ui/cursors.h"
#include "ui/status_line.h"
#include "world/neighborhoods.h"

namespace {

const Controls& all = controls();

// What isn't background between these rows of the picture; without anything, its right edge is negative.
RECT inkBetween(const Picture& picture, int top, int bottom) {
    RECT ink{picture.width, bottom, -1, -1};
    for (LONG y = top; y < bottom; ++y)
        for (LONG x = 0; x < picture.width; ++x)
            if (picture.at(x, y) != picture.at(0, bottom - 1))
                ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x), y};
    return ink;
}

class MainWindowTest : public testing::Test {
 protected:
    MainWindowTest() {
        writeInstallation(files_.path("prefix"), true);
        EXPECT_TRUE(writeTemplates(files_.path()));
        files_.write("skinsets.cfg", "CHILD=c001fclgt_amanda01;\nTEENAGER=c008falgt_alt;t\nADULT=a;a\n");
        loadCursors();
        load();
        selection() = {};
    }

    ~MainWindowTest() override {
        DestroyWindow(all.mainWindow);
        runMessages();
    }

    void load() const { loadNeighborhoods(installGame(files_.path("prefix")).c_str(), files_.path().c_str()); }

    // Runs the window, lets the user act in it and closes it, which asks this and gets an OK.
    static void run(const std::function<void()>& actions, const std::string& asked = "") {
        AnsweredBox question;
        later([&] {
            actions();
            question = answerNextBox(IDOK);
            closeWindow(all.mainWindow);
            later([] { PostQuitMessage(7); });  // if it's still open
        });
        EXPECT_EQ(runMainWindow(SW_SHOWNORMAL), 0);
        EXPECT_EQ(question->title + question->text, asked);
    }

    static void pick(int neighborhood, int family, int sim) {
        pickEntry(all.neighborhoodCombo, neighborhood);
        pickEntry(all.familyCombo, family);
        pickEntry(all.simCombo, sim);
    }

    // The texts of the buttons that are enabled.
    static std::string enabled() {
        std::string texts;
        for (HWND const button : {all.childToTeenButton, all.teenToAdultButton, all.moveOutButton}) {
            EXPECT_NE(textOf(button), "") << "a disabled button shows too";
            if (isEnabled(button)) texts += textOf(button);
        }
        return texts;
    }

    static std::string entries(HWND combo) {
        std::string texts;
        for (int i = 0; i < SendMessageA(combo, CB_GETCOUNT, 0, 0); ++i)
            texts += entryText(combo, i) + "|";
        return texts;
    }

    static bool showsSim() { return inkBetween(pictureOf(all.mainWindow), 130, 190).right > 0; }

    TempDirectory files_;
};

TEST(WindowTextsTest, EachStageHasItsWord) {
    std::string words;
    for (std::int32_t stage = stageNumber::pet; stage <= stageNumber::adult; ++stage)
        words += stageWord(stage) + std::string(" ");
    EXPECT_EQ(words, "not applicable (pet) unknown baby toddler child preteen teenager adult ");
}

TEST_F(MainWindowTest, ItsControlsAreAtTheirPlaces) {
    run([] {
        EXPECT_EQ(textOf(all.mainWindow), "Tidewright");
        RECT client{};
        GetClientRect(all.mainWindow, &client);
        const std::tuple<HWND, LONG, LONG, LONG> places[] = {
            {all.neighborhoodCombo, 160, 10, 360},
            {all.familyCombo, 160, 40, 360},
            {all.simCombo, 160, 70, 360},
            {all.childToTeenButton, 10, client.bottom - 150, 110},
            {all.teenToAdultButton, 120, client.bottom - 150, 220},
            {all.moveOutButton, 10, client.bottom - 50, 110},
        };
        for (const auto& [control, left, top, right] : places) {
            const RECT place = placeOf(control);
            EXPECT_EQ(std::tuple(place.left, place.top, place.right), std::tuple(left, top, right));
        }
        const Picture picture = pictureOf(all.mainWindow);
        for (const int top : {10, 40, 70})
            EXPECT_NEAR(inkBetween(picture, top, top + 20).left, 12, 3) << "a label";
        EXPECT_EQ(enabled(), "");
        // Every known command ends with a repaint, which brings the arrow back. Only a pick or a click does more.
        pick(0, 0, 3);
        for (const unsigned id : {1001U, 1002U, 1003U, 2001U, 2002U, 2010U, 32774U}) {
            SCOPED_TRACE(id);
            showWaitCursor();
            SendMessageA(all.mainWindow, WM_COMMAND, MAKEWPARAM(id, 7), 0);
            EXPECT_EQ(waitCursorShows(), id == 32774);
            EXPECT_EQ(enabled(), "Child to Teen");
        }
    });
}

TEST_F(MainWindowTest, ShowsWhatIsPickedAndWhatItAllows) {
    run([] {
        EXPECT_EQ(entries(all.neighborhoodCombo), "Neighborhood 1|Neighborhood 2|Neighborhood 3|Neighborhood 4|");
        const std::tuple<int, int, int, const char*> rows[] = {
            {0, 0, 2, "Teen to Adult"},
            {0, 0, 3, "Child to Teen"},
            {0, 0, 6, ""},  // a pet
            {0, 4, 0, ""},  // the only adult
            {0, 0, 0, "Move Out"},
        };
        for (const auto& [neighborhood, family, sim, buttons] : rows) {
            SCOPED_TRACE(testing::Message() << "family " << family << ", Sim " << sim);
            pick(neighborhood, family, sim);
            EXPECT_EQ(enabled(), buttons);
            EXPECT_TRUE(showsSim());
        }
        pickEntry(all.simCombo, 6);  // the pet again, without another pick of its family
        EXPECT_EQ(enabled(), "");
        EXPECT_EQ(entries(all.familyCombo), "Thistlewood|Q&A|Cr\xE8me|Pennyfarthing|Larkspur|");
        EXPECT_EQ(entries(all.simCombo), "Hazel|Rowan|Bramble|Clover|Fern|Moss|Biscuit|Marmalade|");
        pickEntry(all.simCombo, 0);
        pickEntry(all.familyCombo, 1);
        EXPECT_EQ(enabled(), "");
        EXPECT_FALSE(showsSim());
        pick(0, 0, 0);
        pickEntry(all.neighborhoodCombo, 0);  // the entry that is selected already
        EXPECT_EQ(entries(all.simCombo) + enabled(), "");
        EXPECT_FALSE(showsSim() || selection().currentSim || selection().currentFamily);
        pick(1, 2, 2);
        EXPECT_EQ(textOf(all.simCombo) + enabled(), "*Unreadable sim*");
        EXPECT_FALSE(showsSim());

        pick(3, 1, 2);  // of later editions, whose records this program doesn't know
        EXPECT_EQ(entries(all.familyCombo) + entries(all.simCombo),
                  "Saltmarsh|Driftwood|*Unreadable sim*|*Unreadable sim*|*Unreadable sim*|");
        EXPECT_FALSE(showsSim());

        neighborhoods[1]->family(3)->setName(std::string(99, 'W').c_str());
        pick(1, 3, 4);
        const Picture picture = pictureOf(all.mainWindow);
        const RECT name = inkBetween(picture, 130, 160), stage = inkBetween(picture, 160, 190);
        EXPECT_GT(stage.bottom - stage.top, name.bottom - name.top - 4) << "both lines are whole";
        EXPECT_NEAR(name.right, 455, 4) << "cut in column 460";
    });
}

TEST_F(MainWindowTest, TakesAChildToItsOwnHouseholdAndAsksBeforeThatIsLost) {
    const std::string asked = "Exit?You haven't saved your changes.  Exit without saving?";
    const auto actions = [&] {
        pick(0, 0, 3);
        clickButton(all.childToTeenButton);
        EXPECT_EQ(enabled(), "Teen to Adult");
        EXPECT_EQ(GetFocus(), all.simCombo) << "the focus stays near";
        clickButton(all.teenToAdultButton);
        EXPECT_EQ(enabled(), "Move Out");
        clickButton(all.moveOutButton);
        EXPECT_EQ(entries(all.neighborhoodCombo), "Neighborhood 1|Neighborhood 2|Neighborhood 3|Neighborhood 4|");
        EXPECT_EQ(textOf(all.neighborhoodCombo) + entries(all.familyCombo) + entries(all.simCombo) + enabled(), "");
        EXPECT_TRUE(showsSim()) << "the lines stay until the next pick";
        pick(0, 0, 3);
        EXPECT_EQ(textOf(all.simCombo), "Fern") << "the members behind her moved up";
        const AnsweredBox question = answerNextBox(IDCANCEL);
        closeWindow(all.mainWindow);
        EXPECT_FALSE(runMessages()) << "it stays open";
        EXPECT_EQ(question->title + question->text, asked);
        EXPECT_TRUE(chooseMenu(all.mainWindow, {"File", "Save"}));
        EXPECT_FALSE(runMessages());
        EXPECT_FALSE(neighborhoods[0]->isDirty());

        pick(1, 0, 0);
        clickButton(all.moveOutButton);
        EXPECT_TRUE(chooseMenu(all.mainWindow, {"File", "Save and Exit"}));
        EXPECT_TRUE(runMessages());
        EXPECT_FALSE(neighborhoods[1]->isDirty());
        pick(1, 0, 0);
        clickButton(all.moveOutButton);  // a Move Out alone is a change, and so in any neighborhood
    };
    run(actions, asked);
}

TEST_F(MainWindowTest, KeysAndMenuShowDialogsAndExitWithoutAQuestion) {
    const AnsweredBox about = answerNextBox(IDOK), credits = answerNextBox(answerByEscape);
    later([] {
        pick(1, 0, 0);
        clickButton(all.moveOutButton);
        pickEntry(all.neighborhoodCombo, 1);
        SendMessageA(all.neighborhoodCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("? is also a key"));
        pressKey(all.mainWindow, '/');  // without Alt it opens nothing
        pressKey(all.mainWindow, '?', Hold::altShift);
    });
    later([&] {
        EXPECT_EQ(about->title + "\n" + about->text,
                  "About\nMarrowfen Plus (Build 2)\nLets your Sims grow up and move out.");
        EXPECT_EQ(textOf(all.neighborhoodCombo), "Neighborhood 2") << "the list doesn't have the key";
        EXPECT_TRUE(chooseMenu(all.mainWindow, {"Help", "Credits"}));
    });
    later([&] {
        EXPECT_EQ(credits->title, "Credits");
        EXPECT_TRUE(chooseMenu(all.mainWindow, {"File", "Exit Without Saving"}));
    });
    EXPECT_EQ(runMainWindow(SW_SHOWNORMAL), 0);
    EXPECT_TRUE(IsWindow(all.mainWindow)) << "the loop ends directly";
    EXPECT_TRUE(neighborhoods[1]->isDirty()) << "not saved";
}

TEST_F(MainWindowTest, FollowsTheSplashWindowWhichSaysWhatIsRead) {
    setStatusLine("Please wait while the data is loaded");
    ASSERT_TRUE(showSplashWindow());
    const HWND splash = splashWindow();
    EXPECT_EQ(textOf(splash), "Loading");
    const Picture before = pictureOf(splash);
    load();
    EXPECT_EQ(statusLine().view(), "Loading Neighborhood 4");
    const Picture after = pictureOf(splash);
    EXPECT_NE(after.pixels, before.pixels) << "the line is another";
    const RECT longer = inkBetween(before, before.height - 30, before.height);
    const RECT line = inkBetween(after, after.height - 30, after.height);
    EXPECT_GT(line.left, longer.left) << "the earlier line is gone";
    EXPECT_NEAR(line.top, after.height - 26, 4);
    EXPECT_NEAR(line.left + line.right, after.width, 4) << "centred";
    run([splash] { EXPECT_FALSE(IsWindow(splash) || splashWindow()); });
}

}  // namespace
