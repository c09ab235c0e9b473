// The heads that follow heads, and chance.
#include "lifestage/skin_sets.h"

#include <gtest/gtest.h>

#include <string>

#include "lifestage/random_generator.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr std::int32_t teen = 5;
constexpr std::int32_t adult = 6;

// "skin;mesh" of the head found in a file of this text, or "none" with both outputs as they were.
std::string findIn(const std::string& file, std::int32_t stage, const char* head) {
    const TempDirectory directory;
    directory.write("skinsets.cfg", file);
    HeadText skin("before"), mesh("before");
    const int result = findNextStageHead(stage, head, directory.path().c_str(), skin, mesh);
    const std::string found = std::string(skin.view()) + ";" + std::string(mesh.view());
    if (result == 0) return found;
    EXPECT_EQ(result, -1);
    EXPECT_EQ(found, "before;before");
    return "none";
}

TEST(SkinSetsTest, TheFirstSetThatHoldsTheHeadDecides) {
    const struct {
        const char* what;
        std::string file;
        std::int32_t stage;
        const char* head;
        const char* found;
    } rows[] = {
        {"above and below", "[a]\nTEENAGER=t1;m1\nCHILD=c1;\n[b]\n", teen, "c1", "t1;m1"},
        {"a set without a section line, and no line end", "CHILD=c1;\nTEENAGER=t1;a,B-C", teen, "c1", "t1;a,B-C"},
        {"a CR at the very end", "CHILD=c1;\nTEENAGER=t1;m1\r", teen, "c1", "t1;m1\r"},
        {"CR LF", "[a]\r\nCHILD=c1;\r\nTEENAGER=t1;m1\r\n", teen, "c1", "t1;m1"},
        {"case of the head", "CHILD=C1_aB;\nTEENAGER=T1;M1\n", teen, "c1_Ab", "T1;M1"},
        {"an adult's head follows a teen's", "CHILD=x;\nADULT=a0;\n[b]\nTEENAGER=x;\nADULT=a1;m1\n", adult, "x",
         "a1;m1"},
        {"an adult's line does nothing for a teen", "CHILD=c1;\nADULT=a1;m1\n", teen, "c1", "none"},
        {"the second set of that head isn't read", "CHILD=c1;\n[b]\nCHILD=c1;\nTEENAGER=t1;m1\n", teen, "c1", "none"},
        {"comments and empty lines", "#CHILD=c1;\n\nCHILD=c1;\n#\nTEENAGER=t1;m1\n", teen, "c1", "t1;m1"},
        {"keys are exact", " CHILD=c1;\nchild=c1;\nCHILD =c1;\nTEENAGER=t1;m1\n", teen, "c1", "none"},
        {"spaces belong to the field", "CHILD=c1;\nTEENAGER= t1 ; m1 \n", teen, "c1", " t1 ; m1 "},
        {"no mesh", "CHILD=c1\nTEENAGER=t1\n", teen, "c1", "t1;"},
        {"more marks than needed", "CHILD=c=1;\nTEENAGER=t=1;m=1;n\n", teen, "c=1", "t=1;m=1;n"},
        {"a line of 319 characters ends there", "#" + std::string(318, 'x') + "CHILD=c1;\nTEENAGER=t1;m1\n", teen, "c1",
         "t1;m1"},
    };
    for (const auto& row : rows) {
        randomGenerator().seed(0);  // its first draw, 38, picks the first candidate
        EXPECT_EQ(findIn(row.file, row.stage, row.head), row.found) << row.what;
    }
}

// With the state 0 the first draw is 38 and the second 7719: (2531011 >> 16) & 0x7FFF, and so on.
TEST(SkinSetsTest, OneDrawPicksAmongAtMostFiveCandidates) {
    const char* file = "CHILD=c;\nTEENAGER=0;\nTEENAGER=1;\nTEENAGER=2;\nTEENAGER=3;\nTEENAGER=4;\nTEENAGER=5;\n";
    randomGenerator().seed(0);
    EXPECT_EQ(findIn(file, teen, "c"), "0;");
    EXPECT_EQ(findIn(file, teen, "c"), "1;");  // 5 * 7719 / 32767
    EXPECT_EQ(randomGenerator().draw(), 21238);
}

TEST(RandomGeneratorTest, DrawsAndPicksAreExact) {
    RandomGenerator generator;
    generator.seed(1);
    for (const int expected : {41, 18467, 6334, 26500, 19169})
        EXPECT_EQ(generator.draw(), expected);

    EXPECT_EQ(pickIndex(6553, 5), 0U);
    EXPECT_EQ(pickIndex(6554, 5), 1U);
    EXPECT_EQ(pickIndex(32767, 5), 4U) << "the highest draw, too, stays within";
}

TEST(OutfitTest, EachIndexHasItsName) {
    const char* girls[] = {
        "gma1",        "TDWTeenMeshMosaic",   "TDWTeenNYtribute1", "TDWTeenNYtribute2", "TDWTeenNYtribute3",
        "TDWTeenStar", "TDWTeenSunsetSweater"};
    const char* boys[] = {"hip01", "TDWTeenSk8boy", "TDWTeenWeekend"};
    RandomGenerator same;
    same.seed(0);
    randomGenerator().seed(0);
    OutfitText outfit;
    for (int i = 0; i < 100; ++i) {
        pickTeenGirlOutfit(outfit);
        EXPECT_EQ(outfit.view(), girls[pickIndex(same.draw(), 7)]);
        pickTeenBoyOutfit(outfit);
        EXPECT_EQ(outfit.view(), boys[pickIndex(same.draw(), 3)]);
    }
}

}  // namespace
