// A small neighborhood with all that a save can have to do: Ann has become a teen and Bob an adult, then Cleo and Bob
// have moved out. And what the disk holds of it, in words.
#ifndef TESTS_SAVE_CHANGED_HOUSEHOLD_H
#define TESTS_SAVE_CHANGED_HOUSEHOLD_H

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "tests/save/saved_files.h"

// What one name holds. A neighborhood file always has the new families if it is a new one; it may lack the new records
// of Sims whose character files couldn't be replaced.
enum class Holds {
    nothing,
    oldFile,
    newFile,
    newFileWithoutAnn,
    newFileWithoutBob,
    newFileWithoutBoth,
    someOtherBytes
};

inline std::ostream& operator<<(std::ostream& out, Holds holds) {
    constexpr const char* words[] = {"nothing",
                                     "the old file",
                                     "the new file",
                                     "the new file without Ann",
                                     "the new file without Bob",
                                     "the new file without both",
                                     "some other bytes"};
    return out << words[static_cast<std::size_t>(holds)];
}

struct Copies {
    Holds live = Holds::oldFile;
    Holds temporary = Holds::nothing;
    Holds backup = Holds::nothing;
    bool operator==(const Copies&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Copies& copies) {
    return out << "live " << copies.live << ", temporary " << copies.temporary << ", backup " << copies.backup;
}

struct OnDisk {
    Copies neighborhood, ann, bob;
    bool operator==(const OnDisk&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const OnDisk& disk) {
    return out << "neighborhood: " << disk.neighborhood << "; Ann: " << disk.ann << "; Bob: " << disk.bob;
}

class ChangedHousehold : public SaveTest {
 public:
    // Writes the files, reads them and makes the changes. Ann's old file takes at least `annsFileSize` bytes.
    void start(std::size_t annsFileSize = 0, bool hasMoveOuts = true) {
        characters_[0].fileSize = annsFileSize;
        characters_[0].hasPictures = annsFileSize > 0;
        SampleNeighborhood content = householdOf(characters_);
        content.neighbors[0].age = 9;
        content.neighbors[1].gapByte = 9;  // which isn't written again
        content.freeRoom = true;
        content.fileSize = 100'000;
        test_.reset();  // it takes the working directory back
        test_ = std::make_unique<TestNeighborhood>(content, characters_);
        EXPECT_TRUE(writeDataFiles(files().path()));
        original_ = treeOf(files().path());
        change(**test_, 0, stageNumber::teen);
        change(**test_, 1, stageNumber::adult);
        if (!hasMoveOuts) return;
        moveOut(*test_, 0, 2, "Cleo's", 500);
        moveOut(*test_, 0, 1, "Bob's", 700);
    }

    void saveAt(WORD minute) const { save(*test_, minute); }

    const TempDirectory& files() const { return test_->files(); }
    Neighborhood& neighborhood() const { return **test_; }
    const NeighborhoodFile& built() const { return test_->built(); }
    const Tree& original() const { return original_; }

    Bytes newNeighborhood(bool withAnn = true, bool withBob = true) const {
        Bytes file = built().bytes;
        if (withAnn) overwrite(file, built().neighborOffsets[0], savedRecord({}, true));
        if (withBob) overwrite(file, built().neighborOffsets[1], savedRecord({.recordName = "user00002"}, false));
        overwrite(file, 61, Bytes(3));
        overwriteFamily(file, built().families[0], 20'000, 1);
        file.resize(built().freeRoomOffset);
        const Bytes cleos = newFamilyRecord(2, 500, 3, "Cleo's"), bobs = newFamilyRecord(3, 700, 2, "Bob's");
        return ByteWriter().bytes(file).bytes(cleos).bytes(bobs).written();
    }

    // What the names of a save at seven minutes past two hold.
    OnDisk onDisk() const {
        const Tree tree = treeOf(files().path());
        const std::map<Bytes, Holds> neighborhoods = {{newNeighborhood(), Holds::newFile},
                                                      {newNeighborhood(false, true), Holds::newFileWithoutAnn},
                                                      {newNeighborhood(true, false), Holds::newFileWithoutBob},
                                                      {newNeighborhood(false, false), Holds::newFileWithoutBoth}};
        return {copiesOf(tree, "UserData/", "neighborhood", ".147", neighborhoods),
                copiesOf(tree, characters, "user00001", "", {{savedCharacter(characters_[0]), Holds::newFile}}),
                copiesOf(tree, characters, "user00002", "", {{savedCharacter(characters_[1]), Holds::newFile}})};
    }

    // The names of all other files that have come, gone or changed.
    std::string otherChanges() const {
        Tree before = original_, now = treeOf(files().path());
        for (Tree* tree : {&before, &now}) {
            for (const std::string& name : namesOfASave_)
                tree->erase(name);
        }
        return differences(before, now);
    }

 private:
    static constexpr const char* characters = "UserData/Characters/";

    Copies copiesOf(const Tree& tree, const std::string& directory, const std::string& name, const std::string& minute,
                    const std::map<Bytes, Holds>& newFiles) const {
        const std::string liveFile = directory + name + ".iff";
        const auto holds = [&](const std::string& file) {
            namesOfASave_.push_back(file);
            if (!tree.contains(file)) return Holds::nothing;
            if (tree.at(file) == original_.at(liveFile)) return Holds::oldFile;
            const auto found = newFiles.find(tree.at(file));
            return found != newFiles.end() ? found->second : Holds::someOtherBytes;
        };
        return {holds(liveFile), holds(directory + "TMP" + name + ".iff"),
                holds(directory + "Backups/" + name + ".200235" + minute + ".iff")};
    }

    std::vector<SampleCharacter> characters_ = {
        {.name = "Ann", .guid = 1, .slots = childSlots(), .hasPictures = false},
        {.recordName = "user00002", .name = "Bob", .guid = 2, .ending = BodyEnding::atEntry33, .hasPictures = false},
        {.recordName = "user00003", .name = "Cleo", .guid = 3, .hasPictures = false}};
    std::unique_ptr<TestNeighborhood> test_;
    Tree original_;
    mutable std::vector<std::string> namesOfASave_;
};

#endif
