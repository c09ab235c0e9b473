// Families and their members, stages, and the flags that tell a save what to write.
#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"

namespace {

TEST(Members, AFamilyFindsThemByGuidAndLosesThemByName) {
    std::vector<SampleCharacter> characters{{}, {.recordName = "user00002", .guid = 0x09004242, .slots = teenSlots()}};
    SampleNeighborhood content = householdOf(characters);
    content.neighbors.push_back({.recordName = "user00009"});  // without a character file
    content.neighbors.push_back({});                           // the first one's name and file once more
    // Bytes behind a zero byte don't count, and nothing in front of it is the GUID of a Sim without a file.
    content.families.front().members = {0x01004242, 0x0F0F0F0F, sampleGuid, 0x77777700};
    const TestNeighborhood read(content, characters);
    Family& family = read.family();
    EXPECT_EQ(family.member(2), nullptr) << "not resolved yet";
    EXPECT_EQ(family.memberCount(), 4);
    const std::array expected{&read.sim(1), static_cast<Sim*>(nullptr), &read.sim(0), &read.sim(2)};
    for (int i = -1; i < 5; ++i)
        EXPECT_EQ(family.member(i), i < 0 || i > 3 ? nullptr : expected.at(static_cast<std::size_t>(i))) << i;
    EXPECT_EQ(family.resolveMembers(), 1);
    EXPECT_EQ(family.adultCount(), 1) << "counted once";
    EXPECT_FALSE(family.dirty() || read->isDirty());

    EXPECT_EQ(family.removeMember(read.sim(3)), 1);
    EXPECT_EQ(family.removeMember(read.sim(3)), -1);
    EXPECT_EQ(family.member(2), &read.sim(2));
    for (int count = 4; count <= 9; ++count)
        EXPECT_EQ(family.addMember(read.sim(0)), count <= 8 ? 1 : -1);
    EXPECT_EQ(family.adultCount(), 5);
}

TEST(Members, ATeenOfAnAdultsAgeIsKnownByTheBody) {
    const std::pair<const char*, int> rows[] = {{"b614maTNR", 5}, {"tnr", 5}, {"b614maTnr", 6}, {"", 6}};
    for (const auto& [bodySkin, stage] : rows) {
        SampleCharacter character;
        character.slots[sampleSlot::bodySkin] = bodySkin;
        EXPECT_EQ(TestNeighborhood(householdOf({character}), {character}).sim(0).stage(), stage) << bodySkin;
    }
}

}  // namespace
