// The guide's steps for going back by hand, on the backups of real saves.
#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "sample/fact_template.h"
#include "save/backup_names.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/test_neighborhood.h"

namespace {

// Changes these Sims and saves, on this day of 2026 in UTC. Each save has a template of its own, so that no two
// versions of a file are the same. New files get the time of the save, as if it hadn't come right after the one before.
void saveAt(TestNeighborhood& test, WORD month, WORD day, WORD hour, WORD minute, const std::vector<int>& sims) {
    Bytes made = makeFactTemplate();
    overwrite(made, made.size() / 2, {static_cast<std::uint8_t>(day), static_cast<std::uint8_t>(minute)});
    test.files().write("Template.iff", made);
    for (const int sim : sims) {
        ASSERT_NE(test.sim(sim).bodyStrings(), nullptr);
        test.sim(sim).setStage(day % 2 == 1 ? stageNumber::teen : stageNumber::adult, nullptr);
    }
    const auto begin = fs::file_time_type::clock::now() - std::chrono::milliseconds(100);
    backupClock().stopAt({2026, month, 0, day, hour, minute, 0, 0});
    test->save(test->toolDirectory());
    backupClock().followSystem();
    const std::chrono::sys_seconds time = std::chrono::sys_days(std::chrono::year(2026) / month / day) +
                                          std::chrono::hours(hour) + std::chrono::minutes(minute);
    for (const auto& entry : fs::recursive_directory_iterator(test.files().path("UserData")))
        if (entry.is_regular_file() && std::chrono::abs(entry.last_write_time() - begin) < std::chrono::seconds(60))
            fs::last_write_time(entry, fs::file_time_type::clock::from_sys(time));
}

Tree liveFiles(const TestNeighborhood& test) {
    Tree tree = treeOf(test.files().path("UserData"));
    std::erase_if(tree, [](const auto& file) { return file.first.find("Backups/") != std::string::npos; });
    return tree;
}

// The shell's lines of that chapter, as a script.
std::string stepsOfGuide() {
    const Bytes bytes = bytesOfFile(TIDEWRIGHT_GUIDE);
    const std::string guide(bytes.begin(), bytes.end()), mark = "```\n";
    const std::size_t begin = guide.find(mark, guide.find("### Going back by hand")) + mark.size();
    return guide.substr(begin, guide.find(mark, begin) - begin);
}

TEST(GoingBackByHandTest, TheStepsOfTheGuideGiveEachSimTheVersionBeforeThatSave) {
    std::vector<SampleCharacter> cast;
    for (std::uint32_t number = 1; number <= 5; ++number)
        cast.push_back({.recordName = "user0000" + std::to_string(number), .guid = number, .hasPictures = false});
    TestNeighborhood test(householdOf(cast), cast);
    const std::string userData = test.files().path("UserData/");
    fs::rename(userData + "neighborhood.iff", userData + "NEIGHBORHOOD.IFF");  // as some games spell them
    fs::rename(userData + "Characters/user00001.iff", userData + "Characters/User00001.iff");
    test.load();
    saveAt(test, 11, 23, 10, 5, {0, 1, 4});
    saveAt(test, 11, 24, 8, 0, {2});
    const Tree before = liveFiles(test);
    saveAt(test, 11, 24, 21, 54, {0});
    saveAt(test, 11, 24, 22, 10, {1});
    saveAt(test, 12, 9, 9, 5, {0, 2});
    saveAt(test, 12, 10, 0, 0, {0, 1, 2, 3});  // the names sort before those of the 9th
    const Tree now = liveFiles(test);
    EXPECT_EQ(before.size(), 6U);

    const TempDirectory home;
    const std::string maxis = ".wine/drive_c/Program Files (x86)/Maxis";
    home.makeDirectory(maxis);
    fs::create_directory_symlink(test.files().path(), home.path(maxis + "/The Sims"));
    home.write("steps", stepsOfGuide());
    const ScopedVariable variables[] = {{"HOME", home.path()}, {"TZ", "America/Lima"}};
    ASSERT_EQ(std::system(("sh -eu '" + home.path("steps") + "'").c_str()), 0);
    EXPECT_EQ(differences(before, liveFiles(test)), "");
    EXPECT_TRUE(std::ranges::any_of(treeOf(home.path()),
                                    [&](const auto& file) { return file.second == now.at("NEIGHBORHOOD.IFF"); }));
}

}  // namespace
