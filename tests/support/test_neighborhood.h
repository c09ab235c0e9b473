// A neighborhood on the disk, in "UserData" of a directory of its own, and as the program has read it.
#ifndef TESTS_SUPPORT_TEST_NEIGHBORHOOD_H
#define TESTS_SUPPORT_TEST_NEIGHBORHOOD_H

#include <memory>
#include <string>
#include <vector>

#include "sample/neighborhood_file.h"
#include "tests/support/temp_directory.h"
#include "world/neighborhood.h"

// One family of these Sims. Each neighbor takes name and GUID from its character and is else a default one; a test
// changes what it needs.
SampleNeighborhood householdOf(const std::vector<SampleCharacter>& characters);

class TestNeighborhood {
 public:
    // Writes the files, each character under its record name, and reads them.
    explicit TestNeighborhood(const SampleNeighborhood& content, const std::vector<SampleCharacter>& characters = {});
    explicit TestNeighborhood(const std::vector<SampleCharacter>& household)
        : TestNeighborhood(householdOf(household), household) {}

    // Reads what stands on the disk, as the next start of the program does. Families and Sims of before are gone. The
    // tool directory is the one above "UserData"; it holds nothing until a test writes it.
    void load();

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
    std::unique_ptr<Neighborhood> neighborhood_;
};

#endif
