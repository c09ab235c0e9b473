// Move Out, in memory.
#include "lifestage/move_out.h"

#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

std::vector<SampleCharacter> people(int count) {
    std::vector<SampleCharacter> characters;
    for (int i = 0; i < count; ++i)
        characters.push_back(
            {.recordName = "user0000" + std::to_string(i + 1), .guid = sampleGuid + static_cast<unsigned>(i)});
    return characters;
}

SampleNeighborhood householdWith(int members, std::int32_t funds, int lastAge) {
    SampleNeighborhood content = householdOf(people(members));
    content.families.front().funds = funds;
    content.families.front().name = "Q&A";
    content.neighbors.back().age = lastAge;
    return content;
}

// A family of adults (but for the last one's age), resolved.
class Household : public TestNeighborhood {
 public:
    Household(int members, std::int32_t funds, int lastAge = 27)
        : TestNeighborhood(householdWith(members, funds, lastAge), people(members)) {
        family().memberCount();
    }

    // The members' record names, last digits only.
    std::string members() const {
        std::string digits;
        for (std::int32_t i = 0; i < family().memberCount(); ++i)
            digits += family().member(i)->recordName()[8];
        return digits;
    }
};

TEST(MoveOutTest, SharesTheMoney) {
    const struct {
        std::int32_t funds, stays, goes;
    } rows[] = {
        {10'000, 0, 10'000},      {20'000, 0, 20'000},   {20'001, 1, 20'000},
        {50'000, 30'000, 20'000}, {-1, -20'001, 20'000},  // a debt counts as a large amount
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.funds);
        Household household(2, row.funds);
        EXPECT_EQ(moveOut(&household.sim(0)), 1);
        EXPECT_EQ(household.family().funds(), row.stays);
        EXPECT_EQ(household->newFamily(0)->funds(), row.goes);
    }
}

TEST(MoveOutTest, IsRefusedForWantOfMoney) {
    Household household(2, 9'999);
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(moveOut(&household.sim(0)), -1);
    EXPECT_EQ(box.title(), "Insufficient funds");
    EXPECT_EQ(
        box.text(),
        "Your newly independent sim will need some starting funds!  The family must save up at least 10,000 before a "
        "member can move out.");
    EXPECT_EQ(household.members(), "12");
    EXPECT_FALSE(household->isDirty());
}

TEST(MoveOutTest, LeavesTwoFamiliesBehind) {
    Household household(4, 45'000, 9);
    Sim* sim = &household.sim(1);
    EXPECT_EQ(moveOut(sim), 1);
    EXPECT_EQ(household.members(), "134");
    EXPECT_EQ(household.family().adultCount(), 2);
    EXPECT_TRUE(household.family().dirty());

    Neighborhood& neighborhood = *household;
    EXPECT_TRUE(neighborhood.isDirty() && neighborhood.hasNewFamilies());
    EXPECT_EQ(neighborhood.familyCount(), 1) << "a new family isn't listed before it is saved";
    Family& moved = *neighborhood.newFamily(0);
    EXPECT_STREQ(moved.name(), "Q&A");
    EXPECT_EQ(moved.member(0), sim);
    EXPECT_TRUE(moved.dirty() && moved.membersResolved());
}

TEST(MoveOutTest, OnlyAnAdultGoes) {
    Household household(2, 50'000, 18);
    EXPECT_EQ(moveOut(&household.sim(1)), -1);
    EXPECT_EQ(household.members(), "12");
    EXPECT_FALSE(household->hasNewFamilies());
    EXPECT_EQ(moveOut(&household.sim(0)), 1) << "the last adult may go: that rule is the window's";
}

TEST(MoveOutTest, AnEleventhWaitsForASave) {
    Household household(1, 50'000);
    Neighborhood& neighborhood = *household;
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(neighborhood.addNewFamily(std::make_unique<Family>(neighborhood)), 1);
    EXPECT_EQ(neighborhood.addNewFamily(std::make_unique<Family>(neighborhood)), -1);
    EXPECT_EQ(moveOut(&household.sim(0)), -1);
    EXPECT_EQ(household.family().funds(), 50'000);
}

}  // namespace
