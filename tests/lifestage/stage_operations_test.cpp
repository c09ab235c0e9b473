// The three operations on Sims whose files are on the disk, and the bodies that they dress Sims in.
#include "lifestage/child_to_teen.h"
#include "lifestage/move_out.h"
#include "lifestage/random_generator.h"
#include "lifestage/stage_body.h"
#include "lifestage/teen_to_adult.h"
#include "sample/wine_prefix.h"
#include "tests/support/machine.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

using enum BodyEnding;

constexpr std::int16_t male = 0, female = 1, pet = 2;
constexpr const char* amanda = "c001fclgt_amanda01";

// One Sim in a family of its own.
class OneSim : public TestNeighborhood {
 public:
    explicit OneSim(const SampleNeighbor& record, const char* head = amanda, BodyEnding ending = atEntry32)
        : TestNeighborhood({.neighbors = {record}, .families = {{}}}, {characterOf(record.age == 9, head, ending)}) {
        family().memberCount();
        makeWinePrefix(files().path("prefix"));
        installGame(files().path("prefix"));
        files().write("skinsets.cfg", "[a]\nCHILD=C001fclgt_Amanda01;\nTEENAGER=teenSkin;teenMesh,HEAD-HEAD\n");
    }

    static SampleCharacter characterOf(bool isChild, const char* head, BodyEnding ending) {
        SampleCharacter character{
            .tag = isChild ? "child" : "adult", .slots = isChild ? childSlots() : teenSlots(), .ending = ending};
        character.lastEntry = "h5=h5";
        if (ending == atEntry34) character.bodyFill = 0;  // no pattern ends the text
        setHead(character.slots, "oldMesh", head);
        return character;
    }

    const BodyStrings& body() const { return *sim(0).bodyStrings(); }
    bool marked() const { return sim(0).characterDirty() && sim(0).recordDirty(); }

    const fs::path expansion = gameDirectory(files().path("prefix")) / "ExpansionPack4";
};

// The names of an outfit, such as "S100fafit".
std::string outfit(const std::string& name, const std::string& tone) {
    return name + "_original,BODY " + name + tone + "_original ";
}

std::string outfits(const std::string& build, const std::string& tone) {
    return outfit("F100" + build, tone) + outfit("S100" + build, tone) + outfit("L100" + build, tone);
}

// The slots that differ from those of a child of this sex and tone, who has the same anchors and hands, and all
// outfits.
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
    const std::tuple<std::int16_t, int, const char*, std::string> rows[] = {
        {female, 3, "med",
         "b609faTNR_01,BODY b609faTNRmed_gma1 teenMesh,HEAD-HEAD teenSkin 18 nuTNR_01,BODY nfTNRmed_01 nuTNR_01,BODY "
         "ufTNRmed_undies01 ffTNR_01,BODY ffTNRmed_01 " +
             outfits("faTNR", "med") + "- - "},
        {male, 2, "drk",
         "b614maTNR_01,BODY b614maTNRdrk_hip01 teenMesh,HEAD-HEAD teenSkin 18 nuTNR_01,BODY nmTNRdrk_01 nuTNR_01,BODY "
         "umTNRdrk_briefs01 fmTNR_01,BODY fmTNRdrk_01 " +
             outfits("maTNR", "drk") + outfit("W100maTNR", "drk")},
    };
    for (const auto& [sex, toneNumber, tone, names] : rows) {
        OneSim sim({.age = 9, .skinTone = toneNumber, .kind = sex});
        if (sex == female) {  // a file of the expansion's name is no expansion
            fs::remove_all(sim.expansion);
            writeFile(sim.expansion, "");
        }
        randomGenerator().seed(0);  // its first draw, 38, picks the first of everything
        EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
        EXPECT_EQ(grownSlots(sim.body(), sex, tone), names);
        EXPECT_EQ(sim.sim(0).age(), 18);
        EXPECT_TRUE(sim.sim(0).characterTag() && sim.marked());
        EXPECT_EQ(childToTeen(&sim.sim(0)), -1) << "a teen stays one";
    }
}

TEST(ChildToTeenTest, AProtectedExpansionIsNone) {
    const OneSim sim({.age = 9});
    fs::permissions(sim.expansion, fs::perms(0500));
    EXPECT_EQ(childToTeen(&sim.sim(0)), 1);
    EXPECT_STREQ(sim.body().slot(bodySlot::w100Mesh), "");
}

TEST(StageOperationsTest, AskAboutAHeadThatNoSetHoldsAndRefuseWhatIsNotReady) {
    const auto question = [](const std::string& before, const std::string& grown) {
        return "Proceed?: No " + grown + " head is registered for this " + before + " head.  If you proceed, your " +
               grown + " will have a random head assigned by the game.  Proceed?";
    };
    const auto refusal = [](const std::string& body, const std::string& record) {
        return "Error: This child is not completely converted! Mesh version " + body + "; sim neighborhood version " +
               record +
               "; Marrowfen version 7.  Please play the family some more before using Marrowfen.  No "
               "teenification will be performed.";
    };
    const SampleNeighbor child{.age = 9}, boy{.age = 18, .kind = male}, teen{.later = true, .version = 5, .age = 18};
    const struct {
        SampleNeighbor record;
        BodyEnding ending;
        const char *head, *headAfter;
        std::int32_t (*operation)(Sim*);
        int answer, result;
        std::string said;
    } rows[] = {
        {child, atEntry32, "stray", "c012falgt_asian", childToTeen, IDOK, 1, question("child", "teen")},
        {child, atEntry32, "stray", "stray", childToTeen, IDCANCEL, 0, question("child", "teen")},
        {boy, atEntry32, "stray", "c007malgt_alt", teenToAdult, IDOK, 1, question("teen", "adult")},
        {{.version = 6, .age = 9}, atEntry29, "a", "a", childToTeen, IDOK, -1, refusal("6", "6")},
        {{.version = 8, .age = 9}, atEntry32, "a", "a", childToTeen, IDOK, -1, refusal("7", "8")},
        {{.version = 8, .age = 9}, atEntry29, amanda, "teenSkin", childToTeen, IDOK, 1, ": "},
        {{.later = true, .version = 9, .age = 9}, atEntry34, amanda, "teenSkin", childToTeen, IDOK, 1, ": "},
        {teen, atEntry34, "stray", "stray", teenToAdult, IDCANCEL, 0, question("teen", "adult")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.said);
        OneSim sim(row.record, row.head, row.ending);
        const AnsweredBox box = answerNextBox(row.answer);
        EXPECT_EQ(row.operation(&sim.sim(0)), row.result);
        EXPECT_EQ(box->title + ": " + box->text, row.said);
        EXPECT_STREQ(sim.body().headSkin(), row.headAfter);
        EXPECT_EQ(sim.marked(), row.result == 1);
    }
}

TEST(TeenToAdultTest, BodyTypeFollowsSkillAndDraw) {
    EXPECT_EQ(adultBodyType(3275, 0), bodyType::fit);
    EXPECT_EQ(adultBodyType(3276, 99), bodyType::skinny);
    EXPECT_EQ(adultBodyType(3277, 99), bodyType::fat);
    EXPECT_EQ(adultBodyType(3277, 100), bodyType::fit);
}

TEST(TeenToAdultTest, DrawsTheBodyBeforeTheHeadForAnyVersion) {
    SampleNeighbor record{.version = 6, .age = 18};
    record.personValues[15] = 200;  // body skill
    OneSim sim(record, "teenSkin");
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

TEST(TeenToAdultTest, ANewBodyTakesTheOutfitOfALaterPackWithIt) {
    const OneSim sim({.later = true, .age = 18}, "stray", atEntry34);
    const AnsweredBox proceed = answerNextBox(IDOK);
    EXPECT_EQ(teenToAdult(&sim.sim(0)), 1);
    Bytes text(1042);
    sim.body().serialise(text, 1041, 7, true);
    EXPECT_EQ(text, filledBodyStringText(slotsOf(sim.body()), atEntry34, 1042)) << "with ADDED as its last";
}

// A family of adults, but for the last one's age.
TestNeighborhood household(unsigned members, std::int32_t funds, int lastAge = 27) {
    std::vector<SampleCharacter> people;
    for (unsigned i = 0; i < members; ++i)
        people.push_back({.recordName = "user0000" + std::to_string(i + 1), .guid = sampleGuid + i});
    SampleNeighborhood content = householdOf(people);
    content.families.front().funds = funds;
    content.neighbors.back().age = lastAge;
    return TestNeighborhood(content, people);
}

TEST(MoveOutTest, SharesTheMoneyIfThereIsEnough) {
    const std::tuple<int, int, int> rows[] = {
        {9'999, 9'999, 0}, {10'000, 0, 10'000}, {20'001, 1, 20'000}, {-1, -20'001, 20'000}};  // a debt is much
    for (const auto& [funds, stays, goes] : rows) {
        const TestNeighborhood read = household(1, funds);  // the last adult may go: that rule is the window's
        EXPECT_EQ(read.family().memberCount(), 1);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(moveOut(&read.sim(0)), goes > 0 ? 1 : -1) << funds;
        EXPECT_EQ(read.family().funds(), stays);
        EXPECT_EQ(read->hasNewFamilies() ? read->newFamily(0)->funds() : 0, goes);
        EXPECT_EQ(box->title + ": " + box->text,
                  goes > 0 ? ": "
                           : "Insufficient funds: Your newly independent sim will need some starting funds!  The "
                             "family must save up at least 10,000 before a member can move out.");
    }
}

TEST(MoveOutTest, OneAdultGoesOnceAndAnEleventhWaitsForASave) {
    const TestNeighborhood read = household(4, 50'000, 18);
    EXPECT_EQ(read.family().memberCount(), 4);
    EXPECT_EQ(moveOut(&read.sim(1)), 1);
    EXPECT_TRUE(read.family().memberCount() == 3 && !read.family().hasMember(read.sim(1)));
    EXPECT_EQ(read.family().adultCount(), 2);
    EXPECT_EQ(read->familyCount(), 1) << "a new family isn't listed before it is saved";
    Family& moved = *read->newFamily(0);
    EXPECT_STREQ(moved.name(), "Meadows");
    EXPECT_EQ(moved.member(0), &read.sim(1));
    EXPECT_TRUE(read.family().dirty() && moved.dirty() && moved.membersResolved());

    // As after it went by way of another family that lists the same GUID: its old one doesn't list it any more.
    EXPECT_EQ(moveOut(&read.sim(1)), -1);
    EXPECT_EQ(moveOut(&read.sim(3)), -1) << "a teen";
    for (int i = 2; i <= 11; ++i)
        EXPECT_EQ(read->addNewFamily(std::make_unique<Family>(*read)), i <= 10 ? 1 : -1);
    EXPECT_EQ(moveOut(&read.sim(0)), -1);
    EXPECT_EQ(read.family().funds(), 30'000);
}

}  // namespace
