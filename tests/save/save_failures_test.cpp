// What is on the disk when a step of a save fails, and what the next save makes of it.
#include <optional>

#include "tests/save/changed_household.h"
#include "tests/support/machine.h"

namespace {

using enum Holds;

class SaveFailuresTest : public ChangedHousehold {
 public:
    // Puts the obstacle of a row out of the way again.
    void mend(const std::string& name) const {
        if (files().exists(name)) files().remove(name);
        if (original().contains(name)) files().write(name, original().at(name));
    }

    void linkTo(const std::string& file, const std::string& link) const {
        std::filesystem::create_hard_link(files().path(file), files().path(link));
    }
};

constexpr Copies untouched = {oldFile, nothing, nothing};
constexpr Copies saved = {newFile, nothing, oldFile};
constexpr OnDisk nothingSaved = {untouched, untouched, untouched};
constexpr OnDisk partOfTheTemporaryFile = {{oldFile, someOtherBytes, nothing}, untouched, untouched};
constexpr OnDisk allSaved = {saved, saved, saved};

TEST_F(SaveFailuresTest, EachStepLeavesWhatItMust) {
    const std::string none = "no such file";
    enum Obstacle { missing, directory, fileOf55142Bytes, fullDisk };
    const struct {
        const char* what;
        Obstacle obstacle;
        std::string where;  // the name that the obstacle takes; none on a full disk
        OnDisk after, afterTheNext;
        std::size_t room = 0;  // that each file has on a full disk
    } rows[] = {
        {"no live file", missing, live, {{nothing, nothing, nothing}, untouched, untouched}, allSaved},
        {"no way to make the temporary file", directory, "UserData/TMPneighborhood.iff", nothingSaved, allSaved},
        {"no room for the temporary file", fullDisk, none, partOfTheTemporaryFile, allSaved, 600},
        {"no famtemplate", missing, "famtemplate", partOfTheTemporaryFile, allSaved},
        {"a famtemplate of another size", fileOf55142Bytes, "famtemplate", partOfTheTemporaryFile, allSaved},
        {"no Template.iff",
         missing,
         "Template.iff",
         {{newFileWithoutBoth, nothing, oldFile}, untouched, untouched},
         {{newFile, nothing, newFileWithoutBoth}, saved, saved}},
        {"a Template.iff that lacks a byte",
         fileOf55142Bytes,
         "Template.iff",
         {{newFileWithoutBoth, nothing, oldFile}, untouched, untouched},
         {{newFile, nothing, newFileWithoutBoth}, saved, saved}},
        {"no way to make Ann's temporary file",
         directory,
         "UserData/Characters/TMPuser00001.iff",
         {{newFileWithoutAnn, nothing, oldFile}, untouched, saved},
         {{newFile, nothing, newFileWithoutAnn}, saved, saved}},
        // Her new file waits under its temporary name, and no later save of this run tries again.
        {"no way to install Ann's file",
         directory,
         "UserData/Characters/user00001.iff",
         {{newFileWithoutAnn, nothing, oldFile}, {nothing, newFile, nothing}, saved},
         {{newFileWithoutAnn, nothing, newFileWithoutAnn}, {oldFile, newFile, nothing}, saved}},
        {"no room for Ann's backup",
         fullDisk,
         none,
         {saved, {newFile, nothing, nothing}, saved},
         {saved, {newFile, nothing, nothing}, saved},
         120'000},
        {"no directory for the characters' backups",
         fileOf55142Bytes,
         "UserData/Characters/Backups",
         {saved, {newFile, nothing, nothing}, {newFile, nothing, nothing}},
         {saved, {newFile, nothing, nothing}, {newFile, nothing, nothing}}},
        {"no way to back the neighborhood up",
         directory,
         backup,
         {{newFile, nothing, nothing}, saved, saved},
         {{newFile, nothing, nothing}, saved, saved}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        start(200'000);
        if (files().exists(row.where)) files().remove(row.where);
        if (row.obstacle == directory) files().makeDirectory(row.where);
        if (row.obstacle == fileOf55142Bytes) files().write(row.where, Bytes(55'142));
        std::optional<FullDisk> disk;
        if (row.obstacle == fullDisk) disk.emplace(row.room);
        saveAt(7);
        EXPECT_EQ(onDisk(), row.after);

        disk.reset();
        mend(row.where);
        saveAt(7);
        EXPECT_EQ(onDisk(), row.afterTheNext);
        EXPECT_EQ(otherChanges(), "");
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
        EXPECT_EQ(onDisk(), (OnDisk{{someOtherBytes, nothing, nothing}, untouched, untouched}));

        mend(live);
        saveAt(7);
        EXPECT_EQ(onDisk(), allSaved);
    }
}

TEST_F(SaveFailuresTest, AChangedFreeChunkMattersOnlyToNewFamilies) {
    start(0, false);
    Bytes changed = built().bytes;
    overwrite(changed, built().freeRoomOffset, u16(9));
    files().write(live, changed);
    saveAt(7);
    overwrite(changed, built().neighborOffsets[0], savedRecord({}, true));
    overwrite(changed, built().neighborOffsets[1], savedRecord({.recordName = "user00002"}, false));
    EXPECT_EQ(files().bytesOf(live), changed);
}

TEST_F(SaveFailuresTest, ATemplateMayEndWithTheLastPatchedByte) {
    start();
    Bytes shortest = original().at("Template.iff");
    shortest.resize(55'143);
    files().write("Template.iff", shortest);
    saveAt(7);
    EXPECT_EQ(onDisk().neighborhood, saved);
    EXPECT_EQ(files().bytesOf("UserData/Characters/user00001.iff").size(), shortest.size());
}

TEST_F(SaveFailuresTest, AFullTableOfFamiliesTakesNoNewOne) {
    const std::vector<SampleCharacter> ann = {{.hasPictures = false}};
    SampleNeighborhood content = householdOf(ann);
    while (content.families.size() < 100)
        content.families.push_back({.number = 2, .members = {}});
    const TestNeighborhood test(content, ann);
    ASSERT_TRUE(writeDataFiles(test.files().path()));
    const Family* const last = &test.family(99);
    moveOut(test, 0, 0, "Ann's", 500);
    save(test);
    EXPECT_FALSE(test->isDirty());
    EXPECT_EQ(test->familyCount(), 100);
    EXPECT_EQ(&test.family(99), last);
    EXPECT_EQ(test->simCount(), 1);
}

TEST_F(SaveFailuresTest, ALinkToALiveFileNeverCostsItsBytes) {
    start();
    files().makeDirectory("UserData/Backups");
    const std::string annsTemporary = "UserData/Characters/TMPuser00001.iff";
    linkTo(live, "UserData/TMPneighborhood.iff");
    linkTo(live, backup);
    linkTo("UserData/Characters/user00001.iff", annsTemporary);
    saveAt(7);
    EXPECT_EQ(onDisk(), (OnDisk{{oldFile, oldFile, oldFile}, {oldFile, oldFile, nothing}, untouched}));
    EXPECT_TRUE(neighborhood().isDirty());

    files().remove("UserData/TMPneighborhood.iff");
    saveAt(7);
    EXPECT_EQ(onDisk(), (OnDisk{{newFileWithoutAnn, nothing, oldFile}, {oldFile, oldFile, nothing}, saved}));

    files().remove(annsTemporary);
    saveAt(8);
    EXPECT_EQ(onDisk(), allSaved);
}

}  // namespace
