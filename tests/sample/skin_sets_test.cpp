// The skin sets that ship with the program, read here by a parser of the test's own: whether every head of the game
// leads on to the next age.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <vector>

#include "tests/support/build_directory.h"

namespace {

class SkinSetsTest : public ::testing::Test {
 protected:
    void SetUp() override {
        std::ifstream file(buildDirectory() / "skinsets.cfg", std::ios::binary);
        for (std::string line; std::getline(file, line);)
            readLine(line);
        ASSERT_FALSE(sets_.empty());
    }

    void readLine(const std::string& line) {
        EXPECT_LT(line.size(), 320U) << line;
        if (line.starts_with('[')) sets_.emplace_back();
        if (line.empty() || line.starts_with('#') || line.starts_with('[')) return;
        std::smatch fields;
        const std::regex entry("(CHILD|TEENAGER|ADULT)=([^ ;]{1,99});([^ ,]+,HEAD-HEAD)");
        ASSERT_TRUE(!sets_.empty() && std::regex_match(line, fields, entry)) << line;
        std::string skin = fields[2];
        std::transform(skin.begin(), skin.end(), skin.begin(), [](unsigned char c) { return std::tolower(c); });
        EXPECT_EQ(skin.substr(0, 6), fields[3].str().substr(0, 6)) << "skin and mesh are of one head";
        sets_.back()[fields[1]].push_back(skin);
    }

    // The first set that lists the skin as a head of `from` must go on at `to`, in the gender and tone of `grown`.
    void expectNextHeads(const std::string& skin, const std::string& from, const std::string& to,
                         const std::string& grown) {
        SCOPED_TRACE(skin);
        const auto set = std::ranges::find_if(sets_, [&](auto& s) { return std::ranges::count(s[from], skin) > 0; });
        ASSERT_TRUE(set != sets_.end() && !(*set)[to].empty());
        for (const std::string& next : (*set)[to])
            EXPECT_EQ(next.substr(4, 5), grown);
    }

    std::vector<std::map<std::string, std::vector<std::string>>>
        sets_;  // by "CHILD", "TEENAGER" and "ADULT", in small letters
};

TEST_F(SkinSetsTest, EveryChildHeadOfTheGameGrowsUpInItsOwnGenderAndTone) {
    constexpr const char* children[] = {
        "c001fclgt_amanda01", "c001fcmed_asian",       "c002fclgt_lisa01", "c004fclgt_asian", "c004fcmed_fan",
        "c006fcmed_nerd",     "c007fclgt_round",       "c008fcmed_pony",   "c001mclgt_asian", "c202fcmed_funtina",
        "c001mclgt_altblond", "c203fcdrk_creepymindy", "c001mclgt_ave",    "c002mcmed_asian", "c004mclgt_nerd",
        "c004mcdrk_nerd",     "c012mcmed_buzz",        "c806mclgt_jr",
    };
    for (const std::string child : children)
        expectNextHeads(child, "CHILD", "TEENAGER", child.substr(4, 1) + "a" + child.substr(6, 3));  // "falgt"
}

TEST_F(SkinSetsTest, NoSetIsTooLongAndEveryTeenHeadLeadsOn) {
    for (auto& set : sets_) {
        EXPECT_LE(set["TEENAGER"].size(), 5U);
        EXPECT_LE(set["ADULT"].size(), 5U);
        for (const std::string& teen : set["TEENAGER"])
            expectNextHeads(teen, "TEENAGER", "ADULT", teen.substr(4, 5));
    }
}

}  // namespace
