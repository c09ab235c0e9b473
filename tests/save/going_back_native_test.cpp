// The guide's steps for going back by hand, on the backups of real saves.
#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "sample/fact_template.h"
#include "save/backup_names.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/test_neighborhood.h"

namespace {

namespace fs = std::filesystem;

class GoingBackByHandTest : public testing::Test {
 public:
    GoingBackByHandTest() {
        test_.files().write("famtemplate", makeFamilyTemplate());
        fs::rename(path("UserData/neighborhood.iff"), path("UserData/Neighborhood.iff"));  // as the game spells them
        fs::rename(path("UserData/Characters/user00001.iff"), path("UserData/Characters/User00001.iff"));
        test_.load();
    }
    ~GoingBackByHandTest() override { backupClock().followSystem(); }

    // Changes these Sims and saves, at this time in UTC. Each save has a template of its own, so that no two versions
    // of a file are the same. New backups get the time of the save, as if it hadn't come right after the one before.
    void saveAt(const SYSTEMTIME& time, const std::vector<int>& sims) {
        Bytes made = makeFactTemplate();
        overwrite(made, made.size() / 2, bytesFrom(std::to_string(++saves_)));
        test_.files().write("Template.iff", made);
        for (const int sim : sims) {
            ASSERT_NE(test_.sim(sim).bodyStrings(), nullptr);
            test_.sim(sim).setStage(saves_ % 2 == 0 ? stageNumber::adult : stageNumber::teen, nullptr);
        }
        backupClock().stopAt(time);
        const auto begin = fs::file_time_type::clock::now() - std::chrono::milliseconds(100);
        test_->save(test_->toolDirectory());
        const auto end = fs::file_time_type::clock::now() + std::chrono::milliseconds(100);
        const auto day = std::chrono::sys_days(std::chrono::year(time.wYear) / time.wMonth / time.wDay);
        const std::chrono::sys_seconds moment =
            day + std::chrono::hours(time.wHour) + std::chrono::minutes(time.wMinute);
        for (const auto& entry : fs::recursive_directory_iterator(path("UserData")))
            if (entry.is_regular_file() && entry.last_write_time() > begin && entry.last_write_time() < end)
                fs::last_write_time(entry, fs::file_time_type::clock::from_sys(moment));
    }

    Tree live() const {
        Tree tree = treeOf(path("UserData"));
        std::erase_if(tree, [](const auto& file) { return file.first.find("Backups/") != std::string::npos; });
        return tree;
    }
    std::string path(const std::string& name) const { return test_.files().path(name); }

 private:
    static std::vector<SampleCharacter> cast() {
        std::vector<SampleCharacter> sims;
        for (std::uint32_t number = 1; number <= 5; ++number)
            sims.push_back({.recordName = "user0000" + std::to_string(number), .guid = number, .hasPictures = false});
        return sims;
    }
    TestNeighborhood test_{householdOf(cast()), cast()};
    int saves_ = 0;
};

// The shell's lines of that chapter, as a script.
std::string stepsOfGuide() {
    const Bytes bytes = bytesOfFile(TIDEWRIGHT_GUIDE);
    const std::string guide(bytes.begin(), bytes.end()), mark = "```\n";
    const std::size_t begin = guide.find(mark, guide.find("### Going back by hand")) + mark.size();
    return guide.substr(begin, guide.find(mark, begin) - begin);
}

TEST_F(GoingBackByHandTest, TheStepsOfTheGuideGiveEachSimTheVersionBeforeThatSave) {
    saveAt({2026, 11, 0, 23, 10, 5, 0, 0}, {0, 1, 4});
    saveAt({2026, 11, 0, 24, 8, 0, 0, 0}, {2});
    const Tree before = live();
    saveAt({2026, 11, 0, 24, 21, 54, 0, 0}, {0});
    saveAt({2026, 11, 0, 24, 22, 10, 0, 0}, {1});
    saveAt({2026, 12, 0, 9, 9, 5, 0, 0}, {0, 2});
    saveAt({2026, 12, 0, 10, 0, 0, 0, 0}, {0, 1, 2, 3});  // its names sort before those of the 9th
    const Tree now = live();
    EXPECT_EQ(before.size(), 6U);

    const TempDirectory home;
    const std::string maxis = ".wine/drive_c/Program Files (x86)/Maxis";
    home.makeDirectory(maxis);
    fs::create_directory_symlink(path(""), home.path(maxis + "/The Sims"));
    home.write("steps", stepsOfGuide());
    const ScopedVariable variables[] = {{"HOME", home.path()}, {"TZ", "America/Lima"}};
    ASSERT_EQ(std::system(("sh -eu '" + home.path("steps") + "'").c_str()), 0);
    EXPECT_EQ(differences(before, live()), "");
    EXPECT_TRUE(std::ranges::any_of(treeOf(home.path()),
                                    [&](const auto& file) { return file.second == now.at("Neighborhood.iff"); }));
}

}  // namespace
