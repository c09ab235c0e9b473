// What is said beside windows that bear the game's name, and beside another Tidewright.
#include "world/running_game.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"
#include "tests/support/x_server.h"

namespace {

// A window of another program, until the end of the block.
class OtherWindow {
 public:
    OtherWindow(const XServer& server, std::string_view title, std::string_view kind) : server_(server) {
        xcb_connection_t* const connection = server.connection();
        xcb_create_window(connection, 0, window_, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, 0, 0,
                          8, 8, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, 0, 0, nullptr);
        set(XCB_ATOM_WM_NAME, title);
        set(XCB_ATOM_WM_CLASS, kind);
        server.atom("done");
    }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    ~OtherWindow() {
        xcb_destroy_window(server_.connection(), window_);
        server_.atom("done");
    }

 private:
    void set(xcb_atom_t property, std::string_view text) const {
        xcb_change_property(server_.connection(), XCB_PROP_MODE_REPLACE, window_, property, XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
    }

    const XServer& server_;
    xcb_window_t window_ = xcb_generate_id(server_.connection());
};

TEST(RunningGameNativeTest, TheAdviceFitsTheWindow) {
    const XServer server;
    const ScopedVariable display("DISPLAY", server.display());
    const struct {
        const char* title;
        std::string_view kind;
        const char* words;
    } rows[] = {
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
    for (const auto& row : rows) {
        const OtherWindow window(server, row.title, row.kind);
        expectWords(row.words);
    }
    const OtherWindow folder(server, "The Sims", "dolphin"), game(server, "The Sims House Party", "steam_app_1");
    expectWords("The Sims is running: a window is called \"The Sims House Party\".");
}

TEST(RunningGameNativeTest, OnlyTheEditorsOwnWindowCountsAsOne) {
    const XServer server;
    const ScopedVariable display("DISPLAY", server.display());
    for (const auto& [kind, isEditor] :
         {std::pair("dolphin", false), {"Tidewright-start", false}, {"Tidewright", true}}) {
        const OtherWindow window(server, "Tidewright", kind);
        EXPECT_EQ(isEditorOpen(), isEditor) << kind;
    }
}

TEST(RunningGameNativeTest, ASecondStartIsRefusedUntilTheFirstHasEndedHowever) {
    const TempDirectory files;
    EXPECT_EQ(lockedDirectory(joined<DirectoryText>("C:\\The Sims\\")).view(), "C:\\The Sims");
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t first = fork();
    if (first == 0) {
        const DirectoryLock lock(files.path().c_str());
        std::exit(write(ready[1], "x", 1) == 1 && pause() == 0 ? 0 : 1);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    testing::internal::CaptureStdout();
    EXPECT_EQ(refuseSecondStart(DirectoryLock(files.path().c_str()), true), -2);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Tidewright is open already on this game. Please close it, and start again.\n");
    kill(first, SIGKILL);
    waitpid(first, nullptr, 0);
    EXPECT_EQ(refuseSecondStart(DirectoryLock(files.path().c_str()), true), 0);
    EXPECT_EQ(refuseSecondStart(DirectoryLock(files.path("missing").c_str()), true), 0);
}

}  // namespace
