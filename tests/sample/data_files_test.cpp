#include "sample/data_files.h"

#include <gtest/gtest.h>

#include "sample/bodies.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST(CharacterTemplateTest, ItsChunksStandWhereTheProgramWrites) {
    const Bytes file = makeCharacterTemplate();
    const IffWalk walk = walkIff(file);
    ASSERT_EQ(walk.fault, "");
    const std::string body = textAt(filledSampleBodyText(adultSlots(), BodyEnding::atEntry32, 1041));
    const struct {
        const char* type;
        unsigned id;
        std::size_t offset;
        std::string label, content;
    } rows[] = {
        // Two texts, the second one empty, whether the name takes one of its 64 bytes or 63.
        {"CTSS", 2000, 4268, "", "\xFD\xFF\2\0\1Sim"s + std::string(61 + 7, '\0')},
        // The zero bytes behind the fill make 33 strings of any text.
        {"STR#", 200, 54016, "bodystring", "\xFD\xFF\x21\0\1adult"s + body + std::string(12, '\0')},
    };
    for (const auto& row : rows) {
        const WalkedChunk chunk = walk.find(row.type, row.id);
        ASSERT_EQ(chunk.offset, row.offset);
        EXPECT_EQ(chunk.label, row.label);
        EXPECT_EQ(textAt(file, row.offset + 76, chunk.size - 76), row.content);
    }
    EXPECT_EQ(walk.find("OBJD", 128).offset, 3976U);
    EXPECT_EQ(textAt(file, 3976 + 104, 4), "\x01\x11WT");
}

TEST(CharacterTemplateTest, ItsPicturesAreWholeBitmaps) {
    const Bytes file = makeCharacterTemplate();
    for (const WalkedChunk& chunk : walkIff(file).chunks) {
        if (chunk.type != "BMP_") continue;
        SCOPED_TRACE(chunk.id);
        const std::size_t at = chunk.offset + 76;
        const std::size_t size = chunk.size - 76;
        EXPECT_EQ(textAt(file, at, 4), std::string({'B', 'M', static_cast<char>(size), static_cast<char>(size >> 8)}));
        EXPECT_EQ(54 + (file[at + 18] * 3U + 3) / 4 * 4 * file[at + 22], size);  // rows of 24 bits a pixel
    }
}

TEST(FamilyTemplateTest, IsTwoChunksForOneMemberAndAName) {
    std::string expected = "FAMI\0\0\0\x7C\0\0\0\x10"s + std::string(64, '\0');
    expected += "\0\0\0\0\4\0\0\0IMAF"s + std::string(20, '\0') + "\x18\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0"s;
    expected += "FAMs\0\0\0\x6C\0\0\0\x10"s + std::string(64, '\0');
    expected += "\xFD\xFF\1\0\1"s + std::string(24, '\0') + "\xA3\xA3\xA3";
    EXPECT_EQ(textAt(makeFamilyTemplate()), expected);
}

}  // namespace
