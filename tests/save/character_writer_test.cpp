#include <numeric>

#include "tests/save/saved_files.h"

namespace {

using CharacterWriterTest = SaveTest;

TEST_F(CharacterWriterTest, EachChangedSimIsWrittenByteForByteAndNothingElse) {
    const struct {
        std::string what, name;
        BodySlots slots;
        int version, kind;
        bool teen, cut = false;
    } rows[] = {{"a boy", "Betty", childSlots(BodySex::male), 7, 0, true},
                {"no name", "", adultSlots(), 7, 1, true},
                {"the longest name", std::string(63, 'n'), teenSlots(), 8, 1, false},
                {"a longer name", std::string(64, 'n'), adultSlots(), 7, 1, false},
                {"the base game's text", "Mo", adultSlots(), 6, 1, false},
                {"a text that is cut", "Mo", adultSlots(), 7, 1, false, true},
                {"a dog", "Mo", petSlots(), 7, 5, false}};
    SampleNeighborhood content{.neighbors = {{.recordName = "robot"}}, .families = {{.members = {sampleGuid}}}};
    std::vector<SampleCharacter> characters;
    for (const auto& row : rows) {
        const auto i = static_cast<std::uint32_t>(characters.size());
        SampleCharacter character{.name = row.name, .guid = sampleGuid + i, .slots = row.slots};
        character.recordName = "user0000" + std::to_string(i);
        character.tag = row.teen ? "child" : "adult";
        character.ending = BodyEnding::atEntry33;
        if (row.cut) character.slots.fill(std::string(25, 'x'));  // together longer than the text's room
        characters.push_back(character);
        SampleNeighbor record{.age = row.teen ? 9 : 27, .skinTone = 3, .wordA = 0x1234, .wordB = -2, .gapByte = 0xEE};
        std::iota(record.personValues.begin(), record.personValues.end(), 0x1000);
        record.recordName = character.recordName;
        record.version = row.version;
        record.kind = row.kind;
        record.tailWords = {0x0102, 0x0304, 0x0506, -1};
        content.neighbors.push_back(record);
    }
    content.neighbors.push_back({.recordName = "user00099", .gapByte = 0xEE});  // stays as it is
    TestNeighborhood test(content, characters);
    EXPECT_TRUE(writeDataFiles(test.files().path()));

    Tree expected = treeOf(test.files().path());
    expected[backup] = expected[live];
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        Bytes record = savedRecord(content.neighbors[i + 1], rows[i].teen);
        if (rows[i].kind >= 2) overwrite(record, 156, ByteWriter().u16Le(rows[i].kind).u8(0xEE).u8(0xEE).written());
        overwrite(expected[live], test.built().neighborOffsets[i + 1], record);
        Bytes& file = expected[test.characterFile(characters[i].recordName)];
        expected["UserData/Characters/Backups/" + characters[i].recordName + ".200235.iff"] = file;
        file = savedCharacter(characters[i], rows[i].version);
        change(*test, static_cast<int>(i), rows[i].teen ? stageNumber::teen : stageNumber::adult);
    }
    save(test);
    EXPECT_EQ(differences(expected, treeOf(test.files().path())), "");
}

}  // namespace
