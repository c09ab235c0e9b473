#include "data/data_files.h"

#include <gtest/gtest.h>

#include <sstream>

#include "data/skin_file.h"
#include "gamefiles/bodies.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST(CharacterTemplateTest, HasItsChunksWhereTheProgramWrites) {
    const Bytes file = makeCharacterTemplate();
    const IffWalk walk = walkIff(file);
    ASSERT_EQ(walk.fault, "");
    EXPECT_EQ(walk.find("OBJD", 128).offset, 3976U);
    EXPECT_EQ(textAt(file, 4080, 4), "\x01\x11WT");
    EXPECT_EQ(walk.find("CTSS", 2000).offset, 4268U);
    // Two texts, the second one empty, whether the name takes one of its 64 bytes or 63.
    const std::string name = "\xFD\xFF\2\0\1Sim"s + std::string(61 + 7, '\0') + "BMP_";
    EXPECT_EQ(textAt(file, 4344, name.size()), name);
    EXPECT_EQ(walk.find("STR#", 200).offset, 54016U);
    EXPECT_EQ(walk.find("STR#", 200).label, "bodystring");
    // The zero bytes behind the fill make 33 strings of any text.
    const std::string text = textAt(filledSampleBodyText(adultSlots(), BodyEnding::atEntry32, 1041));
    const std::string body = "\xFD\xFF\x21\0\1adult"s + text + std::string(12, '\0') + "rsmp";
    EXPECT_EQ(textAt(file, 54092, body.size()), body);
}

TEST(FamilyTemplateTest, IsTwoChunksForOneMemberAndAName) {
    std::string expected = "FAMI\0\0\0\x7C\0\0\0\x10"s + std::string(64, '\0');
    expected += "\0\0\0\0\4\0\0\0IMAF"s + std::string(20, '\0') + "\x18\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0"s;
    expected += "FAMs\0\0\0\x6C\0\0\0\x10"s + std::string(64, '\0');
    expected += "\xFD\xFF\1\0\1"s + std::string(24, '\0') + "\xA3\xA3\xA3";
    EXPECT_EQ(textAt(makeFamilyTemplate()), expected);
}

TEST(SkinTest, EndsAfterTheListsThatItCounts) {
    std::istringstream skin{std::string(packageSkin())};
    std::string mesh, texture, field;
    skin >> mesh >> texture;
    EXPECT_EQ(mesh + ".skn", packageSkinName);
    // Bones, triangles, bindings, texture coordinates, blended vertices, vertices.
    for (const int fields : {1, 3, 5, 2, 2, 6}) {
        int count = 0;
        skin >> count;
        for (int i = 0; i < count * fields; ++i)
            skin >> field;
    }
    EXPECT_TRUE(skin.good());
    EXPECT_FALSE(skin >> field) << field;
}

}  // namespace
