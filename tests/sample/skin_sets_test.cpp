// The skin sets that ship with the program, read here by a parser of the test's own: whether every head of the game
// leads on to the next age, and whether the sample's Sims find what their kind promises.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <map>
#include <regex>
#include <vector>

#include "sample/installation.h"

namespace {

using SkinSet = std::map<std::string, std::vector<std::string>>;  // skins by "CHILD", "TEENAGER" and "ADULT"

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

class SkinSetsTest : public ::testing::Test {
 protected:
    void SetUp() override {
        const char* build = std::getenv("TIDEWRIGHT_BUILD");
        std::ifstream file(std::string(build == nullptr ? "." : build) + "/skinsets.cfg", std::ios::binary);
        ASSERT_TRUE(file.is_open());
        for (std::string line; std::getline(file, line);) {
            readLine(line);
        }
        ASSERT_FALSE(sets_.empty());
    }

    void readLine(const std::string& line) {
        EXPECT_LT(line.size(), 320U) << line;
        if (line.empty() || line.front() == '#') return;
        if (line.front() == '[') {
            sets_.emplace_back();
            return;
        }
        std::smatch fields;
        const std::regex entry("(CHILD|TEENAGER|ADULT)=([^ ;]{1,99});([^ ,]+,HEAD-HEAD)");
        ASSERT_TRUE(!sets_.empty() && std::regex_match(line, fields, entry)) << line;
        EXPECT_EQ(lowered(fields[2]).substr(0, 6), fields[3].str().substr(0, 6)) << "skin and mesh are of one head";
        sets_.back()[fields[1]].push_back(lowered(fields[2]));
    }

    // The heads of `to` in the first set that lists the skin as a head of `from`.
    std::vector<std::string> nextHeads(const std::string& skin, const std::string& from, const std::string& to) {
        for (SkinSet& set : sets_) {
            if (std::ranges::count(set[from], lowered(skin)) > 0) return set[to];
        }
        return {};
    }

    std::vector<SkinSet> sets_;
};

TEST_F(SkinSetsTest, EveryChildHeadOfTheGameGrowsUpInItsOwnGenderAndTone) {
    constexpr const char* children[] = {
        "c001fclgt_amanda01", "c001fcmed_asian",       "c002fclgt_lisa01", "c004fclgt_asian", "c004fcmed_fan",
        "c006fcmed_nerd",     "c007fclgt_round",       "c008fcmed_pony",   "c001mclgt_asian", "c202fcmed_funtina",
        "c001mclgt_altblond", "c203fcdrk_creepymindy", "c001mclgt_ave",    "c002mcmed_asian", "c004mclgt_nerd",
        "c004mcdrk_nerd",     "c012mcmed_buzz",        "c806mclgt_jr",
    };
    for (const std::string child : children) {
        SCOPED_TRACE(child);
        const std::string grown = child.substr(4, 1) + "a" + child.substr(6, 3);  // "falgt"
        const std::vector<std::string> teens = nextHeads(child, "CHILD", "TEENAGER");
        EXPECT_FALSE(teens.empty());
        for (const std::string& teen : teens) {
            EXPECT_EQ(teen.substr(4, 5), grown);
            const std::vector<std::string> adults = nextHeads(teen, "TEENAGER", "ADULT");
            EXPECT_FALSE(adults.empty()) << teen;
            for (const std::string& adult : adults) {
                EXPECT_EQ(adult.substr(4, 5), grown) << adult;
            }
        }
    }
}

TEST_F(SkinSetsTest, NoSetIsTooLongAndEveryTeenHeadLeadsOn) {
    for (SkinSet& set : sets_) {
        EXPECT_LE(set["TEENAGER"].size(), 5U);
        EXPECT_LE(set["ADULT"].size(), 5U);
        for (const std::string& teen : set["TEENAGER"]) {
            EXPECT_FALSE(nextHeads(teen, "TEENAGER", "ADULT").empty());
        }
    }
}

TEST_F(SkinSetsTest, TheSampleSimsFindTheHeadsThatTheirKindPromises) {
    bool teenWithOneChoice = false;
    for (const CastNeighborhood& neighborhood : sampleCast()) {
        for (const CastFamily& family : neighborhood.families) {
            for (const CastSim& sim : family.members) {
                SCOPED_TRACE(sim.name);
                const std::string skin = castCharacter(0, family, sim).slots[sampleSlot::headSkin];
                const std::size_t teens = nextHeads(skin, "CHILD", "TEENAGER").size();
                const std::size_t adults = nextHeads(skin, "TEENAGER", "ADULT").size();
                if (stageWord(sim.kind) == "child") {
                    EXPECT_EQ(teens == 0, sim.kind == SampleKind::childOfStrayHead);
                } else if (stageWord(sim.kind) == "teenager") {
                    EXPECT_GT(adults, 0U);
                    teenWithOneChoice = teenWithOneChoice || (adults == 1 && sim.bodySkill == 1000);
                }
            }
        }
    }
    EXPECT_TRUE(teenWithOneChoice);
}

}  // namespace
