// The heads that follow heads, and chance.
#include "lifestage/skin_sets.h"

#include <gtest/gtest.h>

#include <string>

#include "lifestage/random_generator.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr std::int32_t teen = 5;
constexpr std::int32_t adult = 6;

class SkinSetsTest : public testing::Test {
 protected:
    void writeFile(const std::string& text) { directory_.write("skinsets.cfg", text); }

    // "skin;mesh" of the head found, or "none" with both outputs as they were.
    std::string find(std::int32_t stage, const char* head) {
        HeadText skin("before"), mesh("before");
        const int result = findNextStageHead(stage, head, directory_.path().c_str(), skin, mesh);
        const std::string found = std::string(skin.view()) + ";" + std::string(mesh.view());
        if (result == 0) return found;
        EXPECT_EQ(result, -1);
        EXPECT_EQ(found, "before;before");
        return "none";
    }

    TempDirectory directory_;
};

TEST_F(SkinSetsTest, TheFirstSetThatHoldsTheHeadDecides) {
    const std::string longTail(320, 'x');
    const struct {
        const char* what;
        std::string file;
        std::int32_t stage;
        const char* head;
        const char* found;
    } rows[] = {
        {"above and below", "[a]\nTEENAGER=t1;m1\nCHILD=c1;\n[b]\n", teen, "c1", "t1;m1"},
        {"a set without a section line, and no line end", "CHILD=c1;\nTEENAGER=t1;a,B-C", teen, "c1", "t1;a,B-C"},
        {"CR LF", "[a]\r\nCHILD=c1;\r\nTEENAGER=t1;m1\r\n", teen, "c1", "t1;m1"},
        {"a CR at the very end", "CHILD=c1;\nTEENAGER=t1;m1\r", teen, "c1", "t1;m1\r"},
        {"a CR alone belongs to its field", "CHILD=c1\r\nTEENAGER=t\r1;m1\n", teen, "c1", "t\r1;m1"},
        {"case of the head", "CHILD=C1_aB;\nTEENAGER=T1;M1\n", teen, "c1_Ab", "T1;M1"},
        {"letters outside ASCII keep their case", "CHILD=\xE9;\nTEENAGER=t1;m1\n", teen, "\xC9", "none"},
        {"an adult's lookup passes children over", "CHILD=x;\nTEENAGER=x;\nADULT=a1;m1\n", adult, "x", "a1;m1"},
        {"an adult's line does nothing for a teen", "CHILD=c1;\nADULT=a1;m1\n", teen, "c1", "none"},
        {"a child's line does nothing for an adult", "CHILD=c1;\nADULT=a1;m1\n", adult, "c1", "none"},
        {"candidates of another set are forgotten", "TEENAGER=t1;m1\n[b]\nCHILD=c1;\n[c]\nTEENAGER=t2;m2", teen, "c1",
         "none"},
        {"the second set of that head isn't read", "CHILD=c1;\n[b]\nCHILD=c1;\nTEENAGER=t1;m1\n", teen, "c1", "none"},
        {"the last set counts", "[a]\nCHILD=c0;\nTEENAGER=t0;\n[b]\nCHILD=c1;\nTEENAGER=t1;m1", teen, "c1", "t1;m1"},
        {"any of several heads", "CHILD=c1;\nCHILD=c2;\nTEENAGER=t1;m1\n", teen, "c2", "t1;m1"},
        {"comments and empty lines", "#CHILD=c1;\n\nCHILD=c1;\n#\nTEENAGER=t1;m1\n", teen, "c1", "t1;m1"},
        {"keys are exact", " CHILD=c1;\nchild=c1;\nCHILD =c1;\nTEENAGER=t1;m1\n", teen, "c1", "none"},
        {"spaces belong to the field", "CHILD=c1;\nTEENAGER= t1 ; m1 \n", teen, "c1", " t1 ; m1 "},
        {"no mesh", "CHILD=c1\nTEENAGER=t1\n", teen, "c1", "t1;"},
        {"no value at all", "CHILD\nTEENAGER=t1;m1\n", teen, "c1", "none"},
        {"an empty head", "CHILD=;m\nTEENAGER=t1;m1\n", teen, "", "t1;m1"},
        {"more marks than needed", "CHILD=c=1;\nTEENAGER=t=1;m=1;n\n", teen, "c=1", "t=1;m=1;n"},
        {"a line of 319 characters ends there", "#" + std::string(318, 'x') + "CHILD=c1;\nTEENAGER=t1;m1\n", teen, "c1",
         "t1;m1"},
        {"one of 318 doesn't", "#" + std::string(317, 'x') + "CHILD=c1;\nTEENAGER=t1;m1\n", teen, "c1", "none"},
        {"fields are cut at 99", "CHILD=" + longTail.substr(0, 99) + "\nTEENAGER=t1;" + longTail.substr(0, 150), teen,
         longTail.c_str() + (longTail.size() - 99), ""},
        {"an empty file", "", teen, "c1", "none"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        writeFile(row.file);
        const std::string expected = *row.found != '\0' ? row.found : "t1;" + longTail.substr(0, 99);
        EXPECT_EQ(find(row.stage, row.head), expected);
    }
}

TEST_F(SkinSetsTest, AMissingFileFindsNothing) {
    EXPECT_EQ(find(teen, "c1"), "none");
}

// With the state 0 the first draw is 38 and the second 7719: (2531011 >> 16) & 0x7FFF, and so on.
TEST_F(SkinSetsTest, OneDrawPicksAmongAtMostFiveCandidates) {
    writeFile("CHILD=c;\nTEENAGER=0;\nTEENAGER=1;\nTEENAGER=2;\nTEENAGER=3;\nTEENAGER=4;\nTEENAGER=5;\nTEENAGER=6;\n");
    randomGenerator().seed(0);
    EXPECT_EQ(find(teen, "c"), "0;");
    EXPECT_EQ(find(teen, "c"), "1;");  // 5 * 7719 / 32767
    EXPECT_EQ(randomGenerator().draw(), 21238);
}

TEST(RandomGeneratorTest, DrawsAndPicksAreExact) {
    RandomGenerator generator;
    generator.seed(1);
    for (const int expected : {41, 18467, 6334, 26500, 19169})
        EXPECT_EQ(generator.draw(), expected);

    const struct {
        int draw;
        std::size_t count, index;
    } rows[] = {{0, 5, 0},     {6553, 5, 0},  {6554, 5, 1},  {32766, 5, 4},
                {32767, 5, 4}, {32767, 1, 0}, {16383, 2, 0}, {16384, 2, 1}};
    for (const auto& row : rows)
        EXPECT_EQ(pickIndex(row.draw, row.count), row.index) << row.draw << " of " << row.count;
}

TEST(OutfitTest, EachIndexHasItsName) {
    const char* girls[] = {
        "gma1",        "TDWTeenMeshMosaic",   "TDWTeenNYtribute1", "TDWTeenNYtribute2", "TDWTeenNYtribute3",
        "TDWTeenStar", "TDWTeenSunsetSweater"};
    const char* boys[] = {"hip01", "TDWTeenSk8boy", "TDWTeenWeekend"};
    for (std::uint32_t seed = 0; seed < 500; ++seed) {
        RandomGenerator same;
        same.seed(seed);
        const int draw = same.draw();
        OutfitText outfit;
        randomGenerator().seed(seed);
        pickTeenGirlOutfit(outfit);
        EXPECT_EQ(outfit.view(), girls[pickIndex(draw, 7)]);
        randomGenerator().seed(seed);
        pickTeenBoyOutfit(outfit);
        EXPECT_EQ(outfit.view(), boys[pickIndex(draw, 3)]);
    }
}

}  // namespace
