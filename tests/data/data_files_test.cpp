#include "data/data_files.h"

#include <gtest/gtest.h>

#include "gamefiles/bodies.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST(CharacterTemplateTest, ItsChunksStandWhereTheProgramWritesAndItsPicturesAreWhole) {
    const Bytes file = makeCharacterTemplate();
    const IffWalk walk = walkIff(file);
    ASSERT_EQ(walk.fault, "");
    EXPECT_EQ(walk.find("OBJD", 128).offset, 3976U);
    EXPECT_EQ(textAt(file, 3976 + 104, 4), "\x01\x11WT");
    EXPECT_EQ(walk.find("CTSS", 2000).offset, 4268U);
    // Two texts, the second one empty, whether the name takes one of its 64 bytes or 63.
    const std::string name = "\xFD\xFF\2\0\1Sim"s + std::string(61 + 7, '\0') + "BMP_";
    EXPECT_EQ(textAt(file, 4268 + 76, name.size()), name);
    EXPECT_EQ(walk.find("STR#", 200).offset, 54016U);
    EXPECT_EQ(walk.find("STR#", 200).label, "bodystring");
    // The zero bytes behind the fill make 33 strings of any text.
    const std::string text = textAt(filledSampleBodyText(adultSlots(), BodyEnding::atEntry32, 1041));
    const std::string body = "\xFD\xFF\x21\0\1adult"s + text + std::string(12, '\0') + "rsmp";
    EXPECT_EQ(textAt(file, 54016 + 76, body.size()), body);

    for (const WalkedChunk& chunk : walk.chunks) {
        if (chunk.type != "BMP_") continue;
        SCOPED_TRACE(chunk.id);
        const std::size_t at = chunk.offset + 76, size = chunk.size - 76;
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
