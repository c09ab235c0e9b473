// One saved tree, two programs: the native and the Windows program are given the same installation and the same picks,
// and what they save is compared byte for byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <utility>
#include <vector>

#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"
#include "tests/support/iff_walk.h"
#include "tests/support/tree.h"

namespace {

namespace fs = std::filesystem;

struct Step {
    int neighborhood, family, sim;
    void (RunningProgram::*click)() const;
};

// Two runs, each saved at its end. Of their outcome only Rye's outfit hangs on a draw.
const std::vector<Step> runs[] = {
    {{0, 0, 2, &RunningProgram::clickTeenToAdult},  // Bramble
     {1, 1, 2, &RunningProgram::clickChildToTeen},  // Rye
     {0, 0, 0, &RunningProgram::clickMoveOut},      // Hazel
     {0, 1, 1, &RunningProgram::clickMoveOut},      // Antonia
     {1, 0, 1, &RunningProgram::clickMoveOut}},     // Peregrine
    {{2, 0, 2, &RunningProgram::clickTeenToAdult},  // Heron
     {0, 0, 1, &RunningProgram::clickMoveOut},      // Bramble
     {2, 0, 1, &RunningProgram::clickMoveOut}},     // Willow
};

// Gives new backups names without a date: the programs don't run in one minute.
void nameBackups(const fs::path& game) {
    const std::regex dated(R"((.*Backups/\w+)[.0-9]+iff)");
    for (const auto& [name, bytes] : treeOf(game)) {
        if (!std::regex_match(name, dated)) continue;
        std::string undated = std::regex_replace(name, dated, "$1");
        while (fs::exists(game / undated))
            undated += "-next";
        fs::rename(game / name, game / undated);
    }
}

// Takes the outfit of a new teen boy of medium tone out of his body strings. The fill at their end, 1041 bytes behind
// the word "adult", makes up for it.
void takeOutfitAway(Bytes& character) {
    const std::regex skin(R"(=b614maTNRmed_(hip01|TDWTeenSk8boy|TDWTeenWeekend)\0)");
    const std::string text = textAt(character);
    std::smatch found;
    ASSERT_TRUE(std::regex_search(text, found, skin));
    character.insert(character.begin() + 54102 + 1041, static_cast<std::size_t>(found.length(1)), 0xA3);
    const auto outfit = character.begin() + found.position(1);
    character.erase(outfit, outfit + found.length(1));
}

TEST_F(Stories, TwoProgramsSaveOneTree) {
    ASSERT_NE(windowsProgram, nullptr) << "TIDEWRIGHT_EXE names no Windows program";
    const Desktop desktop;
    const auto savedBy = [&](const char* windowsExe) {
        writeInstallation(prefix());
        for (const auto& run : runs) {
            RunningProgram program(prefix(), toolDirectory(), &desktop, windowsExe);
            for (const Step& step : run) {
                program.pick(step.neighborhood, step.family, step.sim);
                (program.*step.click)();
            }
            program.chooseFileItem('v');
            EXPECT_EQ(program.waitForExit(), 0);
            nameBackups(game());
        }
        Tree saved = treeOf(game());
        takeOutfitAway(saved["UserData2/Characters/user00010.iff"]);
        return saved;
    };
    const Tree native = savedBy(nullptr);
    EXPECT_TRUE(native.contains("UserData/Characters/Backups/user00013"));
    EXPECT_TRUE(native.contains("UserData3/Characters/Backups/user00003"));
    const std::pair<std::string, int> familyCounts[] = {
        {"UserData", 6 + 3}, {"UserData2", 4 + 1}, {"UserData3", 3 + 1}};
    for (const auto& [directory, count] : familyCounts) {
        const IffWalk walk = walkIff(native.at(directory + "/neighborhood.iff"));
        EXPECT_EQ(std::ranges::count(walk.chunks, "FAMI", &WalkedChunk::type), count) << directory;
    }
    EXPECT_EQ(differences(native, savedBy(windowsProgram)), "");
}

}  // namespace
