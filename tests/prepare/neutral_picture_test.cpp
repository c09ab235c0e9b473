#include "prepare/neutral_picture.h"

#include "gamefiles/bitmap.h"
#include "tests/save/saved_files.h"
#include "tests/support/iff_walk.h"

namespace {

TEST(NeutralPictureTest, EachPixelIsTheFirstAndOtherFormatsStay) {
    Bytes picture = portraitBitmap(3, 2);  // rows of 9 bytes and 3 of fill
    overwrite(picture, 54, bytesFrom("abcdefghi123ABCDEFGHI456"));
    const std::string headers = textAt(picture, 0, 54);
    EXPECT_EQ(textAt(neutralPicture(picture)), headers + "abcabcabc123abcabcabc456");
    Bytes fromTheTop = picture;
    overwrite(fromTheTop, 22, SaveTest::u32(-2));
    EXPECT_EQ(textAt(neutralPicture(fromTheTop), 54), "abcabcabc123abcabcabc456");

    const std::pair<std::size_t, std::int64_t> others[] = {
        {0, 0},
        {10, 53},
        {10, 55},
        {10, 79},
        {10, -1},
        {18, 0},
        {18, -1},
        {18, 5},
        {18, 0x7FFFFFFF},
        {22, 3},
        {22, -0x80000000LL},
        {28, 8},
        {30, 1},
    };
    for (const auto& [field, value] : others) {
        Bytes other = picture;
        overwrite(other, field, SaveTest::u32(value));
        EXPECT_EQ(neutralPicture(other), other) << field << " " << value;
    }
    picture.resize(53);
    EXPECT_EQ(neutralPicture(picture), picture);
}

}  // namespace
