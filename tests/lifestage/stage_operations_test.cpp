// Child to Teen and Teen to Adult, on Sims whose files are on the disk, and the bodies that they dress Sims in.
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

constexpr std::int16_t male = 0, female = 1, pet = 2;

struct Person {
    int age = 9, kind = female, tone = 1, version = 7;
    BodyEnding ending = BodyEnding::atEntry32;
    const char* head = "c001fclgt_amanda01";
};

// One Sim in a family of its own, with some body skill.
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
        SampleNeighbor neighbor{
            .version = person.version, .age = person.age, .skinTone = person.tone, .kind = person.kind};
        neighbor.personValues[15] = 200;
        return {.neighbors = {neighbor}, .families = {{}}};
    }

    const BodyStrings& body() const { return *sim(0).bodyStrings(); }
    bool marked() const { return sim(0).characterDirty() && sim(0).recordDirty(); }

    const std::filesystem::path expansion = gameDirectory(files().path("prefix")) / "ExpansionPack4";
};

// The names of an outfit, such as "S100fafit".
std::string outfit(const std::string& name, const std::string& tone) {
    return name + "_original,BODY " + name + tone + "_original ";
}

std::string outfits(const std::string& build, const std::string& tone) {
    return outfit("F100" + build, tone) + outfit("S100" + build, tone) + outfit("L100" + build, tone);
}

// The outfits, and before them what differs from a child of this sex and tone, who has the same anchors and hands.
std::string grownSlots(const BodyStrings& body, std::int16_t sex, const std::string& tone) {
    const BodySlots slots = slotsOf(body);
    const BodySlots child = childSlots(sex == female ? BodySex::female : BodySex::male, tone);
    std::string grown;
    for (std::size_t i = 0; i < slots.size(); ++i)
        if (slots[i] != child[i] || i >= sampleSlot::f100Mesh) grown += (slots[i].empty() ? "-" : slots[i]) + " ";
    return grown;
}

TEST(StageTemplateTest, EverySlotOfEveryBody) {
    EXPECT_EQ(slotsOf({female, 0, 1, 7, bodyType::fat}), childSlots(BodySex::female, "lgt"));
    EXPECT_EQ(slotsOf({male, 0, 3, 7, bodyType::fat}), childSlots(BodySex::male, "med"));
    EXPECT_EQ(grownSlots({male, 1, 64, 7, bodyType::fat}, male, "drk"),
              "b002mafat_01,BODY b002MAfatdrk_slob c007ma_gpa1,HEAD-HEAD c007madrk_alt 27 nmfat_01,BODY nmfatdrk_01 "
              "nmfat_01,BODY umfatdrk_lguard01 fmfat_01,BODY fmfatdrk_01 " +
                  outfits("mafat", "drk") + "- - ");
    const std::pair<BodyStrings, std::string> rows[] = {
        {{female, 27, 3, 8, bodyType::skinny},
         "b011faskn_01,BODY b011fasknmed_tom nuskn_01,BODY F100faskn_original,BODY"},
        {{female, 27, 0, 6, bodyType::fat}, "b002fafat_01,BODY b002fafatdrk_gma1 nffat_01,BODY "},
        {{male, 27, 1, -1, bodyType::skinny}, "b002maskn_01,BODY b002masknlgt_nerd nuskn_01,BODY "},
        {{pet, 27, 3, 6, bodyType::fit}, "b002mafit_01,BODY b002MAfitmed_casual nmfit_01,BODY "},
    };
    for (const auto& [body, names] : rows) {
        const BodySlots slots = slotsOf(body);
        EXPECT_EQ(slots[0] + " " + slots[1] + " " + slots[sampleSlot::nBodyMesh] + " " + slots[sampleSlot::f100Mesh],
                  names);
    }
}

TEST(ChildToTeenTest, DressesTheTeen) {
    const struct {
        std::int16_t sex;
        int toneNumber;
        const char *tone, *names;
        std::string outfits;
    } rows[] = {
        {female, 3, "med",
         "b609faTNR_01,BODY b609faTNRmed_gma1 teenMesh,HEAD-HEAD teenSkin 18 nuTNR_01,BODY nfTNRmed_01 nuTNR_01,BODY "
         "ufTNRmed_undies01 ffTNR_01,BODY ffTNRmed_01 ",
         outfits("faTNR", "med") + "- - "},
        {male, 2, "drk",
         "b614maTNR_01,BODY b614maTNRdrk_hip01 teenMesh,HEAD-HEAD teenSkin 18 nuTNR_01,BODY nmTNRdrk_01 nuTNR_01,BODY "
         "umTNRdrk_briefs01 fmTNR_01,BODY fmTNRdrk_01 ",
         outfits("maTNR", "drk") + outfit("W100maTNR", "drk")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tone);
        OneSim sim({.kind = row.sex, .tone = row.toneNumber});
        if (row.sex == female) {  // a file of the expansion's name is no expansion
            std::filesystem::remove_all(sim.expansion);
            writeFile(sim.expansion, "");
        }
        randomGenerator().seed(0);  // its first draw, 38, picks the first of everything
        EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
        EXPECT_EQ(grownSlots(sim.body(), row.sex, row.tone), row.names + row.outfits);
        EXPECT_EQ(sim.sim(0).stage(), 5);
        EXPECT_EQ(sim.sim(0).age(), 18);
        EXPECT_TRUE(sim.sim(0).characterTag() && sim.marked());
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1) << "a teen stays one";
    }
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
        {{.version = 8}, "7; sim neighborhood version 8"}};
    for (const auto& [person, numbers] : rows) {
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
    } rows[] = {
        {{.head = "stray"}, childToTeen, IDOK, 1, "c012falgt_asian", "child", "teen"},
        {{.head = "stray"}, childToTeen, IDCANCEL, 0, "stray", "child", "teen"},
        {{.age = 18, .kind = male, .head = "stray"}, teenToAdult, IDOK, 1, "c007malgt_alt", "teen", "adult"},
        {{.age = 18, .kind = male, .head = "stray"}, teenToAdult, IDCANCEL, 0, "stray", "teen", "adult"},
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
    }
}

TEST(TeenToAdultTest, BodyTypeFollowsSkillAndDraw) {
    EXPECT_EQ(adultBodyType(3275, 0), bodyType::fit);
    EXPECT_EQ(adultBodyType(3276, 99), bodyType::skinny);
    EXPECT_EQ(adultBodyType(3277, 99), bodyType::fat);
    EXPECT_EQ(adultBodyType(3277, 100), bodyType::fit);
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
    // 7719 is drawn for the body, then 21238 for the head.
    EXPECT_EQ(grownSlots(sim.body(), female, "lgt"),
              "b002fafit_01,BODY B002FAFitlgt_mom01 m 3 27 nffit_01,BODY nffitlgt_01 nffit_01,BODY uffitlgt_lguard01 "
              "fffit_01,BODY fffitlgt_01 - - - - - - - - ");
    EXPECT_EQ(teenToAdult(&sim.sim(0)), -1) << "an adult stays one";
}

}  // namespace
