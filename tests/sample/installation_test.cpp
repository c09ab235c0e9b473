#include "sample/installation.h"

#include <gtest/gtest.h>

#include "tests/support/iff_walk.h"
#include "tests/support/temp_directory.h"
#include "tests/support/tree.h"

namespace {

// The files, each of the game's own valid.
Tree validTreeOf(const std::filesystem::path& directory) {
    const Tree files = treeOf(directory);
    for (const auto& [name, bytes] : files)
        EXPECT_TRUE(!name.ends_with(".iff") || walkIff(bytes).fault.empty()) << name << ": " << walkIff(bytes).fault;
    return files;
}

TEST(InstallationTest, IsWrittenAgainAsItWasAndNeverOverThatOfOthers) {
    const TempDirectory files;
    const std::filesystem::path prefix = files.path("prefix"), userData = gameDirectory(prefix) / "UserData";
    ASSERT_TRUE(writeInstallation(prefix));
    const Tree first = validTreeOf(prefix);
    EXPECT_GT(first.size(), 40U);
    std::ofstream(userData / "Neighborhood.iff") << "changed";
    std::ofstream(userData / "stray") << "stray";
    ASSERT_TRUE(writeInstallation(prefix));
    EXPECT_EQ(treeOf(prefix), first);

    ASSERT_TRUE(writeLargeInstallation(prefix, 1));
    EXPECT_EQ(validTreeOf(userData).at("Neighborhood.iff").size(), 566000U);

    files.write("others/system.reg", "a player's own");
    EXPECT_FALSE(writeInstallation(files.path("others")));
    EXPECT_EQ(treeOf(files.path("others")), (Tree{{"system.reg", bytesFrom("a player's own")}}));
}

}  // namespace
