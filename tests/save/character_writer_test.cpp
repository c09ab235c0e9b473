#include "tests/save/saved_files.h"

namespace {

// A pair takes 1 more than twice the size.
BodySlots slotsOf(std::size_t size) {
    BodySlots slots;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        slots[i] = std::string(size, static_cast<char>('A' + i % 26));
    }
    return slots;
}

BodySlots shortWinterSlots() {
    BodySlots slots = adultSlots();
    slots[sampleSlot::w100Mesh] = "w";
    return slots;
}

// A boy; a teen with an empty name; the longest name; one that fills its room; one beyond all room; the base game's
// text; a version below zero; a winter outfit of one letter; texts longer than their place and longer than all room;
// a cat; a dog; a record name shorter than its room.
const struct Row {
    std::string recordName, name;
    BodySlots slots;
    int version, kind;
    bool becomesTeen;
} rows[] = {{"user00000", "Betty", childSlots(BodySex::male), 7, 0, true},
            {"user00001", "", teenSlots(), 7, 1, false},
            {"user00002", std::string(63, 'n'), adultSlots(), 7, 1, false},
            {"user00003", std::string(64, 'n'), adultSlots(), 7, 1, false},
            {"user00004", std::string(120, 'n'), adultSlots(), 7, 1, false},
            {"user00005", "Mo", adultSlots(), 6, 1, false},
            {"user00006", "Mo", adultSlots(), -2, 1, false},
            {"user00007", "Mo", shortWinterSlots(), 8, 0, false},
            {"user00008", "Mo", slotsOf(25), 7, 1, false},
            {"user00009", "Mo", slotsOf(74), 7, 1, false},
            {"user00010", "Mo", petSlots(), 7, 2, false},
            {"user00011", "Mo", petSlots(), 7, 5, false},
            {"user7", "Mo", adultSlots(), 7, 1, true}};

SampleNeighbor neighborOf(const Row& row, std::uint32_t guid) {
    SampleNeighbor neighbor{.recordName = row.recordName,
                            .version = row.version,
                            .age = row.becomesTeen ? 9 : 27,
                            .skinTone = 3,
                            .wordA = 0x1234,
                            .wordB = -2,
                            .kind = row.kind,
                            .tailWords = {0x0102, 0x0304, 0x0506, -1},
                            .gapByte = 0xEE,
                            .guid = guid,
                            .relationships = {{.neighborId = 3, .values = {50, -50}}}};
    for (std::size_t value = 0; value < neighbor.personValues.size(); ++value) {
        neighbor.personValues[value] = static_cast<int>(1000 * value + guid % 256);
    }
    return neighbor;
}

class CharacterWriterTest : public SaveTest {};

TEST_F(CharacterWriterTest, EachChangedSimIsWrittenByteForByteAndNothingElse) {
    SampleNeighborhood content{.neighbors = {{.recordName = "robot"}}, .families = {{.members = {sampleGuid}}}};
    std::vector<SampleCharacter> characters;
    for (const Row& row : rows) {
        const auto guid = static_cast<std::uint32_t>(sampleGuid + characters.size());
        content.neighbors.push_back(neighborOf(row, guid));
        characters.push_back({.recordName = row.recordName,
                              .name = row.name,
                              .guid = guid,
                              .tag = row.becomesTeen ? "child" : "adult",
                              .slots = row.slots,
                              .ending = BodyEnding::atEntry33,
                              .hasPictures = false});
    }
    content.neighbors.push_back({.recordName = "user00099", .gapByte = 0xEE});
    characters.push_back({.recordName = "user00099", .hasPictures = false});
    TestNeighborhood test(content, characters);
    writeTemplates(test.files());

    Tree expected = treeOf(test.files());
    expected[firstBackup] = expected[live];
    expected["UserData/Backups/"] = expected["UserData/Characters/Backups/"] = {};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        Bytes record = savedRecord(content.neighbors[i + 1], rows[i].becomesTeen);
        if (rows[i].kind >= 2) overwrite(record, 156, ByteWriter().u16Le(rows[i].kind).u8(0xEE).u8(0xEE).written());
        overwrite(expected[live], test.built().neighborOffsets[i + 1], record);
        Bytes& file = expected[test.characterFile(rows[i].recordName)];
        expected["UserData/Characters/Backups/" + rows[i].recordName + ".200235.iff"] = file;
        file = savedCharacter(characters[i], rows[i].version);
        change(test, static_cast<int>(i), rows[i].becomesTeen ? stageNumber::teen : stageNumber::adult);
    }
    save(test);
    EXPECT_EQ(differences(expected, treeOf(test.files())), "");
    EXPECT_EQ(std::filesystem::current_path(), test.files().path("UserData"));
    EXPECT_FALSE(test->isDirty());
    for (int i = 0; i < test->simCount(); ++i) {
        EXPECT_FALSE(test.sim(i).characterDirty() || test.sim(i).recordDirty()) << i;
    }

    test.load();
    EXPECT_STREQ(test.sim(0).name(), "Betty");
    EXPECT_EQ(test.sim(0).stage(), stageNumber::teen);
    EXPECT_TRUE(test.sim(0).characterTag());
    EXPECT_EQ(test.sim(0).bodyStrings()->version(), 7);
    EXPECT_EQ(test.sim(5).bodyStrings()->version(), 6);
    EXPECT_STREQ(test.sim(5).bodyStrings()->headSkin(), "c012falgt_asian");
}

}  // namespace
