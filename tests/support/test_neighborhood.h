// A neighborhood on the disk, in "UserData" of a directory of its own, and as the program has read it.
#ifndef TESTS_SUPPORT_TEST_NEIGHBORHOOD_H
#define TESTS_SUPPORT_TEST_NEIGHBORHOOD_H

#include <memory>
#include <string>
#include <vector>

#include "sample/neighborhood_file.h"
#include "tests/support/temp_directory.h"
#include "world/neighborhood.h"

// One family of these Sims. Each neighbor takes name and GUID from its character and is otherwise a default one; a
// test changes what it needs.
inline SampleNeighborhood householdOf(const std::vector<SampleCharacter>& characters) {
    SampleNeighborhood content{.neighbors = {}, .families = {SampleFamily{.members = {}}}};
    for (const SampleCharacter& character : characters) {
        content.neighbors.push_back({.recordName = character.recordName, .guid = character.guid});
        content.families.front().members.push_back(character.guid);
    }
    return content;
}

// The slots as the sample has them, to compare the two.
inline BodySlots slotsOf(const BodyStrings& body) {
    BodySlots slots;
    for (std::size_t i = 0; i < slots.size(); ++i)
        slots[i] = body.slot(static_cast<bodySlot::Index>(i));
    return slots;
}

class TestNeighborhood {
 public:
    // Writes the files, each character under its record name, and reads them. The program for later editions reads a
    // neighborhood that has one of their records.
    explicit TestNeighborhood(const SampleNeighborhood& content, const std::vector<SampleCharacter>& characters = {})
        : built_(makeNeighborhoodFile(content)),
          formats_(std::ranges::any_of(content.neighbors, &SampleNeighbor::later) ? allFormats : baseFormats) {
        files_.write(neighborhoodFile, built_.bytes);
        for (const SampleCharacter& character : characters)
            files_.write(characterFile(character.recordName), makeCharacterFile(character).bytes);
        load();
    }

    // Reads the files again, as the next start of the program does. Earlier families and Sims are deleted. The tool
    // directory is the one above "UserData"; it is empty until a test writes there.
    void load() {
        neighborhood_ = std::make_unique<Neighborhood>();
        EXPECT_EQ(neighborhood_->load((files_.path() + "\\UserData").c_str(), "neighborhood.iff", formats_), 0);
        neighborhood_->setToolDirectory(files_.path().c_str());
    }

    Neighborhood* operator->() const { return neighborhood_.get(); }
    Neighborhood& operator*() const { return *neighborhood_; }
    const TempDirectory& files() const { return files_; }
    const NeighborhoodFile& built() const { return built_; }
    Sim& sim(int index) const { return *neighborhood_->sim(index); }
    Family& family(int index = 0) const { return *neighborhood_->family(index); }

    static std::string characterFile(const std::string& recordName) {
        return "UserData/Characters/" + recordName + ".iff";
    }
    static constexpr const char* neighborhoodFile = "UserData/neighborhood.iff";

 private:
    TempDirectory files_;
    NeighborhoodFile built_;
    RecordFormats formats_;
    std::unique_ptr<Neighborhood> neighborhood_;
};

#endif
