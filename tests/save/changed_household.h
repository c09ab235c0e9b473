// A small neighborhood with all that a save can have to do: Ann has become a teen and Bob an adult, then Cleo and Bob
// have moved out. And what the disk holds of it, in words.
#ifndef TESTS_SAVE_CHANGED_HOUSEHOLD_H
#define TESTS_SAVE_CHANGED_HOUSEHOLD_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/save/saved_files.h"

const std::string nothingSaved = "old; old; old";
const std::string allSaved = "new, backup old; new, backup old; new, backup old";

class ChangedHousehold : public SaveTest {
 public:
    // Writes the files, reads them and makes the changes. The neighborhood has the chunks and the map of `shape`.
    void start(SampleNeighborhood shape = {.freeRoom = true, .fileSize = 40'000}, bool hasMoveOuts = true) {
        for (const SampleCharacter& sim : characters_)
            shape.neighbors.push_back({.recordName = sim.recordName});
        shape.neighbors[0].age = 9;
        shape.neighbors[1].gapByte = 9;  // which isn't written again
        shape.families = {{.funds = 90'000, .members = {1, 2, 3, stranger}}, {.number = 3, .members = {}}};
        shape.families.push_back({.number = 40, .name = "Default"});
        test_.reset();  // it takes the working directory back
        test_ = std::make_unique<TestNeighborhood>(shape, characters_);
        EXPECT_TRUE(writeDataFiles(files().path()));
        original_ = treeOf(files().path());
        cut_ = !shape.before.empty() ? 64 : shape.freeRoom ? built().freeRoomOffset : built().mapOffset;
        nameVersions();
        change(test_->sim(0), stageNumber::teen);
        change(test_->sim(1), stageNumber::adult);
        if (!hasMoveOuts) return;
        moveOut(*test_, 2, "Cleo's", 500, 0);
        moveOut(*test_, 1, "Bob's", 700, 0);
        test_->family(0).setFunds(70'000);
        test_->family(1).setFunds(1);  // no one moves out of it, so it stays as in the file
    }

    void saveAt(WORD minute) const { save(*test_, minute); }

    const TestNeighborhood& test() const { return *test_; }
    const TempDirectory& files() const { return test_->files(); }
    const NeighborhoodFile& built() const { return test_->built(); }
    const Tree& original() const { return original_; }

    // The records of Ann and Bob in a file that may be cut in front of them.
    void overwriteRecords(Bytes& file, bool withAnn = true, bool withBob = true) const {
        if (withAnn) overwrite(file, built().neighborOffsets[0], savedRecord({}, true));
        if (withBob) overwrite(file, built().neighborOffsets[1], savedRecord({.recordName = "user00002"}, false));
    }

    // Money and members of the family that was left, in a table that keeps its size.
    void overwriteFamily(Bytes& file, int funds, const std::vector<std::uint32_t>& members) const {
        const std::size_t table = built().families[0].memberTable;
        ByteWriter guids;
        for (const std::uint32_t member : members)
            guids.u32Le(member);
        overwrite(file, table - 20, u32(funds));
        overwrite(file, table - 4, u16(static_cast<int>(members.size())));
        overwrite(file, table, guids.fillTo(16).written());
    }

    // What a save at seven minutes past two has under its names: of Ann's file, of Bob's and of the
    // neighborhood's, such as "old, temporary new, backup old" each. A new neighborhood may lack a record, as "new
    // without Ann". Other files that have come, gone or changed follow by name.
    std::string states() const {
        Tree before = original_, now = treeOf(files().path());
        std::string states;
        for (const auto& [file, versions] : versions_) {
            const std::string directory = file.substr(0, file.rfind('/') + 1), name = file.substr(directory.size());
            const std::string date = file == live ? ".200235.147" : ".200235";
            states += (states.empty() ? "" : "; ") + std::string(now.contains(file) ? "" : "gone");
            for (const auto& [what, copy] :
                 {std::pair("", file),
                  {", temporary ", directory + "TMP" + name},
                  {", backup ", directory + "Backups/" + name.substr(0, name.rfind('.')) + date + ".iff"}}) {
                before.erase(copy);
                if (!now.contains(copy)) continue;
                const auto version = versions.find(now.extract(copy).mapped());
                states += what + (version != versions.end() ? version->second : "other bytes");
            }
        }
        const std::string others = differences(before, now);
        return others.empty() ? states : states + "; " + others;
    }

    static constexpr std::uint32_t stranger = 0x44434241;  // a member without a record

 private:
    void nameVersions() {
        versions_.clear();
        for (const SampleCharacter& sim : {characters_[0], characters_[1]}) {
            const std::string file = TestNeighborhood::characterFile(sim.recordName);
            versions_[file] = {{original_.at(file), "old"}, {savedCharacter(sim), "new"}};
        }
        versions_[live] = {{original_.at(live), "old"}};
        versions_[live].emplace(newNeighborhood(true, true), "new");
        versions_[live].emplace(newNeighborhood(false, true), "new without Ann");
        versions_[live].emplace(newNeighborhood(true, false), "new without Bob");
        versions_[live].emplace(newNeighborhood(false, false), "new without both");
    }

    Bytes newNeighborhood(bool withAnn, bool withBob) const {
        Bytes file = built().bytes;
        overwriteRecords(file, withAnn, withBob);
        overwriteFamily(file, 70'000, {1, stranger});
        overwrite(file, 61, Bytes(3));
        if (cut_ > 0) file.resize(cut_);
        const Bytes cleos = newFamilyRecord(41, 500, 3, "Cleo's"), bobs = newFamilyRecord(42, 700, 2, "Bob's");
        return ByteWriter().bytes(file).bytes(cleos).bytes(bobs).written();
    }

    std::vector<SampleCharacter> characters_ = {
        {.name = "Ann", .guid = 1, .slots = childSlots(), .hasPictures = false},
        {.recordName = "user00002", .name = "Bob", .guid = 2, .ending = BodyEnding::atEntry33, .hasPictures = false},
        {.recordName = "user00003", .name = "Cleo", .guid = 3, .hasPictures = false}};
    std::unique_ptr<TestNeighborhood> test_;
    std::size_t cut_ = 0;  // where new families begin; 0 for the end of the file
    Tree original_;
    std::map<std::string, std::map<Bytes, std::string>> versions_;  // by the live file's name
};

#endif
