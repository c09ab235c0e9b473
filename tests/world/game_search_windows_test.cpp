// How a game without an entry in the registry gets one, and what is said beside windows of its name.
#include "platform/wine_prefixes.h"
#include "sample/wine_prefix.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "world/game_search.h"
#include "world/running_game.h"

namespace {

TEST(GameSearchWindowsTest, AnEntryIsMadeAfterAQuestionAndNeverChanged) {
    const TempDirectory files;
    const std::string game = installGame(files.path("prefix")), other = files.path("other");
    uninstallGame(files.path("prefix"));
    EXPECT_TRUE(makeWinePrefix(files.path("prefix")));
    files.makeDirectory("other/UserData");
    files.makeDirectory("own");
    DirectoryText found;
    const auto find = [&](const std::string& wished, bool askNothing = false) {
        return findGame({wished, askNothing}, files.path("own"), found);
    };
    {
        const AnsweredBox asked = answerNextBox(IDCANCEL);
        EXPECT_EQ(find(game), 1);
        EXPECT_EQ(asked->text,
                  "The registry of Windows doesn't say where The Sims is, and Tidewright's window goes by that. This "
                  "entry will be made:\n\nHKEY_LOCAL_MACHINE\\Software\\Maxis\\The Sims\nSIMS_DATA = " +
                      game.substr(0, game.size() - 1) + "\n\nShall it be made?");
        EXPECT_EQ(findGame({game, true, true}, files.path("own"), found), -1) << "nothing may be changed";
        EXPECT_EQ(findSimsDirectory(found), -1);
        EXPECT_FALSE(files.exists("own/tidewright.ini"));
    }
    {
        const auto registerOther = [&] { registerDirectory(other, "", "Software\\Maxis\\The Sims", "SIMS_DATA"); };
        const AnsweredBox asked = answerNextBox(IDOK, registerOther), refused = answerNextBox(IDOK);
        EXPECT_EQ(find(game), -1);
        EXPECT_EQ(refused->text, "The entry couldn't be made (error 183). Start Tidewright once as an administrator.");
        uninstallGame(files.path("prefix"));
    }
    {
        const AnsweredBox asked = answerNextBox(IDOK);
        EXPECT_EQ(find(game), 0);
        EXPECT_EQ(found.view(), game);
    }
    EXPECT_EQ(find(""), 0);
    EXPECT_EQ(find(game), 0) << "no question: the entry is this one";
    const AnsweredBox refused = answerNextBox(IDOK);
    EXPECT_EQ(find(other), -1);
    EXPECT_EQ(refused->text.find("The registry says that The Sims is in " + game.substr(0, game.size() - 1)), 0U);
    EXPECT_FALSE(registerDirectory(other, "", "Software\\Maxis\\The Sims", "SIMS_DATA"));
    EXPECT_EQ(findSimsDirectory(found), 0);
    EXPECT_EQ(std::string(found.view()) + "\\", game);
    files.remove("prefix");
    const AnsweredBox gone = answerNextBox(IDOK);
    EXPECT_EQ(find(""), -1);
    EXPECT_NE(gone->text.find("and it isn't there"), std::string::npos);
    uninstallGame(files.path("prefix"));
}

TEST(RunningGameWindowsTest, TheAdviceFitsTheWindow) {
    const std::pair<const char*, const char*> rows[] = {
        {"SimsGameWindow", "The Sims is running"},
        {"CabinetWClass", "The window of a folder is called \"The Sims\"."},
        {"ExploreWClass", "The window of a folder is called \"The Sims\"."},
        {"MozillaWindowClass", "A page in your browser is called \"The Sims\"."},
    };
    EXPECT_EQ(refuseBesideGame(false), 0);
    for (const auto& [kind, words] : rows) {
        WNDCLASSA windowClass = {};
        windowClass.lpfnWndProc = DefWindowProcA;
        windowClass.lpszClassName = kind;
        RegisterClassA(&windowClass);
        HWND const window =
            CreateWindowA(kind, "The Sims", WS_OVERLAPPEDWINDOW, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(refuseBesideGame(false), -2);
        EXPECT_EQ(box->text.find(words), 0U) << box->text;
        DestroyWindow(window);
    }
    EXPECT_FALSE(isEditorOpen());
}

}  // namespace
