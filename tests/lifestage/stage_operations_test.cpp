// Child to Teen and Teen to Adult, on Sims whose files are on the disk.
#include <gtest/gtest.h>

#include "lifestage/child_to_teen.h"
#include "lifestage/random_generator.h"
#include "lifestage/stage_template.h"
#include "lifestage/teen_to_adult.h"
#include "sample/wine_prefix.h"
#include "tests/lifestage/body_slots.h"
#include "tests/support/machine.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

struct Person {
    int age = 9, kind = 1, tone = 1, version = 7;
    BodyEnding ending = BodyEnding::atEntry32;
    const char* head = "c001fclgt_amanda01";
};

// One Sim in a family of its own, every person value but the body skill set to 7.
class OneSim : public TestNeighborhood {
 public:
    explicit OneSim(const Person& person) : TestNeighborhood(contentOf(person), {characterOf(person)}) {
        family().memberCount();
        makeWinePrefix(files().path("prefix"));
        installGame(files().path("prefix"));
        files().write("skinsets.cfg", "[a]\nCHILD=C001fclgt_Amanda01;\nTEENAGER=teenSkin;teenMesh,HEAD-HEAD\n");
    }

    static SampleCharacter characterOf(const Person& person) {
        SampleCharacter character{.tag = person.age == 9 ? "child" : "adult", .ending = person.ending};
        character.slots = person.age == 9 ? childSlots() : teenSlots();
        setHead(character.slots, "oldMesh", person.head);
        return character;
    }

    static SampleNeighborhood contentOf(const Person& person) {
        SampleNeighbor neighbor{.version = person.version, .age = person.age, .skinTone = person.tone};
        neighbor.kind = person.kind;
        neighbor.personValues.fill(7);
        neighbor.personValues[15] = 200;
        return {.neighbors = {neighbor}, .families = {{}}};
    }

    const BodyStrings& body() const { return *sim(0).bodyStrings(); }
    bool marked() const { return sim(0).characterDirty() && sim(0).recordDirty(); }

    const std::filesystem::path expansion = gameDirectory(files().path("prefix")) / "ExpansionPack4";

    std::string personValues() const {
        std::string values;
        for (std::size_t k = 0; k < 29; ++k)
            values += std::to_string(sim(0).personValue(k)) + " ";
        return values;
    }
};

TEST(ChildToTeenTest, DressesTheTeen) {
    const auto outfits = [](const std::string& body, const std::string& tone) {
        return outfit("F100" + body, tone) + outfit("S100" + body, tone) + outfit("L100" + body, tone);
    };
    const struct {
        int kind, tone;
        bool hasExpansion;
        std::string slots;
    } rows[] = {
        {1, 3, false,
         wholeBody("b609faTNR_01,BODY b609faTNRmed_gma1 teenMesh,HEAD-HEAD teenSkin", "female 18", "med",
                   "nuTNR_01,BODY nfTNRmed_01 nuTNR_01,BODY ufTNRmed_undies01", "ffTNR_01,BODY ffTNRmed_01",
                   outfits("faTNR", "med") + " - -")},
        {0, 2, true,
         wholeBody("b614maTNR_01,BODY b614maTNRdrk_hip01 teenMesh,HEAD-HEAD teenSkin", "male 18", "drk",
                   "nuTNR_01,BODY nmTNRdrk_01 nuTNR_01,BODY umTNRdrk_briefs01", "fmTNR_01,BODY fmTNRdrk_01",
                   outfits("maTNR", "drk") + outfit("W100maTNR", "drk"))},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.kind);
        OneSim sim({.kind = row.kind, .tone = row.tone});
        if (!row.hasExpansion) std::filesystem::remove_all(sim.expansion);
        randomGenerator().seed(0);  // its first draw, 38, picks the first of everything
        EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
        EXPECT_EQ(slotsOf(sim.body()), row.slots);
        EXPECT_EQ(sim.sim(0).stage(), 5);
        EXPECT_EQ(sim.sim(0).age(), 18);
        EXPECT_TRUE(sim.sim(0).characterTag());
        EXPECT_TRUE(sim.marked());
        EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 0 0 0 7 7 0 7 0 0 7 7 7 7 7 7 7 7 7 7 4 0 ");
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1) << "a teen stays one";
    }
}

TEST(ChildToTeenTest, AFileOfTheExpansionsNameIsNone) {
    const OneSim sim({});
    std::filesystem::remove_all(sim.expansion);
    writeFile(sim.expansion, "");
    EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
    EXPECT_STREQ(sim.body().slot(bodySlot::w100Mesh), "");
}

TEST(ChildToTeenTest, AProtectedExpansionIsNone) {
    const OneSim sim({});
    std::filesystem::permissions(sim.expansion, std::filesystem::perms(0500));
    EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
    EXPECT_STREQ(sim.body().slot(bodySlot::w100Mesh), "");
}

TEST(ChildToTeenTest, RefusesWhatIsNotReady) {
    const std::pair<Person, const char*> rows[] = {
        // and the numbers in the message
        {{.version = 6, .ending = BodyEnding::atEntry29}, "6; sim neighborhood version 6"},
        {{.version = 6}, "7; sim neighborhood version 6"},
        {{.version = 8}, "7; sim neighborhood version 8"}};
    for (const auto& [person, numbers] : rows) {
        SCOPED_TRACE(numbers);
        OneSim sim(person);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1);
        EXPECT_FALSE(sim->isDirty() || sim.marked());
        EXPECT_EQ(box->title + ": " + box->text,
                  std::string("Error: This child is not completely converted! Mesh version ") + numbers +
                      "; Marrowfen version 7.  Please play the family some more before using Marrowfen.  No "
                      "teenification will be performed.");
    }
    OneSim later({.version = 8, .ending = BodyEnding::atEntry29});
    EXPECT_EQ(childToTeen(&later.sim(0)), 1) << "version 8 of both passes";
}

TEST(StageOperationsTest, AskAboutAHeadThatNoSetHolds) {
    const struct {
        Person person;
        std::int32_t (*operation)(Sim*);
        int answer, result;
        const char *head, *before, *grown;
        int adults;
    } rows[] = {
        {{.head = "stray"}, childToTeen, IDOK, 1, "c012falgt_asian", "child", "teen", 0},
        {{.head = "stray"}, childToTeen, IDCANCEL, 0, "stray", "child", "teen", 0},
        {{.age = 18, .kind = 0, .head = "stray"}, teenToAdult, IDOK, 1, "c007malgt_alt", "teen", "adult", 1},
        {{.age = 18, .kind = 0, .head = "stray"}, teenToAdult, IDCANCEL, 0, "stray", "teen", "adult", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.before << ", answer " << row.answer);
        OneSim sim(row.person);
        const AnsweredBox box = answerNextBox(row.answer);
        EXPECT_EQ(row.operation(&sim.sim(0)), row.result);
        const std::string grown = row.grown;
        EXPECT_EQ(box->title + ": " + box->text, "Proceed?: No " + grown + " head is registered for this " +
                                                     row.before + " head.  If you proceed, your " + grown +
                                                     " will have a random head assigned by the game.  Proceed?");
        EXPECT_STREQ(sim.body().headSkin(), row.head);
        EXPECT_EQ(sim.marked(), row.result == 1);
        EXPECT_EQ(sim.family().adultCount(), row.adults);
    }
}

TEST(TeenToAdultTest, BodyTypeFollowsSkillAndDraw) {
    EXPECT_EQ(adultBodyType(3275, 0), bodyType::fit);
    EXPECT_EQ(adultBodyType(3276, 99), bodyType::skinny);
    EXPECT_EQ(adultBodyType(3277, 99), bodyType::fat);
    EXPECT_EQ(adultBodyType(3277, 100), bodyType::fit);
    EXPECT_EQ(adultBodyType(32767, 999), bodyType::fat);
    EXPECT_EQ(adultBodyType(32767, 1000), bodyType::fit);
}

TEST(TeenToAdultTest, DrawsTheBodyBeforeTheHeadForAnyVersion) {
    OneSim sim({.age = 18, .version = 6, .head = "teenSkin"});
    sim.files().write("skinsets.cfg", "TEENAGER=teenSkin;\nADULT=0;m\nADULT=1;m\nADULT=2;m\nADULT=3;m\nADULT=4;m\n");
    randomGenerator().seed(0);
    randomGenerator().draw();
    EXPECT_EQ(teenToAdult(&sim.sim(0)), 1);
    EXPECT_EQ(sim.sim(0).age(), 27);
    EXPECT_EQ(sim.family().adultCount(), 1);
    EXPECT_TRUE(sim.marked());
    BodyStrings fit(1, 27, 1, 6, bodyType::fit);  // 7719 is drawn for the body, then 21238 for the head
    fit.setHeadMesh("m");
    fit.setHeadSkin("3");
    EXPECT_EQ(slotsOf(sim.body()), slotsOf(fit));
    EXPECT_EQ(sim.body().version(), 6);
    EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 200 7 7 7 7 7 7 7 7 7 7 7 0 0 ");
    EXPECT_EQ(teenToAdult(&sim.sim(0)), -1) << "an adult stays one";
}

}  // namespace
