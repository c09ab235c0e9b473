#include "sample/installation.h"

#include <gtest/gtest.h>

#include "tests/support/iff_walk.h"
#include "tests/support/temp_directory.h"
#include "tests/support/tree.h"

namespace {

class InstallationTest : public ::testing::Test {
 protected:
    const TempDirectory directory_;
    const std::filesystem::path prefix_ = directory_.path("prefix");
};

TEST_F(InstallationTest, WritesTheSameValidFilesAgainAndNothingElse) {
    ASSERT_TRUE(writeInstallation(prefix_));
    const Tree first = treeOf(prefix_);
    EXPECT_GT(first.size(), 40U);
    for (const auto& [name, bytes] : first) {
        EXPECT_TRUE(!name.ends_with(".iff") || walkIff(bytes).fault.empty()) << name << ": " << walkIff(bytes).fault;
    }
    std::ofstream(gameDirectory(prefix_) / "UserData" / "Neighborhood.iff") << "changed";
    std::ofstream(gameDirectory(prefix_) / "UserData" / "stray") << "stray";
    ASSERT_TRUE(writeInstallation(prefix_));
    EXPECT_EQ(treeOf(prefix_), first);
}

TEST_F(InstallationTest, LeavesADirectoryOfOthersAlone) {
    directory_.write("prefix/system.reg", "a player's own");
    EXPECT_FALSE(writeInstallation(prefix_));
    EXPECT_EQ(treeOf(prefix_), (Tree{{"system.reg", bytesFrom("a player's own")}}));
}

TEST_F(InstallationTest, ALargeOneIsOfRealSize) {
    ASSERT_TRUE(writeLargeInstallation(prefix_, 1));
    const Tree files = treeOf(gameDirectory(prefix_) / "UserData");
    EXPECT_EQ(files.at("Neighborhood.iff").size(), 566000U);
    std::size_t sum = 0;
    for (const auto& [name, bytes] : files)
        sum += bytes.size();
    EXPECT_NEAR(static_cast<double>(sum), 45.6e6, 2e6);
}

}  // namespace
