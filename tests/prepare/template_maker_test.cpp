#include "prepare/template_maker.h"

#include "tests/prepare/character_chunks.h"
#include "tests/save/saved_files.h"
#include "tests/support/body_slots.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

std::string repeated(const std::string& text, int times) {
    return times == 0 ? "" : text + repeated(text, times - 1);
}

// Id and offset of each chunk of the type, and the offsets of free room.
std::string placesIn(const IffWalk& walk, const std::string& type) {
    std::string places;
    for (const WalkedChunk& chunk : walk.chunks) {
        if (chunk.type == type) places += std::to_string(chunk.id) + " at " + std::to_string(chunk.offset) + ", ";
        if (chunk.type == "XXXX") places += "free at " + std::to_string(chunk.offset) + ", ";
    }
    return places;
}

TEST(TemplateTest, ChunksFillTheRoomInFrontOfTheirPlacesOrFollowBehind) {
    // There are 3912 bytes in front of the definition, and 49596 for pictures.
    const struct {
        const char *what, *type;
        std::vector<std::size_t> sizes;
        const char* places;
    } rows[] = {
        {"nothing", "TREE", {}, "free at 64, free at 4420, "},
        {"a whole fit", "TREE", {100, 3812}, "0 at 64, 1 at 164, free at 4420, "},
        {"a gap of 1", "TREE", {3911}, "free at 64, free at 4420, 0 at 55155, "},
        {"a gap of 75", "TREE", {3837, 80}, "1 at 64, free at 144, free at 4420, 0 at 55155, "},
        {"a gap of 76", "TREE", {3836}, "0 at 64, free at 3900, free at 4420, "},
        {"too much", "TREE", {2000, 2000, 1912}, "0 at 64, 2 at 2064, free at 4420, 1 at 55155, "},
        {"one large picture", "BMP_", {49596}, "free at 64, 0 at 4420, "},
        {"seven pictures, of which two don't fit",
         "BMP_",
         {9000, 9000, 9000, 9000, 9000, 9000, 4521},
         "free at 64, 0 at 4420, 1 at 13420, 2 at 22420, 3 at 31420, 4 at 40420, free at 49420, 5 at 55155, "
         "6 at 64155, "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Chunks whole = chunksOf({});
        Chunks chunks = {chunkIn(whole, "OBJD", 128)};
        for (const std::size_t size : row.sizes)
            chunks.push_back({row.type, static_cast<std::uint16_t>(chunks.size() - 1), "", Bytes(size - 76)});
        const IffWalk walk = walkIff(makeTemplate(chunks));
        EXPECT_EQ(walk.fault, "");
        EXPECT_EQ(placesIn(walk, row.type), row.places);
        EXPECT_EQ(walk.find("STR#", 200).offset, 54016U);
    }
}

TEST(TemplateTest, HoldsTheBehaviourAndNothingOfTheSim) {
    const Chunks source = chunksOf({.name = "Ann", .behaviour = BehaviourSet::newer});
    const Bytes file = makeTemplate(source);
    const IffWalk walk = walkIff(file);
    ASSERT_EQ(walk.fault, "");
    EXPECT_EQ(placesIn(walk, "OBJD"), "128 at 3976, ") << "without free room: this set fills all";
    for (const IffChunk& chunk : source) {
        if (chunk.type == "BMP_" || chunk.type == "CTSS" || chunk.type == "rsmp" || chunk.id == 200) continue;
        const WalkedChunk carried = walk.find(chunk.type, chunk.id);
        SCOPED_TRACE(chunk.type + std::to_string(chunk.id));
        EXPECT_EQ(textAt(file, carried.offset + 76, carried.size - 76), textAt(chunk.content));
        EXPECT_EQ(carried.label, chunk.type == "OBJD" ? "user00000" : chunk.label);
    }
    const std::string entryWithoutLabel = "DJBO\1\0\0\0\x88\x0F\0\0\x80\0\x10\0\0\0"s;
    EXPECT_NE(textAt(file).find(entryWithoutLabel), std::string::npos);
    const std::string name = "CTSS\0\0\0\x98\x07\xD0\0\x10"s + std::string(64, '\0') + "\xFD\xFF\2\0\1"s;
    EXPECT_EQ(textAt(file, 4268, 152), name + std::string(71, '\0'));
    EXPECT_EQ(walk.find("BMP_", 2002).offset, 4420U);
    // The sample's background in 41 rows, each of which ends with a byte of fill.
    EXPECT_EQ(textAt(file, 4420 + 76 + 54, 12956), repeated(repeated("\xE0\xC4\x9C", 105) + '\0', 41));
    const std::string text = textAt(sampleBodyText({}, BodyEnding::atEntry32));
    const std::string body =
        "STR#\0\0\x04\x73\0\xC8\0\x10"
        "bodystring"s +
        std::string(54, '\0') + "\xFD\xFF\x21\0\1adult"s + text + std::string(1041 - 115, '\xA3') +
        std::string(12, '\0') + "rsmp";
    EXPECT_EQ(textAt(file, 54016, body.size()), body);
}

TEST(TemplateTest, IsNotMadeIfASearchOfItsMapWouldGoWrong) {
    for (const char* label : {"", "DJBO", "SSTC"}) {
        Chunks source = chunksOf({});
        chunkIn(source, "STR#", 258).label = label;
        EXPECT_EQ(makeTemplate(source).empty(), *label != '\0') << label;
    }
    Chunks source = chunksOf({});
    source.push_back({.type = "TREE", .content = Bytes(1 << 24)});
    EXPECT_TRUE(makeTemplate(source).empty()) << "the map is behind what 3 bytes reach";
}

using SimOfATemplateTest = SaveTest;

TEST_F(SimOfATemplateTest, IsReadAgainAsItWasSavedOnBothRoads) {
    const std::vector<SampleCharacter> characters = {
        {.name = "Ann", .guid = 0x01020304, .tag = "child", .slots = childSlots()},
        {.recordName = "user00002", .name = "Bob", .guid = 0x05060708, .slots = teenSlots()},
        {.recordName = "user00003", .name = "Cleo", .guid = 0x090A0B0C, .slots = adultSlots()}};
    TestNeighborhood test(householdOf(characters), characters);
    EXPECT_TRUE(writeDataFiles(test.files().path()));
    test.files().write("Template.iff", makeTemplate(chunksOf({.behaviour = BehaviourSet::newer})));
    std::vector<BodySlots> slots;
    for (const int sim : {0, 1, 2}) {
        change(test.sim(sim), sim == 2 ? stageNumber::adult : stageNumber::teen);
        slots.push_back(slotsOf(*test.sim(sim).bodyStrings()));
    }
    save(test);
    for (const bool map : {true, false}) {
        for (std::size_t i = 0; i < characters.size(); ++i) {
            SCOPED_TRACE(characters[i].name + (map ? " with a map" : " without a map"));
            const std::string path = test.characterFile(characters[i].recordName);
            Bytes file = test.files().bytesOf(path);
            EXPECT_EQ(walkIff(file).fault, "");
            if (!map) overwrite(file, 61, Bytes(3));
            test.files().write(path, file);
            test.load();
            Sim& sim = test.sim(static_cast<int>(i));
            ASSERT_NE(sim.bodyStrings(), nullptr);
            EXPECT_EQ(slotsOf(*sim.bodyStrings()), slots[i]);
            EXPECT_EQ(sim.name(), characters[i].name);
            EXPECT_TRUE(std::ranges::equal(sim.guid().bytes(), SaveTest::u32(characters[i].guid)));
            EXPECT_TRUE(sim.characterTag());
        }
    }
}

}  // namespace
