// Where the game is found under Wine, and what is said where it isn't.
#include "world/game_search.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>

#include "platform/files.h"
#include "platform/native/windowing/window.h"
#include "platform/path_text.h"
#include "sample/wine_prefix.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/words.h"

namespace {

constexpr const char* gameAsRegistered = "C:\\Program Files (x86)\\Maxis\\The Sims\\";

// The home directory is empty, and the player's own directory is "own".
class GameSearchNativeTest : public testing::Test {
 protected:
    GameSearchNativeTest() {
        files_.makeDirectory("own");
        files_.makeDirectory("home");
        fs::current_path(files_.path("home"));
    }

    // A prefix whose game's directory is `directory`, and the registry's path of it `registered`.
    void makePrefix(const std::string& prefix, const std::string& directory, const std::string& registered) const {
        files_.makeDirectory(prefix + '/' + directory + "/UserData");
        files_.makeDirectory(prefix + "/dosdevices");
        fs::create_directory_symlink("../drive_c", files_.path(prefix + "/dosdevices/c:"));
        files_.write(prefix + "/system.reg", "[Software\\\\Maxis\\\\The Sims]\n\"SIMS_DATA\"=\"" + registered + "\"\n");
    }

    // The game's directory, or the result where none is found.
    std::string found(const std::string& wished = "", bool askNothing = true) {
        prefix_.set(playersPrefix_);
        const int result = findGame({wished, askNothing}, files_.path("own"), found_);
        return result == 0 ? std::string(found_.view()) : std::to_string(result);
    }

    // Whether what was found is this directory, by the paths that the editor makes.
    bool leadsTo(const std::string& directory) const {
        files_.write(directory + "/UserData/Mark.iff", "x");
        FileStatus status{};
        const bool leads = queryFileStatus((std::string(found_.view()) + "UserData\\MARK.IFF").c_str(), status);
        files_.remove(directory + "/UserData/Mark.iff");
        return leads;
    }

    // Nothing is found, and this is part of what goes to standard output.
    void expectWords(const std::string& wished, const std::string& part) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(found(wished), "-1");
        const std::string words = testing::internal::GetCapturedStdout();
        EXPECT_NE(words.find(part), std::string::npos) << words << "\ndoesn't have\n" << part;
    }

    static std::vector<HWND> questionsControls() { return controlsOf(findOwnWindow(boxTitle())); }

    static void click(const char* text) {
        for (HWND const control : questionsControls())
            if (textOf(control) == text) clickButton(control);
    }

    TempDirectory files_;
    ScopedVariable home_{"HOME", files_.path("home")};
    ScopedVariable prefix_{"WINEPREFIX", ""};
    std::string playersPrefix_;
    DirectoryText found_;
};

TEST_F(GameSearchNativeTest, EachPlaceOfPrefixesIsSearched) {
    for (const char* const place :
         {".wine", "Games/x", "Games/Heroic/Prefixes/x", "Games/Heroic/Prefixes/default/x",
          ".steam/steam/steamapps/compatdata/3314070/pfx", ".local/share/Steam/steamapps/compatdata/1/pfx",
          ".var/app/com.valvesoftware.Steam/.local/share/Steam/steamapps/compatdata/1/pfx",
          ".var/app/com.valvesoftware.Steam/.steam/steam/steamapps/compatdata/1/pfx", ".local/share/bottles/bottles/x",
          ".var/app/com.usebottles.bottles/data/bottles/bottles/x", ".PlayOnLinux/wineprefix/x",
          ".local/share/wineprefixes/x", ".cxoffice/x"}) {
        SCOPED_TRACE(place);
        const std::string prefix = files_.path(std::string("home/") + place);
        fs::create_directories(prefix);
        EXPECT_TRUE(makeWinePrefix(prefix));
        EXPECT_EQ(found(), gameAsRegistered);
        EXPECT_EQ(std::getenv("WINEPREFIX"), prefix);
        files_.remove(std::string("home/") + place);
    }
}

TEST_F(GameSearchNativeTest, WhatThePathsOfTheEditorDontReachGetsAPrefixOfItsOwn) {
    const std::string deep = "drive_c/" + std::string(60, 'a') + '/' + std::string(60, 'b');
    const std::tuple<const char*, std::string, std::string, bool> rows[] = {
        {"a long path", deep, "C:\\\\" + std::string(60, 'a') + "\\\\" + std::string(60, 'b'), true},
        {"outside Windows-1252", "drive_c/Gry/Łódź", R"(C:\\Gry\\\x141\x00f3d\x17a)", true},
        {"no links to drives", "drive_c/Maxis/The Sims", R"(C:\\maxis\\The Sims)", false},
        {"short names", "drive_c/My Games/The Sims", R"(C:\\MYGAME~1\\THE_~K4X)", true},
        {"no entry", "drive_c/users/steamuser/Saved Games/Electronic Arts/The Sims 25", "", true},
    };
    for (const auto& [what, directory, registered, hasDrives] : rows) {
        SCOPED_TRACE(what);
        makePrefix("home/.wine", directory, registered);
        if (!hasDrives) files_.remove("home/.wine/dosdevices");
        for (int start = 1; start <= 2; ++start) {
            EXPECT_EQ(found(), "G:\\");
            EXPECT_TRUE(leadsTo("home/.wine/" + directory));
        }
        EXPECT_EQ(realPath("G:\\"), files_.path("home/.wine/" + directory));
        files_.remove("home/.wine");
    }
    EXPECT_TRUE(files_.exists("own/games/5"));
    EXPECT_FALSE(files_.exists("own/games/6")) << "one for each game, which never changes";
}

TEST_F(GameSearchNativeTest, APrefixOfTheEnvironmentMayHaveAnyForm) {
    EXPECT_TRUE(makeWinePrefix(files_.path("home/a b")));
    EXPECT_TRUE(makeWinePrefix(files_.path("home/.wine")));
    for (const char* const form : {"a b", "./a b/", "~/a b"}) {
        playersPrefix_ = form;
        EXPECT_EQ(found(), gameAsRegistered) << form;
        EXPECT_EQ(fs::canonical(std::getenv("WINEPREFIX")), files_.path("home/a b"));
    }
    playersPrefix_ = "nowhere";
    expectWords("", "The registry of " + files_.path("home/nowhere") +
                        " has no entry of The Sims.\n\nSet WINEPREFIX to the game's prefix, or leave it out "
                        "and let Tidewright search.\n");
}

TEST_F(GameSearchNativeTest, AWishIsRememberedUntilItIsGone) {
    makePrefix("home/.wine", "drive_c/a", "C:\\\\a");
    makePrefix("elsewhere/pfx", "drive_c/b", "C:\\\\b");
    EXPECT_EQ(findGame({"../elsewhere", true, true}, files_.path("own"), found_), 0);
    EXPECT_FALSE(files_.exists("own/tidewright.ini")) << "nothing may be changed";
    for (const char* const wish : {"../elsewhere", "../elsewhere/pfx", "../elsewhere/pfx/drive_c/b/",
                                   "../elsewhere/pfx/drive_c/b/UserData", "../elsewhere/pfx/drive_c"})
        EXPECT_EQ(found(wish), "C:\\b\\") << wish;
    EXPECT_EQ(found(), "C:\\b\\");

    files_.remove("elsewhere");
    expectWords("", "isn't there any more: " + files_.path());
    const std::string chosen = "[Game]\nDirectory=" + files_.path("home/.wine/drive_c/a") + "\n";
    const std::string end = "\n\nThis game was found.\n\n" + files_.path("home/.wine/drive_c/a");
    const auto choose = [&](const std::string& text) { files_.write("own/tidewright.ini", text); };
    for (const std::string& damaged : {chosen + "\x01=[\n", "[garbage\n" + chosen, chosen + "lines\n", chosen + "=\n",
                                       std::string("[Play]\n"), chosen + std::string(64'000, '\n')})
        choose(damaged), expectWords("", " is damaged. What was chosen there is ignored." + end);
    choose("[Game]\nDirectory=.wine/drive_c/a\n"), expectWords("", "any more: .wine/drive_c/a." + end);
    choose("; a remark\r\n" + chosen + " \n#another\n");
    EXPECT_EQ(found(), "C:\\a\\");
    expectWords("nowhere", "The Sims isn't in " + files_.path("home/nowhere"));
}

TEST_F(GameSearchNativeTest, SeveralGamesAreListedAndThePickedOneIsRemembered) {
    makePrefix("home/.wine", "drive_c/a", "C:\\\\a");
    makePrefix("home/Games/b", "drive_c/b", "C:\\\\b");
    files_.write("home/Games/b/drive_c/b/UserData/neighborhood.iff", "x");
    expectWords("", files_.path("home/.wine/drive_c/a") + " - 0 neighborhoods\n");
    expectWords("", files_.path("home/Games/b/drive_c/b") + " - 1 neighborhood, last played 20");

    later([] { click("Cancel"); });
    EXPECT_EQ(found("", false), "1");
    later([] {
        pickEntry(questionsControls().front(), 1);  // the first is the one that was played
        click("Open");
    });
    EXPECT_EQ(found("", false), "C:\\a\\");
    EXPECT_EQ(found("", false), "C:\\a\\") << "asks again";
}

TEST_F(GameSearchNativeTest, APrefixWithTwoGamesIsNoAnswerUntilOneIsChosen) {
    const std::string prefix = files_.path("home/x"),
                      saves = "/drive_c/users/a/Saved Games/Electronic Arts/The Sims 25";
    makePrefix("home/x", "drive_c/a", "C:\\\\a");
    files_.makeDirectory("home/x" + saves + "/UserData");
    playersPrefix_ = prefix;
    files_.write("own/tidewright.ini", "garbage");
    expectWords("", "is ignored.\n\nMore than one game is in " + prefix + ".\n\n" + prefix + "/drive_c/a - ");
    EXPECT_EQ(found(prefix + saves), "G:\\");
    EXPECT_EQ(found(), "G:\\");
    EXPECT_TRUE(leadsTo("home/x" + saves));
}

TEST_F(GameSearchNativeTest, WithoutAGameTheUserChoosesADirectory) {
    makePrefix("home/.hidden/pfx", "drive_c/a", "");
    expectWords("", "The Sims wasn't found. Tidewright looked for Wine prefixes with the game in ~/.wine, ~/Games/*, ");
    later([] { click("Choose..."); });
    const AnsweredBox chosen = answerNextBox(IDOK, [] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(dialog->filter().testFlag(QDir::Hidden));
        dialog->setDirectory(".hidden/pfx/drive_c");
        dialog->findChild<QLineEdit*>()->setText("a");
    });
    EXPECT_EQ(found("", false), "G:\\");
    EXPECT_TRUE(leadsTo("home/.hidden/pfx/drive_c/a"));
    EXPECT_EQ(found(".hidden/pfx/drive_c/a/UserData"), "G:\\");
}

}  // namespace
