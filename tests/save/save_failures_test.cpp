// What stands on the disk when a step of a save fails, and what the next save makes of it.
#include <sys/stat.h>

#include "tests/save/saved_files.h"
#include "tests/support/failing_disk.h"

namespace {

constexpr const char* temporary = "UserData/TMPneighborhood.iff";
constexpr const char* liveAnn = "UserData/Characters/user00001.iff";
constexpr const char* temporaryAnn = "UserData/Characters/TMPuser00001.iff";
constexpr const char* backupAnn = "UserData/Characters/Backups/user00001.200235.iff";
constexpr const char* liveBob = "UserData/Characters/user00002.iff";
constexpr const char* temporaryBob = "UserData/Characters/TMPuser00002.iff";
constexpr const char* backupBob = "UserData/Characters/Backups/user00002.200235.iff";
constexpr const char* backups = "UserData/Backups";
constexpr const char* characterBackups = "UserData/Characters/Backups";

Bytes front(Bytes bytes, std::size_t size) {
    bytes.resize(size);
    return bytes;
}

// Ann becomes a teen, Bob an adult; Cleo moves out where a new family is asked for.
class SaveFailuresTest : public SaveTest {
 public:
    SaveFailuresTest() {
        // Ann's old file is longer than the template, so a disk can run full with the one and not with the other.
        characters_ = {
            {.recordName = "user00001", .name = "Ann", .guid = 0x41414141, .slots = childSlots(), .fileSize = 80'000},
            {.recordName = "user00002", .name = "Bob", .guid = 0x42424242, .hasPictures = false},
            {.recordName = "user00003", .name = "Cleo", .guid = 0x43434343, .hasPictures = false}};
        content_ = householdOf(characters_);
        content_.neighbors[0].age = 9;
        content_.freeRoom = true;
    }

    void start(bool newFamily) {
        minute_ = 7;
        test_.reset();  // it takes the working directory back
        test_ = std::make_unique<TestNeighborhood>(content_, characters_);
        writeTemplates(files());
        original_ = treeOf(files());
        change(*test_, 0, stageNumber::teen);
        change(*test_, 1, stageNumber::adult);
        if (newFamily) moveOut(*test_, 0, 2, "Cleo's", 500);
        newFamily_ = newFamily;
    }

    const TempDirectory& files() const { return test_->files(); }
    Bytes cutFile() const { return front(original_.at(live), test_->built().freeRoomOffset); }

    Bytes savedFile(bool withAnn, bool withBob) const {
        Bytes file = newFamily_ ? cutFile() : original_.at(live);
        const auto& offsets = test_->built().neighborOffsets;
        if (withAnn) overwrite(file, offsets[0], savedRecord(content_.neighbors[0], true));
        if (withBob) overwrite(file, offsets[1], savedRecord(content_.neighbors[1], false));
        if (!newFamily_) return file;
        const FamilyOffsets& family = test_->built().families[0];
        overwrite(file, 61, Bytes(3));
        overwrite(file, family.memberTable - 4, u16(2));
        overwrite(file, family.memberTable + 8, Bytes(4));
        return ByteWriter().bytes(file).bytes(newFamilyRecord(2, 500, 0x43434343, "Cleo's")).written();
    }

    // The live, temporary and backup files of the neighborhood, of Ann and of Bob by one letter each: "." is missing,
    // "o" the old file, "n" the new one, "b" the new one with Bob's record only, "c" the old one up to the cut, "t" the
    // template, "e" an empty file, "s" one cut short.
    Tree treeWith(std::string_view letters) const {
        constexpr const char* names[] = {live,      temporary, firstBackup,  liveAnn,  temporaryAnn,
                                         backupAnn, liveBob,   temporaryBob, backupBob};
        const Bytes& characterTemplate = original_.at("Template.iff");
        Tree tree = original_;
        for (std::size_t i = 0; i < std::size(names); ++i) {
            const bool ofSim = i >= 3;
            const Bytes old = original_.at(names[i - i % 3]);
            const std::map<char, Bytes> contents = {
                {'o', old},
                {'n', ofSim ? savedCharacter(characters_[i / 6]) : savedFile(true, true)},
                {'b', savedFile(false, true)},
                {'c', cutFile()},
                {'t', characterTemplate},
                {'e', {}},
                {'s', ofSim ? front(characterTemplate, 50'000) : front(old, 600)}};
            tree.erase(names[i]);
            if (letters[i] != '.') tree[names[i]] = contents.at(letters[i]);
        }
        // The neighborhood's directory of backups comes when the rest has gone well, the characters' with the first.
        if (letters[2] != '.' || letters[0] == 'n') tree["UserData/Backups/"] = {};
        if (letters[5] != '.' || letters[8] != '.') tree["UserData/Characters/Backups/"] = {};
        return tree;
    }

    // What waits for the next save: Ann's character file and record, the neighborhood.
    std::string waiting() const {
        std::string letters;
        if (test_->sim(0).characterDirty()) letters += 'c';
        if (test_->sim(0).recordDirty()) letters += 'r';
        if ((*test_)->isDirty()) letters += 'n';
        return letters;
    }

    void saveAndCompare(const Tree& expected, const char* waitingThen) {
        save(*test_);
        EXPECT_EQ(differences(expected, treeOf(files())), "");
        EXPECT_EQ(waiting(), waitingThen);
    }

    std::vector<SampleCharacter> characters_;
    SampleNeighborhood content_;
    std::unique_ptr<TestNeighborhood> test_;
    bool newFamily_ = false;
    Tree original_;
};

enum class Cause { missing, directory, cut, oneByteMore, writeProtected };

// Returns what stands at the path afterwards.
Tree spoil(const TempDirectory& files, Cause cause, const std::string& path) {
    const Bytes bytes = files.exists(path) ? files.bytesOf(path) : Bytes();
    if (cause == Cause::missing) files.remove(path);
    if (cause == Cause::directory) files.makeDirectory(path);
    if (cause == Cause::cut) files.write(path, front(bytes, std::min<std::size_t>(bytes.size() - 1, 55'142)));
    if (cause == Cause::oneByteMore) files.write(path, ByteWriter().bytes(bytes).u8(0).written());
    if (cause == Cause::writeProtected) {
        std::filesystem::permissions(files.path(path), std::filesystem::perms::owner_read);
    }
    if (cause == Cause::missing) return {};
    return cause == Cause::directory ? Tree{{path + "/", {}}} : Tree{{path, files.bytesOf(path)}};
}

TEST_F(SaveFailuresTest, EachStepLeavesWhatItMust) {
    const struct {
        const char *path, *after, *waiting;
        Cause cause;
        bool newFamily;
    } rows[] = {{live, ".e.o..o..", "crn", Cause::missing, false},
                {temporary, "o..o..o..", "crn", Cause::directory, false},
                {"famtemplate", "oc.o..o..", "crn", Cause::missing, true},
                {"famtemplate", "oc.o..o..", "crn", Cause::cut, true},
                {"famtemplate", "oc.o..o..", "crn", Cause::oneByteMore, true},
                {"Template.iff", "o.oo..o..", "crn", Cause::missing, false},
                {"Template.iff", "o.oo..o..", "crn", Cause::cut, false},
                {temporaryAnn, "b.oo..n.o", "crn", Cause::directory, false},
                {backupAnn, "n.on..n.o", "", Cause::directory, false},
                {characterBackups, "n.on..n..", "", Cause::oneByteMore, false},
                {liveAnn, "b.oonon.o", "rn", Cause::writeProtected, false},
                {firstBackup, "n..n.on.o", "", Cause::directory, true},
                {backups, "n..n.on.o", "", Cause::oneByteMore, true},
                {live, "onon.on.o", "", Cause::writeProtected, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "cause " << static_cast<int>(row.cause) << " at " << row.path);
        start(row.newFamily);
        Tree expected = spoil(files(), row.cause, row.path);
        Tree other = treeWith(row.after);
        for (const char* end : {"", "/"}) {
            other.erase(row.path + std::string(end));
        }
        expected.merge(other);
        saveAndCompare(expected, row.waiting);
        EXPECT_EQ((*test_)->hasNewFamilies(), row.newFamily && waiting() == "crn");
        if (waiting() == "rn") {  // a character's file isn't tried again, and the record doesn't go without it
            save(*test_);
            EXPECT_EQ(files().bytesOf(live), expected.at(live));
        }
        if (waiting() != "crn") continue;

        if (row.cause != Cause::missing) files().remove(row.path);
        if (original_.contains(row.path)) files().write(row.path, original_.at(row.path));
        expected = treeWith("n.on.on.o");
        expected[secondBackup] = files().bytesOf(live);
        if (row.after[2] == '.') expected.erase(firstBackup);
        saveAndCompare(expected, "");
    }
}

TEST_F(SaveFailuresTest, ADiskThatRunsFullCostsNoWholeFile) {
    const struct {
        std::uint64_t room;
        const char *afterDeletionIn, *after, *waiting;
    } rows[] = {{600, "", "os.o..o..", "crn"},                       // under the temporary file
                {60'000, "", "n.on..n.o", ""},                       // under Ann's backup
                {50'000, "UserData/Characters", "o.o.noos.", "rn"},  // under Ann's new file, and Bob's
                {600, "UserData", ".non.on.o", ""}};                 // under the new neighborhood file
    for (const auto& row : rows) {
        SCOPED_TRACE(row.after);
        start(false);
        const Tree expected = treeWith(row.after);
        {
            const std::string watched = *row.afterDeletionIn != '\0' ? files().path(row.afterDeletionIn) : "";
            const FullDisk disk(row.room, watched);
            if (!disk.works()) GTEST_SKIP();
            saveAndCompare(expected, row.waiting);
        }
        // With room again, and Ann changed once more, nothing is built upon what broke off: the only copies stay.
        change(*test_, 0, stageNumber::adult);
        save(*test_);
        for (const char* name : {firstBackup, backupAnn, temporary}) {
            if (row.after[1] == 's' || !expected.contains(name)) continue;
            EXPECT_EQ(files().bytesOf(name), expected.at(name)) << name;
        }
    }
}

TEST_F(SaveFailuresTest, ACopyThatCannotBePatchedIsLeft) {
    start(false);
    const auto mask = umask(0222);
    saveAndCompare(treeWith("oo.o..o.."), "crn");
    EXPECT_EQ(test_->sim(0).saveCharacterFile((*test_)->directory()), -1);
    EXPECT_EQ(std::filesystem::current_path(), files().path("UserData"));
    umask(mask);

    // Cleo's body strings were never asked for.
    EXPECT_EQ(test_->sim(2).setStage(stageNumber::adult, nullptr), 1);
    EXPECT_EQ(test_->sim(2).saveCharacterFile((*test_)->directory()), 0);
    EXPECT_EQ(differences(treeWith("oo.ot.o.."), treeOf(files())), "");
}

// The disk runs full while the copy is patched, when the characters' files have been replaced already.
TEST_F(SaveFailuresTest, ATemporaryFileThatIsLostPutsEverythingBack) {
    content_.fileSize = 100'000;  // records and families lie behind all that a character's file takes
    for (const bool newFamilies : {false, true}) {
        SCOPED_TRACE(newFamilies ? "in the second new family" : "in the first record");
        start(newFamilies);
        Tree saved = treeWith("n.on.on.o");
        if (newFamilies) {
            moveOut(*test_, 0, 1, "Bob's", 700);
            const std::size_t table = test_->built().families[0].memberTable;
            overwrite(saved[live], table - 4, u16(1));
            overwrite(saved[live], table + 4, Bytes(4));
            saved[live] = ByteWriter().bytes(saved[live]).bytes(newFamilyRecord(3, 700, 0x42424242, "Bob's")).written();
        }
        const std::size_t room = newFamilies ? saved[live].size() - 232 : 60'000;
        Tree expected = saved;
        expected[live] = original_.at(live);
        expected[temporary] = newFamilies
                                  ? ByteWriter().bytes(front(saved[live], room)).bytes(familyTemplate()).written()
                                  : original_.at(live);
        for (const char* name : {firstBackup, "UserData/Backups/"}) {
            expected.erase(name);
        }
        {
            const FullDisk disk(room, files().path("UserData/Characters"));
            if (!disk.works()) GTEST_SKIP();
            saveAndCompare(expected, "rn");
        }
        EXPECT_TRUE(test_->sim(1).recordDirty());
        EXPECT_TRUE((*test_)->hasNewFamilies() == newFamilies && test_->family().dirty() == newFamilies);
        EXPECT_EQ((*test_)->familyCount(), 1);
        EXPECT_EQ((*test_)->newFamilyCount(), newFamilies ? 2 : 0);
        EXPECT_EQ((*test_)->highestFamilyNumber(), 1);

        // The characters' files aren't rewritten, so the backups of the day are still those of the old files.
        saved[secondBackup] = saved[firstBackup];
        saved.erase(firstBackup);
        saveAndCompare(saved, "");
        EXPECT_EQ((*test_)->familyCount(), newFamilies ? 3 : 1);
    }
}

}  // namespace
