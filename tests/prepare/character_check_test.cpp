// Which character files serve for a template, and which of them is chosen.
#include "prepare/character_check.h"

#include <functional>

#include "prepare/source_choice.h"
#include "tests/prepare/unprepared_game.h"

namespace {

using namespace std::string_literals;

TEST(CharacterCheckTest, OnlyAPlayersAdultServesAndEachOtherIsRefusedWithAReason) {
    const SampleCharacter older, newer{.behaviour = BehaviourSet::newer, .freeRoom = true};
    EXPECT_EQ(refusalOf(chunksOf(older)) + refusalOf(chunksOf(newer)), "");
    const std::string noAdult = "has the body strings of no adult", asleep = "has a main tree that does nothing";
    const std::string noPerson = "has the behaviour of something but a person";
    EXPECT_EQ(refusalOf(chunksOf({.tag = "child"})), noAdult);
    EXPECT_EQ(refusalOf(chunksOf({.behaviour = BehaviourSet::pet})), noPerson);
    EXPECT_EQ(refusalOf(chunksOf({.behaviour = BehaviourSet::townie})),
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

TEST(SourceChoiceTest, TheFirstFileOfTheMostFrequentBehaviourIsChosen) {
    const auto chosen = [](const Chunks& last) {
        SourceChoice choice;
        choice.add("old", chunksOf({}));
        choice.add("new", chunksOf({.behaviour = BehaviourSet::newer}));
        choice.add("last", last);
        return choice.best();
    };
    Chunks chunks = chunksOf({.name = "Ann", .guid = 7, .behaviour = BehaviourSet::newer, .freeRoom = true});
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
        EXPECT_EQ(chosen(other), "old") << type << " makes three behaviours of one file each";
    }
}

}  // namespace
