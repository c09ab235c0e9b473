// What is said beside windows that bear the game's name, and beside another Tidewright.
#include "world/running_game.h"

#include "tests/support/x_server.h"

namespace {

TEST(RunningGameNativeTest, TheAdviceFitsTheWindow) {
    const XServer server;
    const std::tuple<const char*, std::string_view, const char*> rows[] = {
        {"The Sims", "sims.exe", "The Sims is running: a window is called \"The Sims\"."},
        {"The Sims Hot Date", "", "The Sims is running: a window is called \"The Sims Hot Date\"."},
        {"The Sims", {"nautilus\0org.gnome.Nautilus\0", 28}, "The window of a folder is called \"The Sims\"."},
        {"The Sims", {"Navigator\0firefox\0", 18}, "A page in your browser is called \"The Sims\"."},
        {"The Sims 2", "sims2.exe", ""},
    };
    const auto expectWords = [](const std::string& begin) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(refuseBesideGame(true), begin.empty() ? 0 : -2);
        EXPECT_EQ(testing::internal::GetCapturedStdout().substr(0, begin.size()), begin);
    };
    for (const auto& [title, kind, words] : rows) {
        const xcb_window_t window = server.addWindow(title, kind, server.root());
        expectWords(words);
        xcb_destroy_window(server.connection(), window);
    }
    server.addWindow("The Sims", "", server.root());  // the frame of the next
    server.addWindow("The Sims", "dolphin", server.root());
    expectWords("The window of a folder is called \"The Sims\".");
    server.addWindow("The Sims House Party", "steam_app_1", server.root());
    expectWords("The Sims is running: a window is called \"The Sims House Party\".");
}

TEST(RunningGameNativeTest, OnlyTheEditorsOwnWindowCountsAsOne) {
    const XServer server;
    for (const auto& [kind, isEditor] :
         {std::pair("dolphin", false), {"Tidewright-start", false}, {"Tidewright", true}}) {
        server.addWindow("Tidewright", kind, server.root());
        EXPECT_EQ(isEditorOpen(), isEditor) << kind;
    }
}

}  // namespace
