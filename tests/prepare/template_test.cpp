// Of which character file a template is made, and what it holds.
#include "prepare/template_maker.h"

#include <functional>

#include "gamefiles/templates.h"
#include "prepare/character_check.h"
#include "prepare/neutral_picture.h"
#include "prepare/source_choice.h"
#include "save/template_layout.h"
#include "tests/prepare/unprepared_game.h"
#include "tests/support/iff_walk.h"
#include "world/character_layout.h"

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

// The maker and the save may not share a table, since the one tests the other.
static_assert(templateObject == characterTemplate::objectChunk && templateName == characterTemplate::nameChunk);
static_assert(templateBodyStrings == characterTemplate::bodyStringsChunk);
static_assert(smallestTemplateSize == characterTemplate::smallestSize);

TEST(CharacterCheckTest, OnlyAPlayersAdultServesAndEachOtherIsRefusedWithAReason) {
    const SampleCharacter older, newer{.behavior = BehaviorSet::newer, .freeRoom = true};
    EXPECT_EQ(refusalOf(chunksOf(older)) + refusalOf(chunksOf(newer)), "");
    const std::string noAdult = "has the body strings of no adult", asleep = "has a main tree that does nothing";
    const std::string noPerson = "has the behavior of something but a person";
    EXPECT_EQ(refusalOf(chunksOf({.tag = "child"})), noAdult);
    EXPECT_EQ(refusalOf(chunksOf({.behavior = BehaviorSet::townie})),
              "has the chunk OBJf 128 of the game's own characters");

    const std::tuple<std::string, int, std::function<void(IffChunk&)>, std::string> rows[] = {
        {"OBJD", 128, [](auto& c) { c.type = "OBJE"; }, "has 0 chunks OBJD instead of one"},
        {"XXXX", 4101, [](auto& c) { c.type = "CTSS"; }, "has 2 chunks CTSS instead of one"},
        {"STR#", 200, [](auto& c) { c.id = 201; }, "has 0 chunks STR# 200 instead of one"},
        {"GLOB", 128, [](auto& c) { c.type = "XXXX"; }, "has 0 chunks GLOB instead of one"},
        {"SLOT", 128, [](auto& c) { c.type = "XXXX"; }, "has 0 chunks SLOT instead of one"},
        {"BHAV", 4096, [](auto& c) { c.id = 4100; }, "has 0 chunks BHAV 4096 instead of one"},
        {"BHAV", 4097, [](auto& c) { c.id = 4100; }, "has 0 chunks BHAV 4097 instead of one"},
        {"BHAV", 4098, [](auto& c) { c.id = 4100; }, "has 0 chunks BHAV 4098 instead of one"},
        {"BHAV", 4100, [](auto& c) { c.id = 4099; }, "has the chunk BHAV 4099 of the game's own characters"},
        {"OBJD", 128, [](auto& c) { c.content.pop_back(); }, "has an object definition of another size"},
        {"OBJD", 128, [](auto& c) { c.content[18] = 4; }, "has an object definition without 2 in word 9"},
        {"OBJD", 128, [](auto& c) { c.content[11] = 0; }, "has an object definition without 4096 in word 5"},
        {"OBJD", 128, [](auto& c) { c.content[86] = 0; }, "has an object definition without 4097 in word 43"},
        {"OBJD", 128, [](auto& c) { c.content[94] = 0; }, "has an object definition without 4098 in word 47"},
        {"GLOB", 128, [](auto& c) { c.content = bytesFrom("PersonGlobals\0\xA3"s); }, ""},
        {"GLOB", 128, [](auto& c) { c.content = bytesFrom("PersonGlobal"); }, noPerson},
        {"GLOB", 128, [](auto& c) { c.content[0] = 12; }, noPerson},
        {"GLOB", 128, [](auto& c) { c.content.clear(); }, noPerson},
        {"STR#", 200, [](auto& c) { c.content.resize(10); }, noAdult},
        {"BHAV", 4096, [](auto& c) { c.content.resize(23); }, asleep},
        {"BHAV", 4096, [](auto& c) { std::ranges::fill(c.content, 0x1F); }, asleep},
        {"BHAV", 4096, [](auto& c) { c.content = ByteWriter().fillTo(25).u8(0x20).fillTo(36).written(); }, ""},
    };
    for (const auto& [type, id, change, refusal] : rows) {
        SCOPED_TRACE(type + " " + std::to_string(id) + ": " + refusal);
        Chunks chunks = chunksOf(newer);
        change(chunkIn(chunks, type, id));
        EXPECT_EQ(refusalOf(chunks), refusal);
    }
}

TEST(SourceChoiceTest, TheFirstFileOfTheMostFrequentBehaviorIsChosen) {
    const auto chosen = [](const Chunks& last) {
        SourceChoice choice;
        choice.add("old", chunksOf({}));
        choice.add("new", chunksOf({.behavior = BehaviorSet::newer}));
        choice.add("last", last);
        return choice.best();
    };
    Chunks chunks = chunksOf({.name = "Ann", .guid = 7, .behavior = BehaviorSet::newer, .freeRoom = true});
    std::swap(chunks[0], chunks[7]);                                        // in another order
    std::fill_n(chunkIn(chunks, "OBJD", 128).content.begin() + 140, 4, 7);  // the second GUID
    EXPECT_EQ(SourceChoice().best() + chosen(chunks), "new");
    const std::pair<const char*, void (*)(IffChunk&)> rows[] = {{"OBJD", [](auto& c) { c.content[139] ^= 1; }},
                                                                {"OBJD", [](auto& c) { c.content[144] ^= 1; }},
                                                                {"SLOT", [](auto& c) { c.content[4] ^= 1; }},
                                                                {"SLOT", [](auto& c) { c.label = "slots"; }},
                                                                {"SLOT", [](auto& c) { c.flags = 0; }}};
    for (const auto& [type, change] : rows) {
        Chunks other = chunks;
        change(chunkIn(other, type, 128));
        EXPECT_EQ(chosen(other), "old") << type << " makes three behaviors of one file each";
    }
    SourceChoice choice;
    Chunks shipped = chunks;
    overwrite(chunkIn(shipped, "BHAV", 4098).content, 12, ByteWriter().u16Le(4100).written());
    for (const Chunks& each : {shipped, shipped, chunksOf({})})
        choice.add(each == shipped ? "shipped" : "own", each);
    EXPECT_EQ(choice.best(), "own") << "as its load tree calls no tree of the file's own";
}

TEST(TemplateTest, ChunksFillTheRoomInFrontOfTheirPlacesOrFollowBehind) {
    // There are 3912 bytes in front of the definition, and 49596 for pictures. Each place has its chunk's id.
    const std::tuple<const char*, const char*, std::vector<std::size_t>, const char*> rows[] = {
        {"a gap of 75", "TREE", {3837, 80}, "1 at 64, free at 144, free at 4420, 0 at 55155, "},
        {"a gap of 76", "TREE", {3836}, "0 at 64, free at 3900, free at 4420, "},
        {"too much", "TREE", {2000, 2000, 1912}, "0 at 64, 2 at 2064, free at 4420, 1 at 55155, "},
        {"too many pictures", "BMP_", {45'000, 5'000}, "free at 64, 0 at 4420, free at 49420, 1 at 55155, "},
    };
    for (const auto& [what, type, sizes, expected] : rows) {
        SCOPED_TRACE(what);
        Chunks whole = chunksOf({});
        Chunks chunks = {chunkIn(whole, "OBJD", 128)};
        for (const std::size_t size : sizes)
            chunks.push_back({type, static_cast<std::uint16_t>(chunks.size() - 1), "", Bytes(size - 76)});
        const IffWalk walk = walkIff(makeTemplate(chunks));
        EXPECT_EQ(walk.fault, "");
        std::string places;
        for (const WalkedChunk& chunk : walk.chunks) {
            if (chunk.type == type) places += std::to_string(chunk.id) + " at " + std::to_string(chunk.offset) + ", ";
            if (chunk.type == "XXXX") places += "free at " + std::to_string(chunk.offset) + ", ";
        }
        EXPECT_EQ(places, expected);
    }
}

TEST(NeutralPictureTest, EachPixelIsTheFirstAndOtherFormatsStay) {
    Bytes picture = portraitBitmap(3, 2);  // rows of 9 bytes and 3 of fill
    overwrite(picture, 54, bytesFrom("abcdefghi123ABCDEFGHI456"));
    Bytes fromTheTop = picture;
    overwrite(fromTheTop, 22, ByteWriter().u32Le(-2).written());
    for (const Bytes& each : {picture, fromTheTop})
        EXPECT_EQ(textAt(neutralPicture(each)), textAt(each, 0, 54) + "abcabcabc123abcabcabc456");

    // Fields of the headers with values of other kinds of pictures or of broken ones.
    const std::pair<std::size_t, std::vector<std::int64_t>> others[] = {
        {0, {0}}, {10, {-1, 53, 55, 79}}, {18, {-1, 0, 5, 0x7FFFFFFF}}, {22, {3, -0x80000000LL}}, {28, {8}}, {30, {1}}};
    for (const auto& [field, values] : others) {
        for (const std::int64_t value : values) {
            Bytes other = picture;
            overwrite(other, field, ByteWriter().u32Le(value).written());
            EXPECT_EQ(neutralPicture(other), other) << field << " " << value;
        }
    }
    picture.resize(53);
    EXPECT_EQ(neutralPicture(picture), picture);
}

TEST(TemplateTest, HoldsTheBehaviorAndNothingOfTheSim) {
    Chunks source = chunksOf({.name = "Ann", .behavior = BehaviorSet::newer});
    const Bytes file = makeTemplate(source);
    const IffWalk walk = walkIff(file);
    ASSERT_EQ(walk.fault, "");
    for (IffChunk& chunk : source) {
        if (chunk.type == "CTSS" || chunk.type == "rsmp" || chunk.id == 200) continue;
        if (chunk.type == "BMP_") chunk.content = neutralPicture(chunk.content);
        if (chunk.type == "OBJD") chunk.label = "user00000";
        const WalkedChunk carried = walk.find(chunk.type, chunk.id);
        SCOPED_TRACE(chunk.type + std::to_string(chunk.id));
        EXPECT_EQ(textAt(file, carried.offset + 76, carried.size - 76), textAt(chunk.content));
        EXPECT_EQ(carried.label, chunk.label);
    }
    const std::string entryWithoutLabel = "DJBO\1\0\0\0\x88\x0F\0\0\x80\0\x10\0\0\0"s, noLabel(64, '\0');
    EXPECT_NE(textAt(file).find(entryWithoutLabel), std::string::npos);
    // Two texts, the second one empty, whether a name takes one of its 64 bytes or 63.
    const std::string name = "CTSS\0\0\0\x98\x07\xD0\0\x10"s + noLabel + "\xFD\xFF\2\0\1"s + std::string(71, '\0');
    EXPECT_EQ(textAt(file, 4268, name.size()), name);
    // The zero bytes behind the fill make 33 strings of any text.
    const std::string text = textAt(filledBodyStringText({}, BodyEnding::atEntry32, 1041));
    const std::string body = "STR#\0\0\4\x73\0\xC8\0\20bodystring"s + std::string(54, '\0') + "\xFD\xFF\x21\0\1adult"s +
                             text + std::string(12, '\0') + "rsmp";
    EXPECT_EQ(textAt(file, 54016, body.size()), body);
}

TEST(TemplateTest, IsNotMadeIfASearchOfItsMapWouldGoWrong) {
    for (const std::string_view label : {""sv, characterFile::objectChunk.inMap, characterFile::nameChunk.inMap}) {
        Chunks source = chunksOf({});
        chunkIn(source, "STR#", 258).label = label;
        EXPECT_EQ(makeTemplate(source).empty(), !label.empty()) << label;
    }
    Chunks source = chunksOf({});
    source.push_back({.type = "TREE", .content = Bytes(1 << 24)});
    EXPECT_TRUE(makeTemplate(source).empty()) << "the map is behind what 3 bytes reach";
}

}  // namespace
