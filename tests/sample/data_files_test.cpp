#include "sample/data_files.h"

#include <gtest/gtest.h>

#include "sample/body_string_text.h"
#include "tests/support/iff_walk.h"

namespace {

// Where a scan from the map's start meets the bytes first, and the 3 bytes of an offset `distance` bytes from there.
std::size_t offsetBeside(const Bytes& file, std::size_t mapOffset, const std::string& run, int distance) {
    const std::string map = textAt(file, mapOffset, file.size() - mapOffset);
    const std::size_t hit = mapOffset + map.find(run);
    const std::size_t at = hit + static_cast<std::size_t>(distance);
    return file[at] | static_cast<std::size_t>(file[at + 1]) << 8 | static_cast<std::size_t>(file[at + 2]) << 16;
}

void overwrite(Bytes& file, std::size_t offset, const std::string& text) {
    std::copy(text.begin(), text.end(), file.begin() + static_cast<std::ptrdiff_t>(offset));
}

TEST(CharacterTemplateTest, ItsChunksStandWhereTheProgramWrites) {
    const Bytes file = makeCharacterTemplate();
    const IffWalk walk = walkIff(file);
    ASSERT_EQ(walk.fault, "");
    EXPECT_GE(file.size(), 55143U);
    const struct {
        const char* type;
        unsigned id;
        std::size_t offset, roomAt, room;
    } rows[] = {
        {"OBJD", 128, 3976, 3988, 9},   {"OBJD", 128, 3976, 4080, 4},      {"CTSS", 2000, 4268, 4349, 64},
        {"STR#", 200, 54016, 54097, 5}, {"STR#", 200, 54016, 54102, 1041},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.roomAt);
        const WalkedChunk chunk = walk.find(row.type, row.id);
        EXPECT_EQ(chunk.offset, row.offset);
        EXPECT_GE(chunk.offset + chunk.size, row.roomAt + row.room);
    }
    EXPECT_EQ(walk.find("STR#", 200).label, "bodystring");
    const std::size_t map = walk.find("rsmp", 0).offset;
    EXPECT_EQ(offsetBeside(file, map, "DJBO", 8), 3976U);
    EXPECT_EQ(offsetBeside(file, map, "SSTC", 8), 4268U);
    EXPECT_EQ(offsetBeside(file, map, std::string("\0\xC8\0\x10", 4), -3), 54016U);
}

TEST(CharacterTemplateTest, ReadsOnAsTextWhateverIsWrittenIntoIt) {
    for (const std::size_t nameSize : {0U, 1U, 62U, 63U}) {
        SCOPED_TRACE(nameSize);
        const std::string name(nameSize, 'n');
        Bytes file = makeCharacterTemplate();
        overwrite(file, 4349, name + std::string(64 - nameSize, '\0'));
        EXPECT_EQ(walkTexts(file, walkIff(file).find("CTSS", 2000)), (std::vector<std::string>{name, ""}));
    }
    Bytes file = makeCharacterTemplate();
    EXPECT_EQ(walkTexts(file, walkIff(file).find("STR#", 200))[32], "l100fafit_original,BODY=l100fafitlgt_original");
    const Bytes shortest = filledSampleBodyText({}, BodyEnding::atEntry29, 1041);
    overwrite(file, 54102, {shortest.begin(), shortest.end()});
    EXPECT_EQ(walkTexts(file, walkIff(file).find("STR#", 200)).size(), 33U);
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
    const Bytes file = makeFamilyTemplate();
    std::string expected = std::string("FAMI\0\0\0\x7C\0\0\0\x10", 12) + std::string(64, '\0');
    expected += std::string("\0\0\0\0\4\0\0\0IMAF", 12) + std::string(20, '\0');
    expected += std::string("\x18\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0", 16);
    expected += std::string("FAMs\0\0\0\x6C\0\0\0\x10", 12) + std::string(64, '\0');
    expected += std::string("\xFD\xFF\1\0\1", 5) + std::string(24, '\0') + "\xA3\xA3\xA3";
    EXPECT_EQ(textAt(file, 0, file.size()), expected);
    EXPECT_EQ(expected.size(), 232U);
    EXPECT_EQ(walkChunks(file).fault, "");
}

}  // namespace
