#include "save/save_command.h"

#include "tests/save/save_test.h"
#include "world/neighborhoods.h"

namespace {

using SaveCommandTest = SaveTest;

TEST_F(SaveCommandTest, SavesEachListedNeighborhoodThatHasChanged) {
    const TempDirectory files;
    for (const std::string directory : {"UserData", "UserData2", "UserData3"}) {
        files.write(directory + "/neighborhood.iff", makeNeighborhoodFile({.neighbors = {{}}}).bytes);
        files.write(directory + "/Characters/user00001.iff", makeCharacterFile().bytes);
    }
    EXPECT_TRUE(writeTemplates(files.path()));
    loadNeighborhoods((files.path() + "\\").c_str(), files.path().c_str());
    change(*neighborhoods[0]->sim(0), stageNumber::teen);
    change(*neighborhoods[2]->sim(0), stageNumber::teen);
    files.remove("UserData");  // doesn't stop the next, and nothing of it may be written anywhere else

    const Tree before = treeOf(files.path());
    backupClock().stopAt({2002, 12, 0, 31, 0, 0, 0, 0});
    saveAll();
    EXPECT_EQ(differences(before, treeOf(files.path())),
              "UserData3/Backups/neighborhood.20021231.00.iff\nUserData3/Characters/Backups/user00001.20021231.iff\n"
              "UserData3/Characters/user00001.iff\nUserData3/neighborhood.iff\n");
    EXPECT_EQ(std::filesystem::current_path(), files.path("UserData3"));
    neighborhoods = {};
}

}  // namespace
