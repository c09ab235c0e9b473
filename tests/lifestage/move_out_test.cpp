// Move Out, in memory.
#include "lifestage/move_out.h"

#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

// A family of adults, but for the last one's age.
TestNeighborhood household(unsigned members, std::int32_t funds, int lastAge = 27) {
    std::vector<SampleCharacter> people;
    for (unsigned i = 0; i < members; ++i)
        people.push_back({.recordName = "user0000" + std::to_string(i + 1), .guid = sampleGuid + i});
    SampleNeighborhood content = householdOf(people);
    content.families.front().funds = funds;
    content.neighbors.back().age = lastAge;
    return TestNeighborhood(content, people);
}

TEST(MoveOutTest, SharesTheMoneyIfThereIsEnough) {
    const struct {
        std::int32_t funds, stays, goes;
    } rows[] = {{9'999, 9'999, 0}, {10'000, 0, 10'000}, {20'001, 1, 20'000}, {-1, -20'001, 20'000}};  // a debt is much
    for (const auto& row : rows) {
        const TestNeighborhood read = household(1, row.funds);  // the last adult may go: that rule is the window's
        EXPECT_EQ(read.family().memberCount(), 1);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(moveOut(&read.sim(0)), row.goes > 0 ? 1 : -1) << row.funds;
        EXPECT_EQ(read.family().funds(), row.stays);
        EXPECT_EQ(read->hasNewFamilies() ? read->newFamily(0)->funds() : 0, row.goes);
        EXPECT_EQ(box->title + ": " + box->text,
                  row.goes > 0 ? ": "
                               : "Insufficient funds: Your newly independent sim will need some starting funds!  The "
                                 "family must save up at least 10,000 before a member can move out.");
    }
}

TEST(MoveOutTest, LeavesTwoFamiliesBehind) {
    const TestNeighborhood read = household(4, 25'000, 9);
    EXPECT_EQ(read.family().memberCount(), 4);
    EXPECT_EQ(moveOut(&read.sim(1)), 1);
    EXPECT_TRUE(read.family().memberCount() == 3 && !read.family().hasMember(read.sim(1)));
    EXPECT_EQ(read.family().adultCount(), 2);
    EXPECT_EQ(read->familyCount(), 1) << "a new family isn't listed before it is saved";
    Family& moved = *read->newFamily(0);
    EXPECT_STREQ(moved.name(), "Meadows");
    EXPECT_EQ(moved.member(0), &read.sim(1));
    EXPECT_TRUE(read.family().dirty() && moved.dirty() && moved.membersResolved());

    // As after it went by way of another family that lists the same GUID: its old one doesn't list it any more.
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(moveOut(&read.sim(1)), -1);
    EXPECT_FALSE(box->shown);
    EXPECT_EQ(read->newFamilyCount(), 1);
}

TEST(MoveOutTest, OnlyAnAdultGoesAndAnEleventhWaitsForASave) {
    const TestNeighborhood read = household(2, 50'000, 18);
    EXPECT_EQ(read.family().memberCount(), 2);
    EXPECT_EQ(moveOut(&read.sim(1)), -1);
    EXPECT_FALSE(read->hasNewFamilies());
    for (int i = 1; i <= 11; ++i)
        EXPECT_EQ(read->addNewFamily(std::make_unique<Family>(*read)), i <= 10 ? 1 : -1);
    EXPECT_EQ(moveOut(&read.sim(0)), -1);
    EXPECT_EQ(read.family().funds(), 50'000);
}

}  // namespace
