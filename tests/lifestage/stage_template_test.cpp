// The bodies of the templates, slot by slot.
#include "lifestage/stage_template.h"

#include <gtest/gtest.h>

#include "tests/lifestage/body_slots.h"

namespace {

// Gender and age in words, and slots 16 to 19, 36 and 37.
struct Names {
    const char *everyday, *facts, *tone, *night, *formal, *outfits;
};

TEST(StageTemplateTest, EverySlotOfEveryBody) {
    constexpr std::int16_t male = 0, female = 1, pet = 2;
    const struct {
        BodyStrings body;
        Names names;
    } rows[] = {
        {{female, 27, 3, 8, bodyType::skinny},
         {"b011faskn_01,BODY b011fasknmed_tom c012fa_gma2,HEAD-HEAD c012famed_asian", "female 27", "med",
          "nuskn_01,BODY nfsknmed_01 nuskn_01,BODY ufsknmed_lguard01", "ffskn_01,BODY ffsknmed_01", "faskn"}},
        {{female, 18, 2, 7, bodyType::fit},
         {"b002fafit_01,BODY B002FAFitdrk_mom01 c012fa_gma2,HEAD-HEAD c012fadrk_asian", "female 27", "drk",
          "nffit_01,BODY nffitdrk_01 nffit_01,BODY uffitdrk_lguard01", "fffit_01,BODY fffitdrk_01", "fafit"}},
        {{female, 27, 0, 6, bodyType::fat},
         {"b002fafat_01,BODY b002fafatdrk_gma1 c012fa_gma2,HEAD-HEAD c012fadrk_asian", "female 27", "drk",
          "nffat_01,BODY nffatdrk_01 nffat_01,BODY uffatdrk_lguard01", "fffat_01,BODY fffatdrk_01", nullptr}},
        {{male, 27, 1, 7, bodyType::skinny},
         {"b002maskn_01,BODY b002masknlgt_nerd c007ma_gpa1,HEAD-HEAD c007malgt_alt", "male 27", "lgt",
          "nuskn_01,BODY nmsknlgt_01 nuskn_01,BODY umsknlgt_lguard01", "fmskn_01,BODY fmsknlgt_01", "maskn"}},
        {{pet, 27, 3, -1, bodyType::fit},
         {"b002mafit_01,BODY b002MAfitmed_casual c007ma_gpa1,HEAD-HEAD c007mamed_alt", "male 27", "med",
          "nmfit_01,BODY nmfitmed_01 nmfit_01,BODY umfitmed_lguard01", "fmfit_01,BODY fmfitmed_01", nullptr}},
        {{male, 1, 64, 7, bodyType::fat},
         {"b002mafat_01,BODY b002MAfatdrk_slob c007ma_gpa1,HEAD-HEAD c007madrk_alt", "male 27", "drk",
          "nmfat_01,BODY nmfatdrk_01 nmfat_01,BODY umfatdrk_lguard01", "fmfat_01,BODY fmfatdrk_01", "mafat"}},
        {{female, 0, 1, 7, bodyType::fat},
         {"b001fcchd_01,BODY b001fcchdlgt_girl01 c001fc_amanda,HEAD-HEAD c001fclgt_amanda01", "female 9", "lgt",
          "nuchd_01,BODY nuchdlgt_01 nuchd_01,BODY ufchdlgt_undies01", "- -", nullptr}},
        {{male, 0, 3, 7, bodyType::fat},
         {"b002mcchd_01,BODY b001mcchdmed_slob c001mc_ave,HEAD-HEAD c001mcmed_altblond", "male 9", "med",
          "nuchd_01,BODY nuchdmed_01 nuchd_01,BODY umchdmed_undies01", "- -", nullptr}},
    };
    for (const auto& [body, names] : rows) {
        std::string outfits;
        for (const std::string stem : {"F100", "S100", "L100"})
            outfits += names.outfits != nullptr ? outfit(stem + names.outfits, names.tone) : " - -";
        EXPECT_EQ(slotsOf(body),
                  wholeBody(names.everyday, names.facts, names.tone, names.night, names.formal, outfits + " - -"));
    }
}

}  // namespace
