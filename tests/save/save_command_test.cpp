#include "save/save_command.h"

#include "tests/save/saved_files.h"
#include "world/neighborhoods.h"

namespace {

class SaveCommandTest : public SaveTest {};

TEST_F(SaveCommandTest, SavesEachListedNeighborhoodThatHasChanged) {
    const TempDirectory files;
    const SampleCharacter character{.recordName = "user00001", .hasPictures = false};
    const NeighborhoodFile built = makeNeighborhoodFile(householdOf({character}));
    for (const std::string directory : {"UserData", "UserData2", "UserData3", "UserData4", "UserData5", "UserData6"}) {
        files.write(directory + "/neighborhood.iff", built.bytes);
        files.write(directory + "/Characters/user00001.iff", makeCharacterFile(character).bytes);
    }
    writeTemplates(files);
    loadNeighborhoods((files.path() + "\\").c_str(), files.path().c_str());
    ASSERT_EQ(listedNeighborhoodCount(), 6);
    for (const std::size_t slot : {0, 2, 3, 5}) {
        ASSERT_NE(neighborhoods[slot]->sim(0)->bodyStrings(), nullptr);
        neighborhoods[slot]->sim(0)->setStage(stageNumber::teen, nullptr);
    }
    files.remove("UserData");                              // nothing of it may be written anywhere else
    files.makeDirectory("UserData3/TMPneighborhood.iff");  // a failure that doesn't stop the next
    neighborhoods[4].reset();                              // ends the list, so the sixth isn't saved

    Tree expected = treeOf(files);
    expected["UserData4/Backups/"] = expected["UserData4/Characters/Backups/"] = {};
    expected["UserData4/Backups/neighborhood.200235.147.iff"] = built.bytes;
    expected["UserData4/Characters/Backups/user00001.200235.iff"] = makeCharacterFile(character).bytes;
    expected["UserData4/Characters/user00001.iff"] = savedCharacter(character);
    overwrite(expected["UserData4/neighborhood.iff"], built.neighborOffsets[0], savedRecord({}, true));
    backupClock().stopAt(timeOf(2002, 3, 5, 14, 7));
    saveAll();
    EXPECT_EQ(differences(expected, treeOf(files)), "");
    EXPECT_EQ(std::filesystem::current_path(), files.path("UserData4"));
    EXPECT_TRUE(neighborhoods[0]->isDirty() && neighborhoods[2]->isDirty() && !neighborhoods[3]->isDirty());

    neighborhoods[1]->save();  // a clean one
    EXPECT_EQ(std::filesystem::current_path(), files.path("UserData2"));
    EXPECT_EQ(differences(expected, treeOf(files)), "");
    neighborhoods = {};
}

}  // namespace
