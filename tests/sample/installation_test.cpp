#include "sample/installation.h"

#include <gtest/gtest.h>

#include <map>

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

TEST(InstallationTest, HasSimsOfEveryKind) {
    // What the program makes of each kind, in the order of SampleKind: the stage, and letters from the body's mesh. It
    // finds no member of the last two kinds.
    const std::vector<std::pair<std::int32_t, std::string>> seen = {
        {stageNumber::adult, "fit"}, {stageNumber::teen, "TNR"},  {stageNumber::teen, "TNR"},
        {stageNumber::child, "chd"}, {stageNumber::child, "chd"}, {stageNumber::child, "chd"},
        {stageNumber::pet, "_sm"},   {stageNumber::unknown, ""}};
    const TempDirectory files;
    ASSERT_TRUE(writeInstallation(files.path("prefix")));
    for (const CastNeighborhood& cast : sampleCast()) {
        Neighborhood neighborhood;
        const std::filesystem::path directory = gameDirectory(files.path("prefix")) / cast.directory;
        ASSERT_EQ(neighborhood.load(directory.string().c_str(), "neighborhood.iff"), 0);
        std::int32_t listed = 0;
        for (const CastFamily& family : cast.families) {
            if (family.name == "Default") continue;
            Family& read = *neighborhood.family(listed++);
            ASSERT_EQ(read.memberCount(), static_cast<std::int32_t>(family.members.size()));
            for (const CastSim& sim : family.members) {
                SCOPED_TRACE(sim.name);
                Sim* member = read.member(static_cast<std::int32_t>(&sim - family.members.data()));
                ASSERT_EQ(member != nullptr, static_cast<std::size_t>(sim.kind) < seen.size());
                if (member == nullptr) continue;
                const BodyStrings* body = member->bodyStrings();
                const std::string mesh = body == nullptr ? "......" : std::string(body->slot(bodySlot::bodyMesh));
                EXPECT_EQ(std::pair(member->stage(), mesh.substr(6, 3)), seen[static_cast<std::size_t>(sim.kind)]);
                EXPECT_EQ((std::map<int, std::string>{{1, "lgt"}, {2, "drk"}, {3, "med"}}[member->skinTone()]),
                          sim.tone);
                const bool isOld = member->stage() == stageNumber::child && body->version() < 7;
                EXPECT_EQ(isOld, sim.kind == SampleKind::childOfOldMeshes);
            }
        }
    }
}

}  // namespace
