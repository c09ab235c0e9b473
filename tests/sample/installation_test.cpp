#include "sample/installation.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/iff_walk.h"
#include "tests/support/temp_directory.h"
#include "tests/support/tree.h"
#include "world/neighborhood.h"

namespace {

// The files of a directory. Each IFF file must be valid.
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
    files.write("prefix/stray", "stray");
    ASSERT_TRUE(writeInstallation(prefix));
    EXPECT_EQ(treeOf(prefix), first);

    ASSERT_TRUE(writeLargeInstallation(prefix, 1));
    EXPECT_EQ(validTreeOf(userData).at("Neighborhood.iff").size(), 566000U);

    files.write("others/system.reg", "a player's own");
    EXPECT_FALSE(writeInstallation(files.path("others")));
    EXPECT_EQ(treeOf(files.path("others")), (Tree{{"system.reg", bytesFrom("a player's own")}}));
}

TEST(InstallationTest, HasSimsOfEveryKind) {
    const TempDirectory files;
    ASSERT_TRUE(writeInstallation(files.path("prefix")));
    std::set<std::string> kinds;  // stage, age, letters from the body's mesh and its version
    for (const char* directory : {"UserData", "UserData2", "UserData3"}) {
        Neighborhood neighborhood;
        const std::filesystem::path path = gameDirectory(files.path("prefix")) / directory;
        ASSERT_EQ(neighborhood.load(path.string().c_str(), "neighborhood.iff"), 0);
        for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
            Sim& sim = *neighborhood.sim(i);
            std::string kind = std::to_string(sim.stage()) + " " + std::to_string(sim.age());
            if (const BodyStrings* body = sim.bodyStrings()) {
                kind += " " + std::string(body->slot(bodySlot::bodyMesh)).substr(6, 3);
                kind += " " + std::to_string(body->version());
                const char* tones[] = {"", "lgt", "drk", "med"};
                EXPECT_STREQ(body->slot(bodySlot::skinTone), tones[sim.skinTone()]) << sim.name();
            }
            kinds.insert(kind);
        }
    }
    EXPECT_EQ(kinds, (std::set<std::string>{"-1 27 _sm 7", "0 27", "3 9 chd 6", "3 9 chd 7", "5 18 TNR 7", "5 27 TNR 7",
                                            "6 27 fit 5", "6 27 fit 7"}));
}

}  // namespace
