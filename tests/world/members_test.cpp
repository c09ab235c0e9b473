// Families and their members, stages, and the flags that tell a save what to write.
#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"

namespace {

using Links = std::vector<Sim*>;

constexpr std::uint32_t strangeGuid = 0x0F0F0F0F;

// "user00001" and so on, each with a GUID of its own.
std::vector<SampleCharacter> people(int count) {
    std::vector<SampleCharacter> characters(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        SampleCharacter& character = characters[static_cast<std::size_t>(i)];
        character.recordName = "user0000" + std::to_string(i + 1);
        character.guid += static_cast<std::uint32_t>(i);
        character.hasPictures = false;
    }
    return characters;
}

Links membersOf(Family& family) {
    Links members;
    for (int i = 0; i < family.memberCount(); ++i)
        members.push_back(family.member(i));
    return members;
}

TEST(Members, AGuidLeadsToTheFirstSimThatBearsIt) {
    std::vector<SampleCharacter> characters = people(3);
    characters[1].guid = 0x09004242;
    characters[1].slots = teenSlots();
    characters[2].guid = characters[0].guid;
    SampleNeighborhood content = householdOf(characters);
    content.neighbors.push_back({.recordName = "user00009"});  // without a character file
    // Bytes behind a zero byte don't count, and nothing in front of it is the GUID of a Sim without a file.
    content.families.front().members = {0x01004242, strangeGuid, characters[0].guid, 0x77777700};
    const TestNeighborhood read(content, characters);
    Family& family = read.family();
    EXPECT_EQ(family.member(2), nullptr) << "not resolved yet";
    EXPECT_EQ(membersOf(family), (Links{&read.sim(1), nullptr, &read.sim(0), &read.sim(3)}));
    EXPECT_EQ(family.member(4), nullptr);
    EXPECT_EQ(family.member(-1), nullptr);
    EXPECT_EQ(family.resolveMembers(), 1);
    EXPECT_EQ(family.adultCount(), 1) << "counted once";
    EXPECT_EQ(read.sim(0).family(), &family);
    EXPECT_EQ(read.sim(2).family(), nullptr);
    EXPECT_FALSE(family.dirty() || read->isDirty());
}

TEST(Members, StageFollowsFromAgeKindAndBody) {
    constexpr const char* noFile = nullptr;
    const struct {
        int age, kind;
        const char* bodySkin;
        int stage;
    } rows[] = {{9, 2, "b614maTNR", 3},   {9, 0, noFile, 3},   {18, 0, "b003mafit", 5}, {18, 1, noFile, 5},
                {27, 1, "b614maTNR", 5},  {27, 1, "tnr", 5},   {27, 1, "b614maTnr", 6}, {27, 0, "", 6},
                {27, 5, "b614maTNR", -1}, {27, 2, noFile, -1}, {27, 0, noFile, 0},      {28, 2, "b003mafit", 0},
                {-27, 0, "", 0}};
    for (const auto& row : rows) {
        const char* skin = row.bodySkin == noFile ? "no file" : row.bodySkin;
        SCOPED_TRACE(testing::Message() << row.age << ' ' << row.kind << ' ' << skin);
        std::vector<SampleCharacter> characters = people(row.bodySkin == noFile ? 0 : 1);
        for (SampleCharacter& character : characters)
            character.slots[sampleSlot::bodySkin] = skin;
        const TestNeighborhood read(SampleNeighborhood{.neighbors = {{.age = row.age, .kind = row.kind}}}, characters);
        EXPECT_EQ(read.sim(0).stage(), row.stage);
        EXPECT_FALSE(read.sim(0).characterDirty() || read.sim(0).recordDirty());
    }
}

TEST(Members, AFamilyTakesEightAndKnowsThemByRecordName) {
    SampleNeighborhood content = householdOf(people(9));
    content.families.front().members.resize(7);
    content.families.front().members[1] = strangeGuid;
    content.neighbors[8].recordName = "user00001";  // the first one's character file once more
    const TestNeighborhood read(content, people(8));
    Family& family = read.family();
    ASSERT_EQ(family.memberCount(), 7);
    EXPECT_EQ(family.removeMember(read.sim(7)), -1) << "no member";
    EXPECT_FALSE(family.dirty());
    EXPECT_EQ(family.removeMember(read.sim(8)), 1);
    EXPECT_TRUE(family.dirty());
    EXPECT_EQ(family.adultCount(), 5);
    Links expected{nullptr};
    for (int i = 2; i < 7; ++i)
        expected.push_back(&read.sim(i));
    EXPECT_EQ(membersOf(family), expected);

    Family fresh(*read);
    EXPECT_EQ(fresh.removeMember(read.sim(0)), -1);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(fresh.addMember(read.sim(i)), i < 8 ? 1 : -1);
    EXPECT_TRUE(fresh.dirty() && fresh.membersResolved());
    EXPECT_EQ(fresh.memberCount(), 8);
    EXPECT_EQ(fresh.adultCount(), 8);
}

TEST(Members, OnlyTeenAndAdultAreStagesToChangeTo) {
    std::vector<SampleCharacter> child = people(1);
    child.front().tag = "child";
    const TestNeighborhood read(SampleNeighborhood{.neighbors = {{.age = 9}}}, child);
    Sim& sim = read.sim(0);
    const BodyStrings* oldBody = sim.bodyStrings();
    for (const int stage : {-1, 0, 1, 2, 3, 4, 7})
        EXPECT_EQ(sim.setStage(stage, std::make_unique<BodyStrings>()), stage >= 1 && stage <= 4 ? -2 : -3);
    EXPECT_EQ(sim.stage(), 3);
    EXPECT_FALSE(sim.characterTag() || sim.characterDirty() || sim.recordDirty() || read->isDirty());
    EXPECT_EQ(sim.setStage(6, nullptr), 1);
    EXPECT_EQ(sim.bodyStrings(), oldBody) << "no new body keeps the old one";
    EXPECT_TRUE(sim.characterTag() && sim.characterDirty() && sim.recordDirty() && read->isDirty());
}

}  // namespace
