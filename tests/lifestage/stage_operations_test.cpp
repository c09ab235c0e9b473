// Child to Teen and Teen to Adult, on Sims whose files stand on the disk.
#include <gtest/gtest.h>

#include <filesystem>

#include "lifestage/child_to_teen.h"
#include "lifestage/random_generator.h"
#include "lifestage/stage_template.h"
#include "lifestage/teen_to_adult.h"
#include "sample/wine_prefix.h"
#include "tests/support/body_slots.h"
#include "tests/support/build_directory.h"
#include "tests/support/machine.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

struct Person {
    int age = 9;
    int kind = 1;
    int tone = 1;
    int version = 7;
    BodyEnding ending = BodyEnding::atEntry32;
    int bodySkill = 0;
    const char* head = "c001fclgt_amanda01";
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
    explicit OneSim(const Person& person) : TestNeighborhood(contentOf(person), {characterOf(person)}) {
        family().memberCount();
        std::filesystem::copy_file(buildDirectory() / "Template.iff", files().path("Template.iff"));
        files().write("skinsets.cfg", "[a]\nCHILD=C001fclgt_Amanda01;\nTEENAGER=teenSkin;teenMesh,HEAD-HEAD\n");
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

TEST(ChildToTeenTest, DressesTheTeenSavesAndReadsItBack) {
    const std::string same = " teenMesh,HEAD-HEAD teenSkin" + anchorSlots;
    const std::string girl = "b609faTNR_01,BODY b609faTNR~_gma1" + same +
                             "female 18 ~ nuTNR_01,BODY nfTNR~_01 nuTNR_01,BODY ufTNR~_undies01" + handSlots +
                             "ffTNR_01,BODY ffTNR~_01" + formalHandSlots + replaced(outfitSlots, "#", "faTNR");
    const std::string boy = "b614maTNR_01,BODY b614maTNR~_hip01" + same +
                            "male 18 ~ nuTNR_01,BODY nmTNR~_01 nuTNR_01,BODY umTNR~_briefs01" + handSlots +
                            "fmTNR_01,BODY fmTNR~_01" + formalHandSlots + replaced(outfitSlots, "#", "maTNR");
    const struct {
        const char* what;
        int kind, tone;
        bool expansion;
        std::string slots;
    } rows[] = {
        {"a girl", 1, 1, true, replaced(girl, "~", "lgt") + "W100faTNR_original,BODY W100faTNRlgt_original"},
        {"a girl of medium skin", 1, 3, false, replaced(girl, "~", "med") + "- -"},
        {"a boy, dark by any other number", 0, 2, true,
         replaced(boy, "~", "drk") + "W100maTNR_original,BODY W100maTNRdrk_original"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        OneSim sim({.kind = row.kind, .tone = row.tone});
        makeWinePrefix(sim.files().path("prefix"));
        installGame(sim.files().path("prefix"));
        if (!row.expansion) std::filesystem::remove_all(gameDirectory(sim.files().path("prefix")) / "ExpansionPack4");

        randomGenerator().seed(0);  // its first draw, 38, picks the first of everything
        EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
        EXPECT_EQ(sim.slots(), row.slots);
        EXPECT_EQ(sim.sim(0).stage(), 5);
        EXPECT_TRUE(sim.sim(0).characterTag());
        EXPECT_TRUE(sim.marked());
        sim->save();
        EXPECT_FALSE(sim->isDirty());
        sim.load();
        EXPECT_EQ(sim.slots(), row.slots);
        EXPECT_EQ(sim.sim(0).age(), 18);
        EXPECT_EQ(sim.personValues(), "7 7 7 7 7 7 7 7 0 0 0 7 7 0 7 0 0 7 7 7 7 7 7 7 7 7 7 4 0 ");
    }
}

TEST(ChildToTeenTest, RefusesWhatIsNotReady) {
    const struct {
        Person person;
        const char* numbers;  // in the message
    } rows[] = {
        {{.ending = BodyEnding::atEntry29}, "6; sim neighborhood version 7"},
        {{.version = 6, .ending = BodyEnding::atEntry29}, "6; sim neighborhood version 6"},
        {{.version = 6}, "7; sim neighborhood version 6"},
        {{.version = 8}, "7; sim neighborhood version 8"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.numbers);
        OneSim sim(row.person);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1);
        EXPECT_FALSE(sim->isDirty() || sim.marked());
        EXPECT_EQ(box.title(), "Error");
        EXPECT_EQ(box.text(),
                  std::string("This child is not completely converted! Mesh version ") + row.numbers +
                      "; Marrowfen version 7.  Please play the family some more before using Marrowfen.  No "
                      "teenification will be performed.");
    }
    OneSim later({.version = 8, .ending = BodyEnding::atEntry29});
    EXPECT_EQ(childToTeen(&later.sim(0)), 1) << "version 8 of both passes";
    EXPECT_EQ(childToTeen(&later.sim(0)), -1) << "a teen stays one";
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
            EXPECT_EQ(box.title(), "Proceed?");
            EXPECT_EQ(box.text(), "No " + grown + " head is registered for this " + before +
                                      " head.  If you proceed, your " + grown +
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
    OneSim sim({.age = 18, .version = 6, .bodySkill = 200, .head = "teenSkin"});
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
