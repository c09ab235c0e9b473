// The native and the Windows program get the same installation and the same picks, and what they save is compared byte
// for byte.
#include <gtest/gtest.h>

#include <regex>
#include <vector>

#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"

namespace {

namespace fs = std::filesystem;

struct Step {
    int neighborhood, family, sim;
    void (RunningProgram::*click)() const;
};

// Two runs, each saved at its end. Nothing here is drawn by chance, as a new teen's outfit is.
const std::vector<Step> runs[] = {
    {{0, 0, 2, &RunningProgram::clickTeenToAdult},  // Bramble
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
        return treeOf(game());
    };
    const Tree native = savedBy(nullptr);
    EXPECT_TRUE(native.contains("UserData/Backups/neighborhood-next")) << "not saved twice";
    EXPECT_EQ(differences(native, savedBy(windowsProgram)), "");
}

}  // namespace
