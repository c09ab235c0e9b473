#include "sample/installation.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "tests/support/iff_walk.h"
#include "tests/support/temp_directory.h"

namespace {

namespace fs = std::filesystem;

Bytes bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::map<fs::path, Bytes> filesBelow(const fs::path& directory) {
    std::map<fs::path, Bytes> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory)) {
        if (entry.is_regular_file()) files[fs::relative(entry.path(), directory)] = bytesOf(entry.path());
    }
    return files;
}

class InstallationTest : public ::testing::Test {
 protected:
    const TempDirectory directory_;
    const fs::path prefix_ = directory_.path("prefix");
};

TEST_F(InstallationTest, WritesTheSameBytesAgainAndNothingElse) {
    ASSERT_TRUE(writeInstallation(prefix_));
    const auto first = filesBelow(prefix_);
    std::ofstream(gameDirectory(prefix_) / "UserData" / "Neighborhood.iff") << "changed";
    std::ofstream(gameDirectory(prefix_) / "UserData" / "stray") << "stray";
    ASSERT_TRUE(writeInstallation(prefix_));
    EXPECT_EQ(filesBelow(prefix_), first);
    EXPECT_GT(first.size(), 40U);
}

TEST_F(InstallationTest, LeavesADirectoryOfOthersAlone) {
    fs::create_directories(prefix_);
    std::ofstream(prefix_ / "system.reg") << "a player's own";
    EXPECT_FALSE(writeInstallation(prefix_));
    EXPECT_EQ(filesBelow(prefix_).size(), 1U);
    EXPECT_EQ(bytesOf(prefix_ / "system.reg").size(), 14U);
}

TEST_F(InstallationTest, EachFileIsValidAndEachReadableMemberIsFound) {
    ASSERT_TRUE(writeInstallation(prefix_));
    std::set<std::string> stages;
    std::set<std::size_t> sizes;
    for (const CastNeighborhood& cast : sampleCast()) {
        const fs::path directory = gameDirectory(prefix_) / cast.directory;
        const IffWalk walk = walkIff(bytesOf(directory / "Neighborhood.iff"));
        EXPECT_EQ(walk.fault, "") << cast.directory;
        EXPECT_EQ(walk.find("XXXX", 4101).size > 0, cast.freeRoom) << cast.directory;
        EXPECT_EQ(walk.find("rsmp", 0).size > 0, cast.map) << cast.directory;
        for (const CastFamily& family : cast.families) {
            sizes.insert(family.members.size());
            for (const CastSim& sim : family.members) {
                SCOPED_TRACE(sim.name);
                stages.insert(stageWord(sim.kind));
                const std::string fileName = "U" + castRecordName(sim).substr(1) + ".iff";
                const Bytes file = bytesOf(directory / "Characters" / fileName);
                EXPECT_EQ(file.empty(), isUnreadable(sim.kind));
                if (file.empty()) continue;
                const IffWalk character = walkIff(file);
                EXPECT_EQ(character.fault, "");
                EXPECT_EQ(walkTexts(file, character.find("CTSS", 2000)).front(), sim.name);
            }
        }
    }
    EXPECT_EQ(sizes, (std::set<std::size_t>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(stages, (std::set<std::string>{"", "adult", "child", "not applicable (pet)", "teenager", "unknown"}));
}

TEST_F(InstallationTest, ALargeOneIsOfRealSize) {
    ASSERT_TRUE(writeLargeInstallation(prefix_, 1));
    const fs::path directory = gameDirectory(prefix_) / "UserData";
    const Bytes neighborhood = bytesOf(directory / "Neighborhood.iff");
    EXPECT_EQ(neighborhood.size(), 566000U);
    EXPECT_EQ(walkIff(neighborhood).fault, "");
    std::uintmax_t sum = 0;
    for (const auto& [path, bytes] : filesBelow(directory / "Characters")) {
        EXPECT_TRUE(bytes.size() >= 50000 && bytes.size() <= 371000) << path;
        sum += bytes.size();
    }
    EXPECT_NEAR(static_cast<double>(sum), 45e6, 2e6);
}

}  // namespace
