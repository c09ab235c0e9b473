#include "tests/save/changed_household.h"

namespace {

using NeighborhoodWriterTest = ChangedHousehold;

const SampleNeighborhood allBehindFreeRoom = {.before = {{.type = "XXXX"}}};

TEST_F(NeighborhoodWriterTest, NewFamiliesStandWhereTheFileIsCut) {
    const std::pair<const char*, SampleNeighborhood> shapes[] = {
        {"before the free room", {.freeRoom = true}},
        {"before the map", {}},
        {"at the end", {.map = false}},
        {"before all pieces, of which none is written then", allBehindFreeRoom}};
    for (const auto& [what, shape] : shapes) {
        SCOPED_TRACE(what);
        start(shape);
        saveAt(7);
        EXPECT_EQ(states(), allSaved);
        EXPECT_FALSE(test()->isDirty() || test()->hasNewFamilies());
    }
}

TEST_F(NeighborhoodWriterTest, ASecondSaveGoesOnBehindTheFirst) {
    for (const bool piecesAreGone : {false, true}) {
        SCOPED_TRACE(piecesAreGone);
        start(piecesAreGone ? allBehindFreeRoom : SampleNeighborhood{.freeRoom = true});
        saveAt(7);
        Bytes expected = files().bytesOf(live);
        if (!piecesAreGone) overwriteFamily(expected, 5, {stranger});
        const Bytes anns = newFamilyRecord(43, 900, 1, "Ann's");
        expected.insert(expected.end(), anns.begin(), anns.end());

        change(test().sim(1), stageNumber::adult);
        moveOut(test(), 0, "Ann's", 900, 0);
        test().family(0).setFunds(5);
        saveAt(8);
        EXPECT_EQ(files().bytesOf(live), expected);
        EXPECT_FALSE(test()->isDirty());
    }
}

TEST_F(NeighborhoodWriterTest, ANewFamilysNameTakesWhatRoomThereIs) {
    const TestNeighborhood test(SampleNeighborhood{.neighbors = {{}}, .map = false}, {{}});
    EXPECT_TRUE(writeDataFiles(test.files().path()));
    Bytes expected = test.built().bytes;
    int number = 0;
    for (const std::string& name : {std::string(), std::string(20, 'x'), std::string(21, 'x'), std::string(99, 'z')}) {
        moveOut(test, 0, name, 20'000);
        const Bytes record = newFamilyRecord(++number, 20'000, sampleGuid, name);
        expected.insert(expected.end(), record.begin(), record.end());
    }
    save(test);
    EXPECT_EQ(test.files().bytesOf(live), expected);
}

TEST_F(NeighborhoodWriterTest, AFullTableOfFamiliesTakesNoNewOne) {
    const TestNeighborhood test({.neighbors = {{}}, .families = std::vector<SampleFamily>(100)}, {{}});
    ASSERT_TRUE(writeDataFiles(test.files().path()));
    const Family* const last = &test.family(99);
    moveOut(test, 0, "Late", 500);
    save(test);
    EXPECT_FALSE(test->isDirty());
    EXPECT_EQ(test->familyCount(), 100);
    EXPECT_EQ(&test.family(99), last);
    EXPECT_EQ(test->simCount(), 1);
}

}  // namespace
