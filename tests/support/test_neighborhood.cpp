#include "tests/support/test_neighborhood.h"

#include <gtest/gtest.h>

SampleNeighborhood householdOf(const std::vector<SampleCharacter>& characters) {
    SampleNeighborhood content{.neighbors = {}, .families = {SampleFamily{.members = {}}}};
    for (const SampleCharacter& character : characters) {
        content.neighbors.push_back({.recordName = character.recordName, .guid = character.guid});
        content.families.front().members.push_back(character.guid);
    }
    return content;
}

TestNeighborhood::TestNeighborhood(const SampleNeighborhood& content, const std::vector<SampleCharacter>& characters)
    : built_(makeNeighborhoodFile(content)) {
    files_.write(neighborhoodFile, built_.bytes);
    for (const SampleCharacter& character : characters) {
        files_.write(characterFile(character.recordName), makeCharacterFile(character).bytes);
    }
    load();
}

void TestNeighborhood::load() {
    neighborhood_ = std::make_unique<Neighborhood>();
    EXPECT_EQ(neighborhood_->load((files_.path() + "\\UserData").c_str(), "neighborhood.iff"), 0);
    neighborhood_->setToolDirectory(files_.path().c_str());
}
