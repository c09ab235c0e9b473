// What stands on the disk when a step of a save fails, and what the next save makes of it.
#include <optional>

#include "tests/save/saved_files.h"
#include "tests/support/machine.h"

namespace {

enum class Cause { missing, directory, wrongSize, otherFile, full };

// Ann becomes a teen, Bob an adult; then Cleo and Bob move out.
class SaveFailuresTest : public SaveTest {
 public:
    void start() {
        SampleNeighborhood content = householdOf(characters_);
        content.neighbors[0].age = 9;
        content.freeRoom = true;
        content.fileSize = 100'000;
        test_.reset();  // it takes the working directory back
        test_ = std::make_unique<TestNeighborhood>(content, characters_);
        EXPECT_TRUE(writeDataFiles(files().path()));
        original_ = treeOf(files().path());
        change(**test_, 0, stageNumber::teen);
        change(**test_, 1, stageNumber::adult);
        moveOut(*test_, 0, 2, "Cleo's", 500);
        moveOut(*test_, 0, 1, "Bob's", 700);
    }

    const TempDirectory& files() const { return test_->files(); }

    Bytes savedFile(bool withAnn, bool withBob) const {
        const NeighborhoodFile& built = test_->built();
        Bytes file = built.bytes;
        if (withAnn) overwrite(file, built.neighborOffsets[0], savedRecord({}, true));
        if (withBob) overwrite(file, built.neighborOffsets[1], savedRecord({.recordName = "user00002"}, false));
        overwrite(file, 61, Bytes(3));
        overwriteFamily(file, built.families[0], 20'000, 1);
        file.resize(built.freeRoomOffset);
        const Bytes cleos = newFamilyRecord(2, 500, 3, "Cleo's"), bobs = newFamilyRecord(3, 700, 2, "Bob's");
        return ByteWriter().bytes(file).bytes(cleos).bytes(bobs).written();
    }

    // The letters tell of the live, temporary and backup files of the neighborhood, of Ann and of Bob: "." is missing,
    // "o" the old file, "n" the new one, "b" the new one with Bob's record only, "f" the new one with the families
    // only, "?" whatever broke off under the temporary name. All other files must stay.
    void saveAndCompare(std::string_view letters) const {
        Tree expected = treeOf(files().path());
        save(*test_);
        for (std::size_t i = 0; i < 9; ++i) {
            const bool ofSim = i >= 3;
            const std::string name = ofSim ? characters_[i / 6].recordName : "neighborhood";
            const std::string dated = "Backups/" + name + ".200235" + (ofSim ? ".iff" : ".147.iff");
            const std::string names[] = {name + ".iff", "TMP" + name + ".iff", dated};
            const std::string directory = ofSim ? "UserData/Characters/" : "UserData/";
            const char letter = letters[i + i / 3];
            if (letter == '=') continue;
            Bytes& bytes = expected[directory + names[i % 3]];
            bytes = ofSim ? savedCharacter(characters_[i / 6]) : savedFile(letter == 'n', letter != 'f');
            if (letter == 'o') bytes = original_.at(directory + names[0]);
            if (letter == '?') bytes = files().bytesOf(directory + names[i % 3]);
            if (letter == '.') expected.erase(directory + names[i % 3]);
        }
        EXPECT_EQ(differences(expected, treeOf(files().path())), "");
    }

    // Ann's old file is longer than all others, so that a disk can run full with it alone.
    const std::vector<SampleCharacter> characters_ = {
        {.name = "Ann", .guid = 1, .slots = childSlots(), .fileSize = 200'000},
        {.recordName = "user00002", .name = "Bob", .guid = 2, .ending = BodyEnding::atEntry33, .hasPictures = false},
        {.recordName = "user00003", .name = "Cleo", .guid = 3, .hasPictures = false}};
    std::unique_ptr<TestNeighborhood> test_;
    Tree original_;
};

TEST_F(SaveFailuresTest, EachStepLeavesWhatItMust) {
    using enum Cause;
    start();
    const NeighborhoodFile built = test_->built();
    const std::size_t lastFamily = savedFile(true, true).size() - 232;
    const struct {
        Cause cause;
        std::string where;  // a full disk: after a file in this directory has been deleted, or at once
        const char *after, *afterTheNext;
        std::size_t offset = 0;
    } rows[] = {{missing, live, "... o.. o..", "n.o n.o n.o"},
                {directory, "UserData/TMPneighborhood.iff", "o.. o.. o..", "n.o n.o n.o"},
                {missing, "famtemplate", "o?. o.. o..", "n.o n.o n.o"},
                {wrongSize, "famtemplate", "o?. o.. o..", "n.o n.o n.o"},
                {missing, "Template.iff", "f.o o.. o..", "n.f n.o n.o"},
                {wrongSize, "Template.iff", "f.o o.. o..", "n.f n.o n.o"},
                {directory, "UserData/Characters/TMPuser00001.iff", "b.o o.. n.o", "n.b n.o n.o"},
                {directory, "UserData/Characters/user00001.iff", "b.o .n. n.o", "b.b on. n.o"},
                {wrongSize, "UserData/Characters/Backups", "n.o n.. n..", "n.o n.. n.."},
                {directory, backup, "n.. n.o n.o", "n.. n.o n.o"},
                // The game doesn't run when the program starts; it may have run by the time of the save.
                {otherFile, live, "=.. o.. o..", "n.o n.o n.o", built.neighborOffsets[0] + 8},
                {otherFile, live, "=.. o.. o..", "n.o n.o n.o", built.freeRoomOffset},
                {otherFile, live, "=.. o.. o..", "n.o n.o n.o", built.families[0].record + 8},
                {otherFile, live, "=.. o.. o..", "n.o n.o n.o", built.families[0].memberTable - 4},
                // Under the temporary file; under Ann's backup; under her new file, which isn't tried again, and Bob's;
                // under the last patch, when all characters are replaced; under the new neighborhood file.
                {full, "", "o?. o.. o..", "n.o n.o n.o", 600},
                {full, "", "n.o n.. n.o", "n.o n.. n.o", 120'000},
                {full, "UserData/Characters", "o?. .no o?.", "b.o .no n.o", 50'000},
                {full, "UserData/Characters", "o?. n.o n.o", "n.o n.o n.o", lastFamily},
                {full, "UserData", ".no n.o n.o", ".no n.o n.o", 600}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(row.cause) << " at " << row.where << ", " << row.offset);
        start();
        if (row.cause == missing || (row.cause == directory && files().exists(row.where))) files().remove(row.where);
        if (row.cause == directory) files().makeDirectory(row.where);
        if (row.cause == wrongSize) files().write(row.where, Bytes(55'142));  // "Template.iff" lacks its last byte
        Bytes file = built.bytes;
        if (row.cause == otherFile) overwrite(file, row.offset, u16(9));
        if (row.cause == otherFile) files().write(live, file);
        std::optional<FullDisk> disk;
        if (row.cause == full) disk.emplace(row.offset, row.where.empty() ? "" : files().path(row.where));
        saveAndCompare(row.after);

        disk.reset();
        if (row.cause == directory || row.cause == wrongSize) files().remove(row.where);
        if (original_.contains(row.where)) files().write(row.where, original_.at(row.where));
        saveAndCompare(row.afterTheNext);
    }
}

}  // namespace
