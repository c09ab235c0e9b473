// What a save writes, what is on the disk when a step of it fails, and what the next save makes of that.
#include "tests/save/save_test.h"

namespace {

const SampleNeighborhood allBehindFreeRoom = {.before = {{.type = "XXXX"}}};

TEST_F(SaveTest, NewFamiliesBeginWhereTheFileIsCutAndThoseOfTheNextSaveFollow) {
    const struct {
        const char* what;
        SampleNeighborhood shape;
        int bobsKind = 0;
    } rows[] = {{"before the free room", {.freeRoom = true, .fileSize = 40'000}},
                {"before the map, and Bob is a pet", {}, 5},
                {"at the end", {.map = false}},
                {"before all pieces, of which none is written then", allBehindFreeRoom}};
    for (const auto& [what, shape, kind] : rows) {
        SCOPED_TRACE(what);
        bobsKind = kind;
        start(shape);
        save();
        EXPECT_EQ(states(), allSaved);
        EXPECT_FALSE(test()->isDirty() || test()->hasNewFamilies());

        Bytes expected = files().bytesOf(live);
        if (shape.before.empty()) overwriteFamily(expected, 5, {stranger});
        expected = ByteWriter().bytes(expected).bytes(newFamilyRecord(43, 900, 1, "")).written();
        change(test().sim(1), stageNumber::adult);
        moveOut(0, "", 900);
        test().family(0).setFunds(5);
        save(8);
        EXPECT_EQ(files().bytesOf(live), expected);
        EXPECT_FALSE(test()->isDirty());
    }
}

TEST_F(SaveTest, AFullTableOfFamiliesTakesNoNewOne) {
    start({.families = std::vector<SampleFamily>(98)});
    save();
    EXPECT_EQ(states(), allSaved);
    EXPECT_EQ(test()->familyCount(), 100);
}

TEST_F(SaveTest, EachFailedStepLeavesWhatItMust) {
    const std::string annsFile = TestNeighborhood::characterFile("user00001");
    const std::string annsTemporary = TestNeighborhood::characterFile("TMPuser00001");
    const std::string backup = "UserData/Backups/neighborhood.200235.147.iff";
    enum Obstacle { nothing, aDirectory, aLinkToTheLiveFile, aShortFile };
    const struct {
        const char* what;
        Obstacle obstacle;
        std::string name;  // that the obstacle takes
        std::string after, afterTheNext;
        SampleNeighborhood shape = {.freeRoom = true};
    } rows[] = {{"no live file", nothing, live, "old; old; gone", allSaved},
                {"a famtemplate of another size", aShortFile, "famtemplate",
                 "old; old; old, temporary other bytes; famtemplate\n", allSaved},
                {"a Template.iff that lacks a byte", aShortFile, "Template.iff",
                 "old; old; new without both, backup old; Template.iff\n",
                 "new, backup old; new, backup old; new, backup new without both"},
                {"no Template.iff for Sims whose records are cut off", nothing, "Template.iff",
                 "old; old; new, backup old; Template.iff\n", "new, backup old; new, backup old; new, backup new",
                 allBehindFreeRoom},
                {"no way to install Ann's file", aDirectory, annsFile,
                 "gone, temporary new; new, backup old; new without Ann, backup old",
                 "new, backup old; new, backup old; new, backup new without Ann"},
                {"a temporary name that leads to the live file", aLinkToTheLiveFile, "UserData/TMPneighborhood.iff",
                 "old; old; old, temporary old", allSaved},
                {"a temporary name that leads to Ann's file", aLinkToTheLiveFile, annsTemporary,
                 "old, temporary old; new, backup old; new without Ann, backup old",
                 "new, backup old; new, backup old; new, backup new without Ann"},
                {"a backup's name that leads to the live file", aLinkToTheLiveFile, backup,
                 "new, backup old; new, backup old; new, backup old, aside old",
                 "new, backup old; new, backup old; new, aside old"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        start(row.shape);
        const bool existed = files().exists(row.name);
        if (existed) files().remove(row.name);
        if (row.obstacle == aDirectory) files().makeDirectory(row.name);
        if (row.obstacle == aLinkToTheLiveFile) files().link(row.name, row.name == annsTemporary ? annsFile : live);
        if (row.obstacle == aShortFile) files().write(row.name, Bytes(55'142));  // a byte less than a save patches
        save();
        EXPECT_EQ(states(), row.after);

        if (files().exists(row.name)) files().remove(row.name);
        if (existed) files().write(row.name, original().at(row.name));
        save();
        EXPECT_EQ(states(), row.afterTheNext);
    }
}

// The game doesn't run when the program starts; it may have run by the time of the save.
TEST_F(SaveTest, ALiveFileThatIsNotTheOneReadIsLeftAlone) {
    start({.freeRoom = true});
    const FamilyOffsets family = built().families[0];
    const std::size_t freeRoom = built().freeRoomOffset;
    const std::pair<const char*, std::size_t> changedPlaces[] = {{"a Sim's name", built().neighborOffsets[0] + 8},
                                                                 {"the free chunk", freeRoom},
                                                                 {"the map's offset", 61},
                                                                 {"a family's number", family.record + 8},
                                                                 {"a family's size", family.memberTable - 4}};
    for (const auto& [what, offset] : changedPlaces) {
        SCOPED_TRACE(what);
        start({.freeRoom = offset == freeRoom});
        Bytes changed = built().bytes;
        overwrite(changed, offset, u16(9));
        files().write(live, changed);
        save();
        EXPECT_EQ(files().bytesOf(live), changed);
        EXPECT_EQ(states(), "old; old; other bytes");
        files().write(live, original().at(live));
        save();
        EXPECT_EQ(states(), allSaved);
    }
}

}  // namespace
