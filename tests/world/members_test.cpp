// Families and their members, stages, and the flags that a save goes by.
#include "tests/support/test_neighborhood.h"

namespace {

TEST(Members, AFamilyFindsThemByGuidAndLosesThemByName) {
    std::vector<SampleCharacter> characters{{}, {.recordName = "user00002", .guid = 0x09004242, .slots = teenSlots()}};
    SampleNeighborhood content = householdOf(characters);
    content.neighbors.push_back({.recordName = "user00009"});  // without a character file
    content.neighbors.push_back({});                           // the first one's name and file once more
    // Bytes behind a zero byte don't count, and nothing in front of it is the GUID of a Sim without a file.
    content.families = {{.members = {0x01004242, 0x0F0F0F0F, sampleGuid, 0x77777700}}, {}};
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
    EXPECT_EQ(read.sim(0).family(), &family);
    EXPECT_EQ(read.family(1).memberCount(), 1);
    EXPECT_EQ(read.sim(0).family(), &read.family(1)) << "resolved last";

    EXPECT_EQ(family.removeMember(read.sim(3)), 1);
    EXPECT_EQ(family.removeMember(read.sim(3)), -1);
    EXPECT_EQ(family.member(2), &read.sim(2));
    for (int count = 4; count <= 9; ++count)
        EXPECT_EQ(family.addMember(read.sim(0)), count <= 8 ? 1 : -1);
    EXPECT_EQ(family.adultCount(), 5);
}

TEST(Members, TheStageFollowsFromAgeKindAndBody) {
    const struct {
        const char* bodySkin;  // null without a character file
        int age, kind, stage;
    } rows[] = {{"b614maTNR", 27, 1, 5}, {"tnr", 27, 0, 5},  {"b614maTnr", 27, 1, 6},
                {nullptr, 27, 1, 0},     {"tnr", 27, 5, -1}, {nullptr, 27, 2, -1},
                {nullptr, 18, 2, 5},     {nullptr, 9, 1, 3}, {"tnr", 26, 1, 0}};
    for (const auto& row : rows) {
        SampleCharacter character;
        if (row.bodySkin != nullptr) character.slots[sampleSlot::bodySkin] = row.bodySkin;
        const TestNeighborhood read({.neighbors = {{.age = row.age, .kind = row.kind}}}, {character});
        if (row.bodySkin == nullptr) read.files().remove("UserData/Characters");
        EXPECT_EQ(read.sim(0).stage(), row.stage) << "age " << row.age << ", kind " << row.kind;
        for (const auto& [stage, result] : {std::pair(1, -2), {4, -2}, {0, -3}, {7, -3}})
            EXPECT_EQ(read.sim(0).setStage(stage, nullptr), result) << stage;
    }
}

}  // namespace
