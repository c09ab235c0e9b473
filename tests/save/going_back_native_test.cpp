// The guide's steps for going back by hand, on files named and dated as saves leave them.
#include <chrono>
#include <cstdlib>

#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

// The shell's lines of that chapter, as a script.
std::string stepsOfGuide() {
    const Bytes bytes = bytesOfFile(TIDEWRIGHT_GUIDE);
    const std::string guide(bytes.begin(), bytes.end()), mark = "```\n";
    const std::size_t begin = guide.find(mark, guide.find("### Going back by hand")) + mark.size();
    return guide.substr(begin, guide.find(mark, begin) - begin);
}

TEST(GoingBackByHandTest, TheStepsOfTheGuideGiveEachSimTheVersionBeforeThatSave) {
    const auto utc = [](int month, int day, int hour, int minute) {
        const std::chrono::sys_seconds midnight = std::chrono::sys_days(std::chrono::year(2026) / month / day);
        return fs::file_time_type::clock::from_sys(midnight + std::chrono::hours(hour) + std::chrono::minutes(minute));
    };
    const std::tuple<std::string, fs::file_time_type, const char*> files[] = {
        {"NEIGHBORHOOD.IFF", utc(12, 10, 0, 0), "new"},  // as some games spell it
        {"Backups/neighborhood.20261124.2154.iff", utc(11, 24, 21, 54), "wanted"},
        {"Characters/User00001.iff", utc(12, 10, 0, 0), "new"},
        {"Characters/Backups/user00001.20261123.iff", utc(11, 23, 10, 5), "old"},
        {"Characters/Backups/user00001.20261124.iff", utc(11, 24, 21, 54), "wanted"},
        {"Characters/Backups/user00001.20261210.iff", utc(12, 10, 0, 0), "later"},  // sorts before the 9th
        {"Characters/Backups/user00001.2026129.iff", utc(12, 9, 9, 5), "later"},
        {"Characters/user00002.iff", utc(12, 10, 0, 0), "new"},
        {"Characters/Backups/user00002.20261124.iff", utc(11, 24, 21, 53), "old"},
        {"Characters/Backups/user00002.20261210.iff", utc(12, 10, 0, 0), "later"},
        {"Characters/Backups/user00002.2026129.iff", utc(12, 9, 9, 5), "wanted"},
        {"Characters/user00003.iff", utc(11, 23, 10, 5), "wanted"},
        {"Characters/Backups/user00003.20261123.iff", utc(11, 23, 10, 5), "old"},
        {"Characters/Backups/user00004.20261210.iff", utc(12, 10, 0, 0), "wanted"}};  // whose file is gone
    const TempDirectory home;
    const std::string userData = ".wine/drive_c/Program Files (x86)/Maxis/The Sims/UserData/";
    for (const auto& [name, time, bytes] : files) {
        home.write(userData + name, bytes);
        fs::last_write_time(home.path(userData + name), time);
    }
    home.write("steps", stepsOfGuide());
    const ScopedVariable variables[] = {{"HOME", home.path()}, {"TZ", "America/Lima"}};
    ASSERT_EQ(std::system(("sh -eu '" + home.path("steps") + "'").c_str()), 0);
    for (const char* const live : {"NEIGHBORHOOD.IFF", "Characters/User00001.iff", "Characters/user00002.iff",
                                   "Characters/user00003.iff", "Characters/user00004.iff"})
        EXPECT_EQ(home.bytesOf(userData + live), bytesFrom("wanted")) << live;
    home.remove(".wine");
    EXPECT_EQ(std::ranges::count(treeOf(home.path()), bytesFrom("new"), &Tree::value_type::second), 3) << "a copy";
}

}  // namespace
