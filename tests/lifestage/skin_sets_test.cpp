#include "lifestage/skin_sets.h"

#include "lifestage/random_generator.h"
#include "platform/letter_case.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr std::int32_t teen = 5, adult = 6;

// "skin;mesh" of the head found in a file of this text; ";" with both as they were if there is none.
std::string findIn(const std::string& file, std::int32_t stage, const std::string& head) {
    const TempDirectory directory;
    directory.write("skinsets.cfg", file);
    HeadText skin, mesh;
    const int result = findNextStageHead(stage, head.c_str(), directory.path().c_str(), skin, mesh);
    const std::string found = std::string(skin.view()) + ";" + std::string(mesh.view());
    EXPECT_EQ(result, found == ";" ? -1 : 0);
    return found;
}

TEST(SkinSetsTest, TheFirstSetThatHoldsTheHeadDecides) {
    const std::string x99(99, 'x'), y99(99, 'y'), x318(318, 'x');
    const std::tuple<const char*, std::string, std::int32_t, std::string, std::string> rows[] = {
        {"above, with spaces of the field", "[a]\nTEENAGER= t1 ; m1 \nCHILD=c1;\n[b]\n", teen, "c1", " t1 ; m1 "},
        {"no section line and no line end", "CHILD=c1;\nADULT=a1;m1\nTEENAGER=t1;a,B-C", teen, "c1", "t1;a,B-C"},
        {"CR LF", "[a]\r\nCHILD=c1\r\nTEENAGER=t1;m1\r\n", teen, "c1", "t1;m1"},
        {"a CR of its own", "CHILD=c1;\nTEENAGER=t1;m\r1\r", teen, "c1", "t1;m\r1\r"},
        {"case of the head", "CHILD=C1_aB;\nTEENAGER=T1;M1\n", teen, "c1_Ab", "T1;M1"},
        {"a teen's head", "CHILD=x;\nADULT=a0;\n[b]\nTEENAGER=x;\nADULT=a1;m1\n", adult, "x", "a1;m1"},
        {"the second set of that head isn't read", "CHILD=c1;\n[b]\nCHILD=c1;\nTEENAGER=t1;m1\n", teen, "c1", ";"},
        {"keys are exact", " CHILD=c1;\nchild=c1;\nCHILD =c1;\nTEENAGER=t1;m1\n", teen, "c1", ";"},
        {"no mesh, or none of their own mark", "CHILD=c=1\nTEENAGER=t=1\n", teen, "c=1", "t=1;"},
        {"fields of 99 bytes", "CHILD=" + x99 + "\nTEENAGER=" + y99 + "y;" + x99 + "x\n", teen, x99, y99 + ";" + x99},
        {"a line ends with its 319th character", "#" + x318 + "CHILD=c1;\nTEENAGER=t1;m=1;n\n", teen, "c1", "t1;m=1;n"},
    };
    for (const auto& [what, file, stage, head, found] : rows) {
        randomGenerator().seed(0);  // its first draw, 38, picks the first candidate
        EXPECT_EQ(findIn(file, stage, head), found) << what;
    }
}

TEST(SkinSetsTest, ChanceIsExactAndPicksAmongAtMostFiveCandidates) {
    EXPECT_EQ(pickIndex(6553, 5), 0U);
    EXPECT_EQ(pickIndex(6554, 5), 1U);
    EXPECT_EQ(pickIndex(32767, 5), 4U) << "the highest draw, too, stays within";

    // With the state 0 the first draw is 38 and the second 7719: (2531011 >> 16) & 0x7FFF, and so on.
    const char* file = "CHILD=c;\nTEENAGER=0;\nTEENAGER=1;\nTEENAGER=2;\nTEENAGER=3;\nTEENAGER=4;\nTEENAGER=5;\n";
    randomGenerator().seed(0);
    EXPECT_EQ(findIn(file, teen, "c"), "0;");
    EXPECT_EQ(findIn(file, teen, "c"), "1;");  // 5 * 7719 / 32767
    EXPECT_EQ(randomGenerator().draw(), 21238);
}

// The file that ships with the program: whatever is drawn, each head of the game's children grows up in its own gender
// and tone, and each skin and mesh are of one head.
TEST(SkinSetsTest, TheShippedSetsLeadEachChildToAnAdult) {
    constexpr const char* children[] = {
        "c001fclgt_amanda01", "c001fcmed_asian",       "c002fclgt_lisa01", "c004fclgt_asian", "c004fcmed_fan",
        "c006fcmed_nerd",     "c007fclgt_round",       "c008fcmed_pony",   "c001mclgt_asian", "c202fcmed_funtina",
        "c001mclgt_altblond", "c203fcdrk_creepymindy", "c001mclgt_ave",    "c002mcmed_asian", "c004mclgt_nerd",
        "c004mcdrk_nerd",     "c012mcmed_buzz",        "c806mclgt_jr",
    };
    const TempDirectory directory;
    fs::copy(buildDirectory() / "skinsets-original.cfg", directory.path("skinsets.cfg"));
    randomGenerator().seed(0);
    for (std::size_t i = 0; i < 40 * std::size(children); ++i) {
        std::string head = children[i % std::size(children)];
        const std::string kind = head.substr(4, 1) + "a" + head.substr(6, 3);  // "falgt"
        for (const std::int32_t stage : {teen, adult}) {
            HeadText skin, mesh;
            ASSERT_EQ(findNextStageHead(stage, head.c_str(), directory.path().c_str(), skin, mesh), 0) << head;
            head = lowered(skin);
            EXPECT_EQ(head.substr(4, 5), kind);
            EXPECT_TRUE(mesh.view().starts_with(head.substr(0, 6)) && mesh.view().ends_with(",HEAD-HEAD")) << head;
        }
    }
}

}  // namespace
