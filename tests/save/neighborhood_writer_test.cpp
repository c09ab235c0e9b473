#include "tests/save/saved_files.h"

namespace {

using NeighborhoodWriterTest = SaveTest;

TEST_F(NeighborhoodWriterTest, NewFamiliesStandWhereTheFileIsCut) {
    // A household of six, of whom one has no record, and one of two; a family that isn't listed has the highest number.
    constexpr std::uint32_t strangersGuid = 0x44434241;
    std::vector<SampleCharacter> characters;
    SampleNeighborhood content{
        .families = {{.number = 3, .members = {}}, {.number = 40, .name = "Default"}, {.members = {}}}};
    for (std::uint32_t i = 0; i < 7; ++i) {
        const std::string recordName = "user0000" + std::to_string(i);
        characters.push_back({.recordName = recordName, .guid = sampleGuid + i, .hasPictures = false});
        content.neighbors.push_back({.recordName = recordName});
        content.families[i < 5 ? 0 : 2].members.push_back(sampleGuid + i);
    }
    content.families[0].members.push_back(strangersGuid);
    const std::string names[] = {"", "Mills", std::string(21, 'x'), std::string(24, 'y'), std::string(99, 'z')};
    const struct {
        const char* what;
        bool freeRoom, map, allBehind;
    } rows[] = {{"before the free room", true, true, false},
                {"before the map", false, true, false},
                {"at the end", false, false, false},
                // Nothing is written where a piece lay behind the cut, and a record that is gone isn't waited for.
                {"before all pieces", false, true, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        content.freeRoom = row.freeRoom;
        content.map = row.map;
        if (row.allBehind) content.before = {{.type = "XXXX"}};
        TestNeighborhood test(content, characters);
        EXPECT_TRUE(writeDataFiles(test.files().path()));

        const NeighborhoodFile& built = test.built();
        Bytes file = built.bytes;
        overwrite(file, 61, Bytes(3));
        overwrite(file, built.neighborOffsets[6], savedRecord(content.neighbors[6], false));
        overwriteFamily(file, built.families[0], 70'000, strangersGuid);
        file.resize(row.allBehind ? 64 : row.freeRoom ? built.freeRoomOffset : row.map ? built.mapOffset : file.size());
        for (int i = 0; i < 5; ++i) {
            const Bytes record = newFamilyRecord(41 + i, 20'000 - i, sampleGuid + static_cast<unsigned>(i), names[i]);
            file.insert(file.end(), record.begin(), record.end());
            moveOut(test, 0, i, names[i], 20'000 - i);
        }
        test.family(0).setFunds(70'000);
        test.family(1).setFunds(1);  // nobody left it, so it stays as the file has it
        change(*test, 6, stageNumber::adult);
        save(test);
        EXPECT_EQ(test.files().bytesOf(live), file);
        EXPECT_FALSE(test->isDirty() || test->hasNewFamilies());

        // A second save of the run goes on behind what the first one left.
        if (!row.allBehind) overwriteFamily(file, built.families[2], 5, sampleGuid + 6);
        const Bytes record = newFamilyRecord(46, 10'000, sampleGuid + 5, "Late");
        file.insert(file.end(), record.begin(), record.end());
        test.family(1).setFunds(5);
        moveOut(test, 1, 5, "Late", 10'000);
        change(*test, 6, stageNumber::adult);
        save(test, 8);
        EXPECT_EQ(test.files().bytesOf(live), file);
        EXPECT_EQ(test.files().bytesOf(backup), built.bytes);
        moveOut(test, 1, 6, "Last", 0);  // out of a family whose table a save has shortened
        save(test, 9);
        EXPECT_FALSE(test->isDirty());
    }
}

}  // namespace
