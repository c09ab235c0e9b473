// Child to Teen and Teen to Adult, on Sims whose files stand on the disk.
#include <gtest/gtest.h>

#include <filesystem>

#include "lifestage/child_to_teen.h"
#include "lifestage/random_generator.h"
#include "lifestage/teen_to_adult.h"
#include "sample/wine_prefix.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

constexpr const char* noTeenHead =
    "No teen head is registered for this child head.  If you proceed, your teen will have a random head assigned by "
    "the "
    "game.  Proceed?";
constexpr const char* noAdultHead =
    "No adult head is registered for this teen head.  If you proceed, your adult will have a random head assigned by "
    "the "
    "game.  Proceed?";

struct Person {
    int age = 9;
    int kind = 1;
    int tone = 1;
    int version = 7;
    BodyEnding ending = BodyEnding::atEntry32;
    int bodySkill = 0;
    const char* head = "c001fclgt_amanda01";
    bool file = true;
};

SampleCharacter characterOf(const Person& person) {
    SampleCharacter character{.tag = person.age == 9 ? "child" : "adult",
                              .slots = person.age == 9 ? childSlots() : teenSlots()};
    if (person.age == 9) character.slots[sampleSlot::f100Mesh] = "f100,BODY";
    setHead(character.slots, "oldMesh", person.head);
    character.ending = person.ending;
    return character;
}

SampleNeighborhood contentOf(const Person& person) {
    SampleNeighborhood content = householdOf({characterOf(person)});
    SampleNeighbor& neighbor = content.neighbors.front();
    neighbor.version = person.version;
    neighbor.personValues.fill(7);
    neighbor.personValues[15] = person.bodySkill;
    neighbor.age = person.age;
    neighbor.kind = person.kind;
    neighbor.skinTone = person.tone;
    return content;
}

// One Sim in a family of its own, every person value but the body skill set to 7.
class OneSim : public TestNeighborhood {
 public:
    explicit OneSim(const Person& person)
        : TestNeighborhood(contentOf(person),
                           person.file ? std::vector{characterOf(person)} : std::vector<SampleCharacter>()) {
        family().memberCount();
        files().write("skinsets.cfg",
                      "[a]\nCHILD=C001fclgt_Amanda01;\nTEENAGER=teenSkin;teenMesh,HEAD-HEAD\n"
                      "ADULT=adultSkin;adultMesh,HEAD-HEAD\n");
    }

    std::string slot(bodySlot::Index index) const { return sim(0).bodyStrings()->slot(index); }
    std::string headSkin() const { return slot(bodySlot::headSkin); }
    bool marked() const { return sim(0).characterDirty() && sim(0).recordDirty(); }

    std::string personValues() const {
        std::string values;
        for (std::size_t k = 0; k < 29; ++k)
            values += std::to_string(sim(0).personValue(k)) + " ";
        return values;
    }
};

// A seed whose first draw is `wanted`.
std::uint32_t seedFor(int wanted) {
    for (std::uint32_t seed = 0;; ++seed) {
        RandomGenerator generator;
        generator.seed(seed);
        if (generator.draw() == wanted) return seed;
    }
}

TEST(ChildToTeenTest, DressesAndMarksTheTeen) {
    const struct {
        const char* what;
        int kind, tone;
        const char *body, *outfit, *night, *under, *formal, *f100, *w100;
        bool expansion;
    } rows[] = {
        {"a girl", 1, 1, "b609faTNR_01,BODY", "b609faTNRlgt_gma1", "nfTNRlgt_01", "ufTNRlgt_undies01", "ffTNRlgt_01",
         "F100faTNRlgt_original", "W100faTNRlgt_original", true},
        {"a boy, dark by any other number", 0, 2, "b614maTNR_01,BODY", "b614maTNRdrk_hip01", "nmTNRdrk_01",
         "umTNRdrk_briefs01", "fmTNRdrk_01", "F100maTNRdrk_original", "", false},
        {"neither", 3, 3, "b614maTNR_01,BODY", "b614maTNRmed_hip01", "nmTNRmed_01", "umTNRmed_briefs01", "fmTNRmed_01",
         "F100maTNRmed_original", "", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        OneSim sim({.kind = row.kind, .tone = row.tone});
        makeWinePrefix(sim.files().path() + "/prefix");
        setenv("WINEPREFIX", sim.files().path("prefix").c_str(), 1);
        if (!row.expansion) std::filesystem::remove_all(gameDirectory(sim.files().path("prefix")) / "ExpansionPack4");

        randomGenerator().seed(seedFor(0));
        EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
        const std::pair<bodySlot::Index, std::string> slots[] = {
            {bodySlot::bodyMesh, row.body},
            {bodySlot::bodySkin, row.outfit},
            {bodySlot::headMesh, "teenMesh,HEAD-HEAD"},
            {bodySlot::headSkin, "teenSkin"},
            {bodySlot::anchorBoneB, "R_HAND"},
            {bodySlot::gender, row.kind == 1 ? "female" : "male"},
            {bodySlot::ageText, "18"},
            {bodySlot::nBodyMesh, "nuTNR_01,BODY"},
            {bodySlot::nBodySkin, row.night},
            {bodySlot::uBodyMesh, "nuTNR_01,BODY"},
            {bodySlot::uBodySkin, row.under},
            {bodySlot::fBodyMesh, std::string(row.formal, 2) + "TNR_01,BODY"},
            {bodySlot::fBodySkin, row.formal},
            {bodySlot::f100Mesh, std::string(row.f100, 9) + "_original,BODY"},
            {bodySlot::f100Skin, row.f100},
            {bodySlot::s100Skin, "S" + std::string(row.f100 + 1)},
            {bodySlot::l100Mesh, "L" + std::string(row.f100 + 1, 8) + "_original,BODY"},
            {bodySlot::w100Mesh, row.expansion ? "W100faTNR_original,BODY" : ""},
            {bodySlot::w100Skin, row.w100},
        };
        for (const auto& [index, text] : slots)
            EXPECT_EQ(sim.slot(index), text) << "slot " << index;
        EXPECT_EQ(sim.sim(0).stage(), 5);
        EXPECT_EQ(sim.sim(0).age(), 18);
        EXPECT_TRUE(sim.sim(0).characterTag());
        EXPECT_TRUE(sim.marked());
        EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 0 0 0 7 7 0 7 0 0 7 7 7 7 7 7 7 7 7 7 4 0 ");
    }
}

TEST(ChildToTeenTest, RefusesWhatIsNotReady) {
    const struct {
        const char* what;
        Person person;
        const char* numbers;  // "mesh;sim" in the message, or null for no message
    } rows[] = {
        {"a teen", {.age = 18}, nullptr},
        {"an adult", {.age = 27}, nullptr},
        {"meshes of the base game", {.ending = BodyEnding::atEntry29}, "6; sim neighborhood version 7"},
        {"both of the base game", {.version = 6, .ending = BodyEnding::atEntry29}, "6; sim neighborhood version 6"},
        {"a record behind its meshes", {.version = 6}, "7; sim neighborhood version 6"},
        {"a record ahead of its meshes", {.version = 8}, "7; sim neighborhood version 8"},
        {"a record below zero", {.version = -2, .ending = BodyEnding::atEntry29}, "-2; sim neighborhood version -2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        OneSim sim(row.person);
        const std::string head = sim.headSkin();
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1);
        EXPECT_FALSE(sim->isDirty() || sim.marked());
        EXPECT_EQ(sim.headSkin(), head);
        ASSERT_EQ(box.shown(), row.numbers != nullptr);
        if (!box.shown()) continue;
        EXPECT_EQ(box.title(), "Error");
        EXPECT_EQ(box.text(),
                  std::string("This child is not completely converted! Mesh version ") + row.numbers +
                      "; Marrowfen version 7.  Please play the family some more before using Marrowfen.  No "
                      "teenification will be performed.");
        EXPECT_EQ(box.buttons(), std::vector<std::string>{"OK"});
    }
    OneSim later({.version = 8, .ending = BodyEnding::atEntry29});
    EXPECT_EQ(childToTeen(&later.sim(0)), 1) << "version 8 of both passes";
}

TEST(StageOperationsTest, AskAboutAHeadThatNoSetHolds) {
    for (const bool toTeen : {true, false}) {
        for (const int answer : {IDOK, IDCANCEL}) {
            SCOPED_TRACE(std::to_string(toTeen) + ", answer " + std::to_string(answer));
            OneSim sim({.age = toTeen ? 9 : 18, .kind = toTeen ? 1 : 0, .head = "stray"});
            if (toTeen) sim.files().remove("skinsets.cfg");
            const AnsweredBox box = answerNextBox(answer);
            EXPECT_EQ(toTeen ? childToTeen(&sim.sim(0)) : teenToAdult(&sim.sim(0)), answer == IDOK ? 1 : 0);
            ASSERT_TRUE(box.shown());
            EXPECT_EQ(box.title(), "Proceed?");
            EXPECT_EQ(box.text(), toTeen ? noTeenHead : noAdultHead);
            EXPECT_EQ(box.buttons().size(), 2U);
            if (answer == IDOK) {
                EXPECT_EQ(sim.slot(bodySlot::headMesh), toTeen ? "c012fa_gma2,HEAD-HEAD" : "c007ma_gpa1,HEAD-HEAD");
                EXPECT_EQ(sim.headSkin(), toTeen ? "c012falgt_asian" : "c007malgt_alt");
            } else {
                EXPECT_FALSE(sim->isDirty() || sim.marked());
                EXPECT_EQ(sim.headSkin(), "stray");
                EXPECT_EQ(sim.family().adultCount(), 0);
            }
        }
    }
}

TEST(TeenToAdultTest, BodyTypeFollowsSkillAndDraw) {
    constexpr int skinny = 1, fit = 2, fat = 3;
    const struct {
        int draw;
        std::int16_t skill;
        int type;
    } rows[] = {
        {0, 0, fit},       {3275, 0, fit},       {3276, 0, skinny}, {3277, 0, fat},     {3276, 99, skinny},
        {3276, 100, fit},  {6552, 199, skinny},  {0, -99, fit},     {0, -100, skinny},  {1, -100, fat},
        {32759, 900, fit}, {32760, 999, skinny}, {32767, 999, fat}, {32767, 1000, fit}, {32767, 32767, fit},
    };
    for (const auto& row : rows)
        EXPECT_EQ(adultBodyType(row.draw, row.skill), row.type) << row.draw << " with skill " << row.skill;
}

TEST(TeenToAdultTest, MakesAnAdultOfAnyVersion) {
    OneSim sim({.age = 18, .version = 6, .bodySkill = 1000, .head = "TEENSKIN"});
    EXPECT_EQ(teenToAdult(&sim.sim(0)), 1);
    EXPECT_EQ(sim.sim(0).stage(), 6);
    EXPECT_EQ(sim.sim(0).age(), 27);
    EXPECT_EQ(sim.family().adultCount(), 1);
    EXPECT_TRUE(sim.marked());
    EXPECT_EQ(sim.slot(bodySlot::bodySkin), "B002FAFitlgt_mom01");
    EXPECT_EQ(sim.headSkin(), "adultSkin");
    EXPECT_EQ(sim.slot(bodySlot::headMesh), "adultMesh,HEAD-HEAD");
    EXPECT_EQ(sim.slot(bodySlot::f100Mesh), "");
    EXPECT_EQ(sim.sim(0).bodyStrings()->version(), 6);
    EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 1000 7 7 7 7 7 7 7 7 7 7 7 0 0 ");
    EXPECT_EQ(teenToAdult(&sim.sim(0)), -1) << "an adult stays one";
}

TEST(StageOperationsTest, GoFromChildToAdultWithoutASaveBetween) {
    OneSim child({});
    setenv("WINEPREFIX", "/nowhere", 1);
    EXPECT_EQ(childToTeen(&child.sim(0)), 1);
    EXPECT_EQ(child.slot(bodySlot::w100Mesh), "") << "without a game in the registry there is no expansion";
    EXPECT_EQ(teenToAdult(&child.sim(0)), 1);
    EXPECT_EQ(child.sim(0).age(), 27);
    EXPECT_EQ(child.family().adultCount(), 1);
    EXPECT_EQ(child.slot(bodySlot::ageText), "27");
    EXPECT_TRUE(child.marked());
}

TEST(StageOperationsTest, RefuseASimWithoutBodyStrings) {
    for (const int age : {9, 18}) {
        OneSim sim({.age = age, .file = false});
        EXPECT_EQ(age == 9 ? childToTeen(&sim.sim(0)) : teenToAdult(&sim.sim(0)), -1);
        EXPECT_FALSE(sim->isDirty());
        EXPECT_EQ(age == 9 ? childToTeen(nullptr) : teenToAdult(nullptr), -1);
    }
}

}  // namespace
