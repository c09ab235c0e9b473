// One saved tree, two programs: the native and the Windows program are given the same installation and the same picks,
// and what they save is compared byte for byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <utility>

#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"
#include "tests/support/iff_walk.h"
#include "tests/support/tree.h"

namespace {

namespace fs = std::filesystem;

// Gives the backups made since the last call a name without their date: the programs don't run in one minute.
void nameBackups(const fs::path& game, const std::string& session) {
    const std::regex dated(R"((.*Backups/\w+)[.0-9]+iff)");
    for (const auto& [name, bytes] : treeOf(game)) {
        if (std::regex_match(name, dated))
            fs::rename(game / name, game / std::regex_replace(name, dated, "$1" + session));
    }
}

// Takes the outfit of a new teen boy of medium tone out of his body strings; it is drawn. The fill at their end, 1041
// bytes behind the word "adult", makes up for it.
void takeOutfitAway(Bytes& character) {
    const std::regex skin(R"(=b614maTNRmed_(hip01|TDWTeenSk8boy|TDWTeenWeekend)\0)");
    const std::string text = textAt(character);
    std::smatch found;
    ASSERT_TRUE(std::regex_search(text, found, skin));
    character.insert(character.begin() + 54102 + 1041, static_cast<std::size_t>(found.length(1)), 0xA3);
    const auto outfit = character.begin() + found.position(1);
    character.erase(outfit, outfit + found.length(1));
}

class TwoPrograms : public Stories {
 protected:
    // What the program saves in two sessions on a new installation; no other outcome hangs on a draw.
    Tree savedBy(const char* windowsExe) {
        writeInstallation(prefix());
        {
            RunningProgram program(prefix(), toolDirectory(), &desktop_, windowsExe);
            program.pick(0, 0, 2);
            program.clickTeenToAdult();  // Bramble
            program.pick(1, 1, 2);
            program.clickChildToTeen();  // Rye
            program.pick(2, 0, 3);
            program.clickChildToTeen();  // Minnow, whose head is in no set
            program.answerBox("Proceed[?]", "Return");
            program.pick(0, 0, 0);
            program.clickMoveOut();  // Hazel
            program.pick(0, 1, 1);
            program.clickMoveOut();  // Antonia
            program.pick(1, 0, 1);
            program.clickMoveOut();  // Peregrine
            program.chooseFileItem('s');
            program.closeWindow();
            EXPECT_EQ(program.waitForExit(), 0);
        }
        nameBackups(game(), "-first");
        {
            RunningProgram program(prefix(), toolDirectory(), &desktop_, windowsExe);
            program.pick(2, 0, 2);
            program.clickTeenToAdult();  // Heron
            program.pick(0, 0, 1);
            program.clickMoveOut();  // Bramble
            program.pick(2, 0, 1);
            program.clickMoveOut();  // Willow
            program.chooseFileItem('v');
            EXPECT_EQ(program.waitForExit(), 0);
        }
        nameBackups(game(), "-second");
        Tree saved = treeOf(game());
        takeOutfitAway(saved["UserData2/Characters/user00010.iff"]);
        takeOutfitAway(saved["UserData3/Characters/user00004.iff"]);
        return saved;
    }

 private:
    Desktop desktop_;
};

TEST_F(TwoPrograms, SaveOneTree) {
    ASSERT_NE(windowsProgram, nullptr) << "TIDEWRIGHT_EXE names no Windows program";
    const Tree native = savedBy(nullptr);
    EXPECT_TRUE(native.contains("UserData/Characters/Backups/user00013-first"));
    EXPECT_TRUE(native.contains("UserData3/Characters/Backups/user00003-second"));
    const std::pair<const char*, int> familyCounts[] = {
        {"UserData", 6 + 3}, {"UserData2", 4 + 1}, {"UserData3", 3 + 1}};
    for (const auto& [directory, count] : familyCounts) {
        const IffWalk walk = walkIff(native.at(directory + std::string("/neighborhood.iff")));
        EXPECT_EQ(std::ranges::count(walk.chunks, "FAMI", &WalkedChunk::type), count) << directory;
    }
    EXPECT_EQ(differences(native, savedBy(windowsProgram)), "");
}

}  // namespace
