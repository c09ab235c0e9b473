// The makers of files against bytes that were worked out by hand, and the two readers that take files apart.
#include <gtest/gtest.h>

#include <sstream>

#include "gamefiles/iff_reader.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/skin_file.h"
#include "gamefiles/templates.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST(IffTest, AFileIsTakenApartAsItWasBuilt) {
    const IffChunk first{.type = "STR#", .id = 300, .label = "ab", .content = {1, 2}, .flags = 0x5678};
    const IffChunk last{.type = "GLOB", .id = 1, .label = std::string(64, 'c')};
    IffBuilder builder;
    builder.add(first);
    builder.add({.type = "STR#", .id = 200});
    builder.addFreeRoom(80);
    builder.add(last);
    const std::size_t map = builder.addMap();
    const IffContents read = readIff(builder.bytes());
    ASSERT_EQ(read.chunks.size(), 5U) << read.fault;
    EXPECT_EQ(read.chunks[0], first);
    EXPECT_EQ(read.chunks[3], last);
    EXPECT_EQ(textAt(builder.bytes(), map + 76),
              "\0\0\0\0\0\0\0\0pmsr\x70\0\0\0\2\0\0\0#RTS\2\0\0\0\x8E\0\0\0\xC8\0\x10\0\0\0"s +
                  "\x40\0\0\0\x2C\1\x78\x56\x61\x62\0\0BOLG\1\0\0\0\x2A\1\0\0\1\0\x10\0"s + last.label + "\0\0"s);

    const std::tuple<std::size_t, std::size_t, std::uint8_t, const char*, const char*> rows[] = {
        {0, 582, 'i', "doesn't begin as the game's IFF files do", "not the game's header"},
        {0, 63, 'I', "doesn't begin as the game's IFF files do", "not the game's header"},
        {71, 582, 75, "has a chunk without room for its header at 64", "no chunk fits at 64"},
        {68, 582, 0x80, "ends inside the chunk at 64", "no chunk fits at 64"},
        {0, 217, 'I', "has bytes left over at 142", "no chunk fits at 142"},
        {63, 582, 0, "", "no map where the header says"},
        {73, 582, 0, "", "the map doesn't list STR# 256"}};
    for (const auto& [changed, length, byte, refused, walked] : rows) {
        Bytes file = builder.bytes();
        file[changed] = byte;
        file.resize(length);
        EXPECT_EQ(readIff(file).fault, refused);
        EXPECT_EQ(walkIff(file).fault, walked);
    }
}

TEST(ObjectDefinitionTest, HasTheWordsOfAPlayersSim) {
    const Bytes content = objectDefinition("Ada", 0x54571101).content;
    EXPECT_EQ(textAt(content, 0, 48), "\x8A\0\0\0\x30\0\0\0\1\0\0\x10\2\0\x81\0\x80\0\2\0\0\0\0\0\0\0\x80\0\1\x11WT"s +
                                          "\0\0\0\0\0\0\xC8\0\x80\0\0\0\0\0\xCA\0"s);
    EXPECT_EQ(textAt(content, 82, 24), "\xD0\7\0\0\1\x10\0\0\0\0\0\0\2\x10\0\0\1\0\0\0\0\0\x12\x20"s);
    EXPECT_EQ(textAt(content, 136), "\1"s + std::string(79, '\0'));
}

TEST(FamilyTemplateTest, IsTwoChunksForOneMemberAndAName) {
    const std::tuple<Editions, char, char, std::size_t> rows[] = {{Editions::base, '\x7C', 4, 8},
                                                                  {Editions::later, '\x88', 9, 20}};
    for (const auto& [editions, size, version, behindCount] : rows) {
        std::string expected = "FAMI\0\0\0"s + size + "\0\0\0\x10"s + std::string(68, '\0') + version + "\0\0\0IMAF"s;
        expected += std::string(20, '\0') + "\x18\0\0\0\1\0\0\0"s + std::string(behindCount, '\0');
        expected += "FAMs\0\0\0\x6C\0\0\0\x10"s + std::string(64, '\0');
        expected += "\xFD\xFF\1\0\1"s + std::string(24, '\0') + "\xA3\xA3\xA3";
        EXPECT_EQ(textAt(makeFamilyTemplate(editions)), expected);
    }
}

TEST(SkinTest, EndsAfterTheListsThatItCounts) {
    std::istringstream skin{std::string(packageSkin())};
    std::string mesh, texture, field;
    skin >> mesh >> texture;
    // Bones, triangles, bindings, texture coordinates, blended vertices, vertices.
    for (int count = 0; const int fields : {1, 3, 5, 2, 2, 6}) {
        skin >> count;
        for (int i = 0; i < count * fields; ++i)
            skin >> field;
    }
    EXPECT_TRUE(mesh + ".skn" == packageSkinName && skin.good());
    EXPECT_FALSE(skin >> field) << field;
}

}  // namespace
