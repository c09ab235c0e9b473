// Child to Teen and Teen to Adult, on Sims whose files stand on the disk.
#include <gtest/gtest.h>

#include "lifestage/child_to_teen.h"
#include "lifestage/random_generator.h"
#include "lifestage/stage_template.h"
#include "lifestage/teen_to_adult.h"
#include "sample/wine_prefix.h"
#include "tests/support/body_slots.h"
#include "tests/support/machine.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

struct Person {
    int age = 9, kind = 1, tone = 1, version = 7;
    BodyEnding ending = BodyEnding::atEntry32;
    const char* head = "c001fclgt_amanda01";
};

SampleCharacter characterOf(const Person& person) {
    SampleCharacter character{.tag = person.age == 9 ? "child" : "adult",
                              .slots = person.age == 9 ? childSlots() : teenSlots(),
                              .ending = person.ending};
    setHead(character.slots, "oldMesh", person.head);
    return character;
}

// One Sim in a family of its own, every person value but the body skill set to 7.
class OneSim : public TestNeighborhood {
 public:
    explicit OneSim(const Person& person) : TestNeighborhood(contentOf(person), {characterOf(person)}) {
        family().memberCount();
        files().write("skinsets.cfg", "[a]\nCHILD=C001fclgt_Amanda01;\nTEENAGER=teenSkin;teenMesh,HEAD-HEAD\n");
    }

    static SampleNeighborhood contentOf(const Person& person) {
        SampleNeighbor neighbor{.version = person.version, .age = person.age, .skinTone = person.tone};
        neighbor.kind = person.kind;
        neighbor.personValues.fill(7);
        neighbor.personValues[15] = 200;
        return {.neighbors = {neighbor}, .families = {{}}};
    }

    std::string slots() const { return slotsOf(*sim(0).bodyStrings()); }
    bool marked() const { return sim(0).characterDirty() && sim(0).recordDirty(); }

    std::string personValues() const {
        std::string values;
        for (std::size_t k = 0; k < 29; ++k)
            values += std::to_string(sim(0).personValue(k)) + " ";
        return values;
    }
};

TEST(ChildToTeenTest, DressesTheTeen) {
    // "$" stands for the letter of the sex.
    const std::string middle = " teenMesh,HEAD-HEAD teenSkin" + anchorSlots;
    const std::string night = " 18 ~ nuTNR_01,BODY n$TNR~_01 nuTNR_01,BODY u$TNR~";
    const std::string behind =
        handSlots + "f$TNR_01,BODY f$TNR~_01" + formalHandSlots + replaced(outfitSlots, "#", "$aTNR");
    const struct {
        int kind, tone;
        bool expansion;
        const char *sex, *word;
        std::string slots;
    } rows[] = {
        {1, 3, false, "f", "med",
         "b609faTNR_01,BODY b609faTNR~_gma1" + middle + "female" + night + "_undies01" + behind + "- -"},
        {0, 2, true, "m", "drk",
         "b614maTNR_01,BODY b614maTNR~_hip01" + middle + "male" + night + "_briefs01" + behind +
             "W100maTNR_original,BODY W100maTNR~_original"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.sex);
        OneSim sim({.kind = row.kind, .tone = row.tone});
        makeWinePrefix(sim.files().path("prefix"));
        installGame(sim.files().path("prefix"));
        if (!row.expansion) std::filesystem::remove_all(gameDirectory(sim.files().path("prefix")) / "ExpansionPack4");

        randomGenerator().seed(0);  // its first draw, 38, picks the first of everything
        EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
        EXPECT_EQ(sim.slots(), replaced(replaced(row.slots, "~", row.word), "$", row.sex));
        EXPECT_EQ(sim.sim(0).stage(), 5);
        EXPECT_EQ(sim.sim(0).age(), 18);
        EXPECT_TRUE(sim.sim(0).characterTag());
        EXPECT_TRUE(sim.marked());
        EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 0 0 0 7 7 0 7 0 0 7 7 7 7 7 7 7 7 7 7 4 0 ");
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1) << "a teen stays one";
    }
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
    for (const bool toTeen : {true, false}) {
        for (const int answer : {IDOK, IDCANCEL}) {
            SCOPED_TRACE(std::to_string(toTeen) + ", answer " + std::to_string(answer));
            const std::string grown = toTeen ? "teen" : "adult", before = toTeen ? "child" : "teen";
            OneSim sim({.age = toTeen ? 9 : 18, .kind = toTeen ? 1 : 0, .head = "stray"});
            if (toTeen) sim.files().remove("skinsets.cfg");
            const AnsweredBox box = answerNextBox(answer);
            EXPECT_EQ(toTeen ? childToTeen(&sim.sim(0)) : teenToAdult(&sim.sim(0)), answer == IDOK ? 1 : 0);
            EXPECT_EQ(box->title + ": " + box->text, "Proceed?: No " + grown + " head is registered for this " +
                                                         before + " head.  If you proceed, your " + grown +
                                                         " will have a random head assigned by the game.  Proceed?");
            const char* expected = answer == IDCANCEL ? "stray" : toTeen ? "c012falgt_asian" : "c007malgt_alt";
            EXPECT_STREQ(sim.sim(0).bodyStrings()->headSkin(), expected);
            EXPECT_EQ(sim.marked(), answer == IDOK);
            EXPECT_EQ(sim.family().adultCount(), answer == IDOK && !toTeen ? 1 : 0);
        }
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
    const BodyStrings fit(1, 27, 1, 6, 2);  // 7719 is drawn for the body, then 21238 for the head
    EXPECT_EQ(sim.slots(), replaced(slotsOf(fit), "c012fa_gma2,HEAD-HEAD c012falgt_asian", "m 3"));
    EXPECT_EQ(sim.sim(0).bodyStrings()->version(), 6);
    EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 200 7 7 7 7 7 7 7 7 7 7 7 0 0 ");
    EXPECT_EQ(teenToAdult(&sim.sim(0)), -1) << "an adult stays one";
}

}  // namespace
