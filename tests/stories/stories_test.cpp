// What a player does from the program's start to its end: the built program on a virtual display, driven by mouse and
// keyboard alone.
#include "tests/stories/stories.h"

#include <fstream>
#include <utility>

#include "tests/support/iff_walk.h"
#include "tests/support/scoped_variable.h"
#include "world/neighborhoods.h"

namespace {

TEST_F(Stories, AnEveningOfPlayByKeysAlone) {
    byKeys_ = true;
    const Tree unprepared = treeOf(game_);
    start();
    answerBox("Installation Problem", "Return");
    EXPECT_EQ(waitForExit(), -3);
    launch("tidewright-start");
    answerUntilEditor();  // files will be made
    const Tree before = treeOf(game_);
    EXPECT_EQ(differences(unprepared, before), "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn\n");
    press(childToTeen, 0, 0, 3);  // Clover, whose head leads to a teen's
    press(childToTeen, 0, 0, 4);  // Fern, whose head is in no set
    answerBox("Proceed[?]", "Return");
    waitUntil("Fern is a teen", [this] { return !isEnabled(childToTeen); });
    press(childToTeen, 2, 0, 3);  // Minnow, the same, but not tonight
    answerBox("Proceed[?]", "Escape");
    focus_ = enabledButton;
    press(teenToAdult, 0, 0, 2);  // Bramble
    press(teenToAdult, 1, 0, 3);  // Barnaby
    press(moveOut, 0, 0, 0);      // Hazel
    press(moveOut, 0, 1, 0);      // Quill
    EXPECT_EQ(differences(before, treeOf(game_)), "") << "nothing reaches the disk before the save";
    chooseFileItem("s");
    press(moveOut, 0, 3, 0);  // Pip, whose family is poor
    answerBox("Insufficient funds", "Return");
    focus_ = enabledButton;
    press(moveOut, 0, 2, 0);  // Zoe
    chooseFileItem("v");      // save and exit
    answerStart();            // the report
    EXPECT_EQ(waitForExit(), 0);

    const Tree after = treeOf(game_);
    launch("tidewright-start");
    useWindow();
    press(moveOut, 0, 0, 1);  // Bramble
    chooseFileItem("x");      // without saving, of which nothing is said
    EXPECT_EQ(waitForExit(), 0);
    EXPECT_EQ(differences(after, treeOf(game_)), "");

    loadNeighborhoods((game_.string() + "/").c_str(), ownDirectory().c_str());
    std::string families;
    for (int i = 0; i < neighborhoods[0]->familyCount(); ++i) {
        Family& family = *neighborhoods[0]->family(i);
        families += family.name() + (" " + std::to_string(family.funds()) + ":");
        for (int k = 0; k < family.memberCount(); ++k)
            families += " " + (family.member(k)->name() + std::to_string(family.member(k)->stage()));
        families += "\n";
    }
    EXPECT_EQ(families,
              "Thistlewood 42500: Rowan6 Bramble6 Clover5 Fern5 Moss3 Biscuit-1 Marmalade-1\nQ&A 4000: Antonia6\n"
              "Cr\xE8me 0: Se\xF1or6\nPennyfarthing 850: Pip6 Tuppence6 Farley5\nLarkspur 18000: Juniper6\n"
              "Thistlewood 20000: Hazel6\nQ&A 20000: Quill6\nCr\xE8me 10000: Zo\xEB\x36\n");
    for (const auto& [name, bytes] : after)
        EXPECT_TRUE(!name.ends_with(".iff") || walkIff(bytes).fault.empty()) << name << ": " << walkIff(bytes).fault;
    const std::regex changed(
        "UserData2?/((Backups/)?[Nn]eighborhood|Characters/(Backups/)?[Uu]ser000(13|15|42|04))[.0-9]*iff\n");
    EXPECT_EQ(std::regex_replace(differences(before, after), changed, ""), "");
    EXPECT_TRUE(after.contains("UserData/Neighborhood.iff")) << "it is spelled with a capital";
}

// The native and the Windows program get the same picks. Nothing of these is drawn by chance, as a new teen's outfit
// is.
TEST_F(Stories, TwoProgramsSaveOneTree) {
    ASSERT_NE(windowsPrograms, nullptr) << "TIDEWRIGHT_WINDOWS_PROGRAMS names no directory";
    const auto savedBy = [this](bool onWindows) {
        writeInstallation(prefix_);
        prepareGame(onWindows);
        start(onWindows);
        press(teenToAdult, 0, 0, 2);  // Bramble
        press(moveOut, 0, 0, 0);      // Hazel
        press(teenToAdult, 2, 0, 2);  // Heron
        press(moveOut, 1, 0, 1);      // Peregrine
        chooseFileItem("v");
        EXPECT_EQ(waitForExit(), 0);
        Tree saved;
        const std::regex date(R"(\.[.0-9]+iff$)");  // of a backup: the programs don't run in one minute
        for (const auto& [name, bytes] : treeOf(game_))
            saved[std::regex_replace(name, date, "")] = bytes;
        return saved;
    };
    const Tree native = savedBy(false);
    EXPECT_TRUE(native.contains("UserData/Backups/neighborhood")) << "not saved";
    EXPECT_EQ(differences(native, savedBy(true)), "");
}

TEST_F(Stories, TheStartSaysWhatBecameOfAnEveningAndUndoesIt) {
    prepareGame();
    const Tree before = playedFiles();
    const std::filesystem::path neighborhood = game_ / "UserData/Neighborhood.iff";
    const std::filesystem::perms writable = std::filesystem::status(neighborhood).permissions();
    permissions(neighborhood, std::filesystem::perms::owner_read);
    launch("tidewright-start");
    answerBox("Tidewright Start", "Escape");  // nothing could be saved, so it isn't started
    EXPECT_EQ(waitForExit(), 1);
    permissions(neighborhood, writable);

    launch("tidewright-start --yes");
    std::FILE* const other = std::exchange(process_, nullptr);
    launch("tidewright-start --yes");
    waitUntil("one of two starts refuses", [this] { return isSaid("Tidewright is open already"); });
    useWindow();
    press(teenToAdult, 0, 0, 2);  // Bramble
    const std::filesystem::path sim = game_ / "UserData/Characters/User00013.iff";
    const auto written = last_write_time(sim);
    chooseFileItem("s");
    std::error_code noName;  // for a moment
    waitUntil("the save has begun to replace files", [&] { return last_write_time(sim, noName) != written; });
    killStartAndEditor();
    pclose(other);
    launch("tidewright-start");
    const std::string file = "UserData/Neighborhood.iff";
    const bool isWhole = playedFiles()[file] != before.at(file);  // the kill may have come late: Enter keeps it then
    answerBox("Tidewright Start", isWhole ? "shift+Tab Return" : "Return");  // the last evening was cut off: go back
    answerUntilEditor();
    EXPECT_EQ(differences(before, playedFiles()), "");
    press(teenToAdult, 0, 0, 2);
    chooseFileItem("v");
    findWindow("Tidewright Start");
    const std::string points = ownDirectory() + "/restore-points/";
    EXPECT_EQ(run("grep -l 'ended no' '" + points + "'*.txt | wc -l"), "0") << "also if the box is never closed";
    answerStart();
    EXPECT_EQ(waitForExit(), 0);
    EXPECT_EQ(differences(before, playedFiles()), "UserData/Characters/User00013.iff\nUserData/Neighborhood.iff\n");

    // A free chunk in the file's header: a Move Out cuts off all that follows.
    std::fstream(neighborhood, std::ios::in | std::ios::out | std::ios::binary).seekp(20) << "XXXX";
    const Tree marked = playedFiles();
    launch("tidewright-start");
    answerUntilEditor();  // a warning
    press(moveOut, 0, 0, 0);
    chooseFileItem("v");
    answerStart();  // what is lost: OK goes back
    answerStart();
    EXPECT_EQ(waitForExit(), 0);
    EXPECT_EQ(differences(marked, playedFiles()), "");
}

// By mouse where the program is native, by keys on Windows.
TEST_F(Stories, GoingBackBeforeTheFirstOfTwoEveningsGivesBothSimsBack) {
    prepareGame();
    const Tree before = playedFiles();
    const auto playEvening = [this](const Button& button, int sim) {
        launch("tidewright-start --yes");
        useWindow();
        press(button, 0, 0, sim);
        chooseFileItem("v");
        EXPECT_EQ(waitForExit(), 0);
    };
    playEvening(childToTeen, 3);  // Clover
    playEvening(teenToAdult, 2);  // Bramble
    EXPECT_NE(playedFiles(), before);
    launch("tidewright-restore");
    const std::string window = findWindow("Go Back - Tidewright");
    placeWindow(window);
    byKeys_ = windowsPrograms != nullptr;
    clientTop_ = 5;
    pickEntry(0, 1);
    waitUntil("the question opens", [&] {  // a click is lost while the list closes
        byKeys_ ? void(act("key Tab Tab space")) : clickAt(70, 275);
        usleep(1'000'000);
        return !act("search --onlyvisible --name '^Tidewright Go Back$' 2>/dev/null | tail -n 1").empty();
    });
    answerBox("Tidewright Go Back", "Return");
    answerBox("Tidewright Go Back", "Return");  // it is done
    EXPECT_EQ(differences(before, playedFiles()), "");
    run(byKeys_ ? "xdotool windowfocus --sync " + window + " key alt+F4"
                : "kill $(xdotool getwindowpid " + window + ")");
    EXPECT_EQ(waitForExit(), byKeys_ ? 0 : -128);
    byKeys_ = false;
    launch("tidewright-start --yes");
    useWindow();
    press(childToTeen, 0, 0, 3);  // a child again
    chooseFileItem("x");
    EXPECT_EQ(waitForExit(), 0);
}

TEST_F(Stories, AnEveningInALaterEdition) {
    writeInstallation(prefix_, true);
    launch("tidewright-start --yes --editions later");
    useWindow();
    press(childToTeen, 3, 0, 3);  // Rip
    press(teenToAdult, 3, 0, 4);  // Kelp
    press(moveOut, 3, 0, 0);      // Samphire
    chooseFileItem("v");
    EXPECT_EQ(waitForExit(), 0);
    for (const char* const news : {"Rip Saltmarsh is a teenager now.", "Kelp Saltmarsh is an adult now.",
                                   "Samphire Saltmarsh moved into a household of her own, with 20,000."})
        EXPECT_TRUE(isSaid(news)) << news;
}

// A Wayland session without an X server. The server's protocol has the titles of windows; the first one is that of the
// box about an unprepared game.
using Wayland = Stories;
TEST_F(Wayland, ServesWhereThereIsNoXServer) {
    const ScopedVariable prefix("WINEPREFIX", prefix_), runtime("XDG_RUNTIME_DIR", files_.path());
    const ScopedVariable programs("PROGRAMS", buildDirectory().string());
    run(R"(
        unset DISPLAY QT_QPA_PLATFORM
        cd "$XDG_RUNTIME_DIR" && chmod 700 . || exit
        weston --backend=headless-backend.so --socket=session >weston.log 2>&1 &
        for tenth in $(seq 200); do [ -S session ] && break; sleep 0.1; done
        WAYLAND_DISPLAY=session WAYLAND_DEBUG=1 timeout 20 "$PROGRAMS/tidewright" 2>&1 |
            grep -q -m 1 'set_title("Installation Problem")'
        found=$?
        kill $! && exit $found)");
}

}  // namespace
