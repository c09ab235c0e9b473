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

TEST(Members, StageFollowsFromAgeKindAndBody) {
    const struct {
        int age, kind;
        const char* bodySkin;
        int stage;
    } rows[] = {{9, 2, "b614maTNR", 3},   {18, 0, "b003mafit", 5}, {27, 1, "b614maTNR", 5},
                {27, 1, "tnr", 5},        {27, 1, "b614maTnr", 6}, {27, 0, "", 6},
                {27, 5, "b614maTNR", -1}, {28, 2, "b003mafit", 0}, {-27, 0, "", 0}};
    for (const auto& row : rows) {
        SampleCharacter character;
        character.slots[sampleSlot::bodySkin] = row.bodySkin;
        const TestNeighborhood read(SampleNeighborhood{.neighbors = {{.age = row.age, .kind = row.kind}}}, {character});
        for (const int stage : {-1, 0, 1, 2, 3, 4, 7})
            EXPECT_EQ(read.sim(0).setStage(stage, nullptr), stage >= 1 && stage <= 4 ? -2 : -3) << "for teen and adult";
        EXPECT_EQ(read.sim(0).stage(), row.stage) << row.age << ' ' << row.kind << ' ' << row.bodySkin;
    }
}

}  // namespace
