#include <numeric>

#include "tests/save/saved_files.h"

namespace {

using CharacterWriterTest = SaveTest;

// No two fields alike, and bytes between them that aren't written again.
SampleNeighbor recordOf(int version, int age, int kind) {
    SampleNeighbor record{.version = version, .age = age, .skinTone = 3, .wordA = 0x1234, .wordB = -2};
    std::iota(record.personValues.begin(), record.personValues.end(), 0x1000);
    record.kind = kind;
    record.tailWords = {0x0102, 0x0304, 0x0506, -1};
    record.gapByte = 0xEE;
    return record;
}

TEST_F(CharacterWriterTest, AChangedSimIsWrittenByteForByteAndNothingElse) {
    BodySlots longSlots;
    longSlots.fill(std::string(25, 'x'));
    const struct {
        const char* what;
        SampleNeighbor record;
        SampleCharacter sim;
        bool teen = false;
    } rows[] = {
        {"a boy", recordOf(7, 9, 0), {.name = "Betty", .tag = "child", .slots = childSlots(BodySex::male)}, true},
        {"no name", recordOf(7, 9, 1), {.name = ""}, true},
        {"the longest name", recordOf(8, 27, 1), {.name = std::string(63, 'n'), .slots = teenSlots()}},
        {"a longer name", recordOf(7, 27, 1), {.name = std::string(64, 'n')}},
        {"the base game's text", recordOf(6, 27, 1), {}},
        {"a text that is longer than its room", recordOf(-1, 27, 1), {.slots = longSlots}},
        {"a dog", recordOf(7, 27, 5), {.slots = petSlots()}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        SampleCharacter sim = row.sim;
        sim.ending = BodyEnding::atEntry33;  // the text with all 50 slots
        const SampleNeighbor unchanged{.recordName = "user00099", .gapByte = 0xEE};
        const SampleNeighborhood content{.neighbors = {{.recordName = "robot"}, row.record, unchanged},
                                         .families = {{}}};
        const TestNeighborhood test(content, {sim});
        EXPECT_TRUE(writeDataFiles(test.files().path()));

        Tree expected = treeOf(test.files().path());
        expected[backup] = expected[live];
        Bytes record = savedRecord(row.record, row.teen);
        if (row.record.kind == 5) overwrite(record, 156, {5, 0, 0xEE, 0xEE});
        overwrite(expected[live], test.built().neighborOffsets[1], record);
        const std::string file = TestNeighborhood::characterFile("user00001");
        expected["UserData/Characters/Backups/user00001.200235.iff"] = expected[file];
        expected[file] = savedCharacter(sim, row.record.version);
        change(test.sim(0), row.teen ? stageNumber::teen : stageNumber::adult);
        save(test);
        EXPECT_EQ(differences(expected, treeOf(test.files().path())), "");
    }
}

}  // namespace
