// What a save writes, what is on the disk when a step of it fails, and what the next save makes of that.
#include "tests/save/save_test.h"
#include "save/save_attempt.h"
#include "save/save_command.h"
#include "world/neighborhoods.h"

namespace {

const SampleNeighborhood allBehindFreeRoom = {.before = {{.type = "XXXX"}}};

TEST_F(SaveTest, NewFamiliesBeginWhereTheFileIsCutAndThoseOfTheNextSaveFollow) {
    const std::tuple<const char*, SampleNeighborhood, int, std::array<bool, 3>> rows[] = {
        {"before the free room", {.freeRoom = true, .fileSize = 40'000}, 0, {}},
        {"before the map, and Bob is a pet", {}, 5, {}},
        {"before the map, and no more families are listed", {.families = std::vector<SampleFamily>(98)}, 0, {}},
        {"before all pieces, of which none is written then", allBehindFreeRoom, 0, {}},
        {"before the free room, in later editions", {.freeRoom = true}, 0, {true, true, true}},
        {"before the map, and Bob is a pet of later editions", {}, 5, {false, true, false}},
        {"at the end, and Bob's record is of the base game", {.map = false}, 0, {true, false, true}}};
    for (const auto& [what, shape, kind, ofLaterEditions] : rows) {
        SCOPED_TRACE(what);
        bobsKind = kind;
        start(shape, ofLaterEditions);
        save();
        EXPECT_EQ(states(), allSaved);
        EXPECT_FALSE(test()->isDirty() || test()->hasNewFamilies());
        EXPECT_LE(test()->familyCount(), 100);
        EXPECT_EQ(test().family(0).memberTableOffset() == 0, !shape.before.empty()) << "a new family may lie there";

        Bytes expected = files().bytesOf(live);
        if (shape.before.empty()) overwriteFamily(expected, 5, {stranger});
        expected = ByteWriter().bytes(expected).bytes(newFamilyRecord(43, 900, 1, "")).written();
        change(test().sim(1), stageNumber::adult);
        moveOut(0, "", 900);
        test().family(0).setFunds(5);
        save(8);
        EXPECT_EQ(files().bytesOf(live), expected);
        EXPECT_FALSE(test()->isDirty());
        if (!shape.before.empty()) continue;  // nothing is left to read
        test().load();
        EXPECT_EQ(test().sim(1).stage(), kind == 0 ? stageNumber::adult : stageNumber::pet);
    }
}

TEST_F(SaveTest, EachFailedStepLeavesWhatItMust) {
    const std::string annsFile = TestNeighborhood::characterFile("user00001");
    const std::string annsTemporary = TestNeighborhood::characterFile("TMPuser00001");
    enum Obstacle { nothing, aDirectory, aLinkToTheLiveFile, aShortFile };
    const struct {
        const char* what;
        Obstacle obstacle;
        std::string name;  // that the obstacle takes
        std::string after, afterTheNext;
        bool isCleosLater = false;
        SampleNeighborhood shape = {.freeRoom = true};
    } rows[] = {
        {"no live file", nothing, live, "old; old; gone", allSaved},
        {"a famtemplate of another size", aShortFile, "famtemplate",
         "old; old; old, temporary other bytes; famtemplate\n", allSaved},
        {"no template of one who moves out", nothing, "famtemplate-later",
         "old; old; old, temporary other bytes; famtemplate-later\n", allSaved, true},
        {"a Template.iff that lacks a byte", aShortFile, "Template.iff",
         "old; old; new without both, backup old; Template.iff\n",
         "new, backup old; new, backup old; new, backup new without both"},
        {"no Template.iff for Sims whose records are cut off", nothing, "Template.iff",
         "old; old; new, backup old; Template.iff\n", "new, backup old; new, backup old; new, backup new", false,
         allBehindFreeRoom},
        {"no way to install Ann's file", aDirectory, annsFile,
         "gone, temporary new; new, backup old; new without Ann, backup old",
         "new, backup old; new, backup old; new, backup new without Ann"},
        {"a temporary name that leads to the live file", aLinkToTheLiveFile, "UserData/TMPneighborhood.iff",
         "old; old; old, temporary old", allSaved},
        {"a temporary name that leads to Ann's file", aLinkToTheLiveFile, annsTemporary,
         "old, temporary old; new, backup old; new without Ann, backup old",
         "new, backup old; new, backup old; new, backup new without Ann"},
        {"a backup's name that leads to the live file", aLinkToTheLiveFile,
         "UserData/Backups/neighborhood.200235.147.iff", "new, backup old; new, backup old; new, backup old, aside old",
         "new, backup old; new, backup old; new, aside old"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        start(row.shape, {false, false, row.isCleosLater});
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
    const std::tuple<const char*, std::size_t, bool> rows[] = {
        {"its last byte", 40'000, false},
        {"a byte more", 40'000, true},
        {"the last byte of a file that isn't read at once", 17'000'000, false}};
    for (const auto& [what, fileSize, isLonger] : rows) {
        SCOPED_TRACE(what);
        start({.freeRoom = true, .fileSize = fileSize});
        Bytes changed = original().at(live);
        if (isLonger) changed.push_back(0);
        changed.back() ^= 1;
        files().write(live, changed);
        save();
        EXPECT_EQ(files().bytesOf(live), changed);
        EXPECT_EQ(states(), "old; old; other bytes");
        EXPECT_TRUE(test()->isDirty());
        files().write(live, original().at(live));
        save();
        EXPECT_EQ(states(), allSaved);
    }
}

TEST_F(SaveTest, ASaveAcrossMidnightHasTheDateOfItsBeginning) {
    start();
    fs::current_path(files().path("UserData"));
    backupClock().stopAt({2002, 3, 0, 5, 14, 7, 0, 0});
    const SaveAttempt attempt(*test());
    backupClock().stopAt({2002, 3, 0, 6, 0, 0, 0, 0});
    EXPECT_EQ(test()->writeTempFile("TMPneighborhood.iff"), 1);
    test()->backupLiveFile();
    test()->installTempFile("TMPneighborhood.iff");
    EXPECT_EQ(states(), allSaved);
}

TEST_F(SaveTest, TheErrorOfACopyIsThatOfTheOpenThatFailedAndTheDestinationsIfBothDid) {
    const TempDirectory directory;
    directory.write("source", "bytes");
    directory.makeDirectory("taken");
    const std::tuple<const char*, const char*, std::int32_t> rows[] = {{"none", "new", ERROR_FILE_NOT_FOUND},
                                                                       {"none", "taken", ERROR_ACCESS_DENIED},
                                                                       {"none", "nowhere\\new", ERROR_PATH_NOT_FOUND},
                                                                       {"source", "taken", ERROR_ACCESS_DENIED}};
    fs::current_path(directory.path());
    for (const auto& [source, destination, error] : rows) {
        EXPECT_EQ(copyFileBytes(source, destination, 0, CopyMode::overwrite), error) << source << " to " << destination;
        EXPECT_EQ(moveByCopy(source, destination), error) << source << " to " << destination;
    }
    EXPECT_EQ(treeOf(directory.path()).size(), 1U);
}

TEST_F(SaveTest, SaveAllSavesEachListedNeighborhoodThatHasChanged) {
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
    EXPECT_EQ(fs::current_path(), files.path("UserData3"));
    neighborhoods = {};
}

}  // namespace
