// What is on the disk when a step of a save fails, and what the next save makes of it.
#include "tests/save/changed_household.h"

namespace {

using SaveFailuresTest = ChangedHousehold;

TEST_F(SaveFailuresTest, EachStepLeavesWhatItMust) {
    const std::string annsFile = TestNeighborhood::characterFile("user00001");
    const std::string annsTemporary = TestNeighborhood::characterFile("TMPuser00001");
    // The last two are the sizes of the file: all that is patched in a template, and a byte less.
    enum Obstacle { nothing, aDirectory, aLinkToTheLiveFile, aShortFile = 55'142, theShortestTemplate = 55'143 };
    const struct {
        const char* what;
        Obstacle obstacle;
        std::string name;  // that the obstacle takes
        std::string after, afterTheNext;
    } rows[] = {
        {"no live file", nothing, live, "old; old; gone", allSaved},
        {"no way to make the temporary file", aDirectory, "UserData/TMPneighborhood.iff", nothingSaved, allSaved},
        {"no famtemplate", nothing, "famtemplate", "old; old; old, temporary other bytes; famtemplate\n", allSaved},
        {"a famtemplate of another size", aShortFile, "famtemplate",
         "old; old; old, temporary other bytes; famtemplate\n", allSaved},
        {"a Template.iff that lacks a byte", aShortFile, "Template.iff",
         "old; old; new without both, backup old; Template.iff\n",
         "new, backup old; new, backup old; new, backup new without both"},
        {"a Template.iff that lacks nothing", theShortestTemplate, "Template.iff",
         "other bytes, backup old; other bytes, backup old; new, backup old; Template.iff\n",
         "other bytes, backup old; other bytes, backup old; new, backup old"},
        {"no way to make Ann's temporary file", aDirectory, annsTemporary,
         "old; new, backup old; new without Ann, backup old",
         "new, backup old; new, backup old; new, backup new without Ann"},
        // Her new file waits under its temporary name, and no later save of this run tries again.
        {"no way to install Ann's file", aDirectory, annsFile,
         "gone, temporary new; new, backup old; new without Ann, backup old",
         "old, temporary new; new, backup old; new without Ann, backup new without Ann"},
        {"no directory for the characters' backups", aShortFile, "UserData/Characters/Backups",
         "new; new; new, backup old; UserData/Characters/Backups\n", "new; new; new, backup old"},
        {"no way to back the neighborhood up", aDirectory, backup, "new, backup old; new, backup old; new",
         "new, backup old; new, backup old; new"},
        {"a temporary name that leads to the live file", aLinkToTheLiveFile, "UserData/TMPneighborhood.iff",
         "old; old; old, temporary old", allSaved},
        {"a temporary name that leads to Ann's file", aLinkToTheLiveFile, annsTemporary,
         "old, temporary old; new, backup old; new without Ann, backup old",
         "new, backup old; new, backup old; new, backup new without Ann"},
        {"a backup's name that leads to the live file", aLinkToTheLiveFile, backup, allSaved,
         "new, backup old; new, backup old; new"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        start();
        const bool existed = files().exists(row.name);
        if (existed) files().remove(row.name);
        if (row.obstacle == aDirectory) files().makeDirectory(row.name);
        if (row.obstacle == aLinkToTheLiveFile) files().link(row.name, row.name == annsTemporary ? annsFile : live);
        if (row.obstacle > aLinkToTheLiveFile) files().write(row.name, Bytes(row.obstacle));
        saveAt(7);
        EXPECT_EQ(states(), row.after);

        if (files().exists(row.name)) files().remove(row.name);
        if (existed) files().write(row.name, original().at(row.name));
        saveAt(7);
        EXPECT_EQ(states(), row.afterTheNext);
    }
}

// The game doesn't run when the program starts; it may have run by the time of the save.
TEST_F(SaveFailuresTest, ALiveFileThatIsNotTheOneReadIsLeftAlone) {
    start();
    const FamilyOffsets family = built().families[0];
    const std::pair<const char*, std::size_t> changedPlaces[] = {{"a Sim's name", built().neighborOffsets[0] + 8},
                                                                 {"the free chunk", built().freeRoomOffset},
                                                                 {"a family's number", family.record + 8},
                                                                 {"a family's size", family.memberTable - 4}};
    for (const auto& [what, offset] : changedPlaces) {
        SCOPED_TRACE(what);
        start();
        Bytes changed = built().bytes;
        overwrite(changed, offset, u16(9));
        files().write(live, changed);
        saveAt(7);
        EXPECT_EQ(files().bytesOf(live), changed);
        EXPECT_EQ(states(), "old; old; other bytes");
        files().write(live, original().at(live));
        saveAt(7);
        EXPECT_EQ(states(), allSaved);
    }
}

// The first save cuts off the map. If there is one at the second save, the game has written the file anew.
TEST_F(SaveFailuresTest, ANewMapKeepsASecondMoveOutFromBeingSaved) {
    start();
    saveAt(7);
    Bytes changed = files().bytesOf(live);
    overwrite(changed, 61, {0, 1, 0});
    files().write(live, changed);
    moveOut(test(), 0, "Ann's", 900, 0);
    saveAt(8);
    EXPECT_EQ(files().bytesOf(live), changed);
    EXPECT_TRUE(test()->isDirty());
}

TEST_F(SaveFailuresTest, ASimWithoutANewFileStaysMarkedThoughItsRecordIsCutOff) {
    start({.before = {{.type = "XXXX"}}});
    files().remove("Template.iff");
    saveAt(7);
    EXPECT_TRUE(test()->isDirty());
    files().write("Template.iff", original().at("Template.iff"));
    saveAt(8);
    EXPECT_FALSE(test()->isDirty());
    EXPECT_TRUE(states().starts_with("new, backup old; new, backup old; ")) << states();
}

TEST_F(SaveFailuresTest, AChangedFreeChunkMattersOnlyToNewFamilies) {
    start({.freeRoom = true}, false);
    Bytes changed = built().bytes;
    overwrite(changed, built().freeRoomOffset, u16(9));
    files().write(live, changed);
    saveAt(7);
    overwriteRecords(changed);
    EXPECT_EQ(files().bytesOf(live), changed);
}

}  // namespace
