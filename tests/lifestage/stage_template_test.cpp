// The complete bodies of the templates, slot by slot.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "world/body_strings.h"

namespace {

// All 50 slots of a body, separated by blanks; an empty one is "-".
std::string slotsOf(const BodyStrings& body) {
    std::string all;
    for (std::size_t i = 0; i < bodySlot::count; ++i) {
        const std::string text = body.slot(static_cast<bodySlot::Index>(i));
        all += (i == 0 ? "" : " ") + (text.empty() ? "-" : text);
    }
    return all;
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
        text.replace(at, what.size(), with);
    return text;
}

// "~" stands for the tone's word.
const std::string anchors = " HEAD Top R_HAND Palm - - - - - ";
const std::string hands =
    " HuLO,HAND huao~ HuRO,HAND huao~ HuLP,HAND huap~ HuRP,HAND huap~ HuLC,HAND huac~ HuRC,HAND huac~ - - - - ";
const std::string formalHands = " HuLO,HAND huao~ HuRO,HAND huao~ ";

TEST(StageTemplateTest, EverySlotOfEveryBody) {
    const std::string woman = " c012fa_gma2,HEAD-HEAD c012fa~_asian" + anchors + "female 27 ~ ";
    const std::string man = " c007ma_gpa1,HEAD-HEAD c007ma~_alt" + anchors + "male 27 ~ ";
    const auto outfits = [](const std::string& body) {
        return replaced(
            "F100#_original,BODY F100#~_original S100#_original,BODY S100#~_original "
            "L100#_original,BODY L100#~_original - -",
            "#", body);
    };
    const std::string noOutfits = "- - - - - - - -";
    const struct {
        std::int16_t gender;
        std::uint8_t age;
        std::int16_t tone;
        const char* word;
        std::int16_t version, type;
        std::string slots;
    } rows[] = {
        {1, 27, 1, "lgt", 7, 0,
         "b609faTNR_01,BODY b609faTNR~_TDWTeenMeshMosaic" + woman +
             "nfTNR_01,BODY nfTNR~_01 nfTNR_01,BODY ufTNR~_lguard01" + hands + "ffTNR_01,BODY ffTNR~_01" + formalHands +
             outfits("faTNR")},
        {1, 27, 3, "med", 8, 1,
         "b011faskn_01,BODY b011faskn~_tom" + woman + "nuskn_01,BODY nfskn~_01 nuskn_01,BODY ufskn~_lguard01" + hands +
             "ffskn_01,BODY ffskn~_01" + formalHands + outfits("faskn")},
        {1, 18, 2, "drk", 7, 2,
         "b002fafit_01,BODY B002FAFit~_mom01" + woman + "nffit_01,BODY nffit~_01 nffit_01,BODY uffit~_lguard01" +
             hands + "fffit_01,BODY fffit~_01" + formalHands + outfits("fafit")},
        {1, 27, 0, "drk", 6, 3,
         "b002fafat_01,BODY b002fafat~_gma1" + woman + "nffat_01,BODY nffat~_01 nffat_01,BODY uffat~_lguard01" + hands +
             "fffat_01,BODY fffat~_01" + formalHands + noOutfits},
        {0, 27, 1, "lgt", 7, 0,
         "b614maTNR_01,BODY b614maTNR~_TDWTeenWeekend" + man + "nmTNR_01,BODY nmTNR~_01 nmTNR_01,BODY umTNR~_lguard01" +
             hands + "fmTNR_01,BODY fmTNR~_01" + formalHands + outfits("maTNR")},
        {0, 27, 1, "lgt", 7, 1,
         "b002maskn_01,BODY b002maskn~_nerd" + man + "nuskn_01,BODY nmskn~_01 nuskn_01,BODY umskn~_lguard01" + hands +
             "fmskn_01,BODY fmskn~_01" + formalHands + outfits("maskn")},
        {2, 27, 3, "med", -1, 2,
         "b002mafit_01,BODY b002MAfit~_casual" + man + "nmfit_01,BODY nmfit~_01 nmfit_01,BODY umfit~_lguard01" + hands +
             "fmfit_01,BODY fmfit~_01" + formalHands + noOutfits},
        {0, 1, 64, "drk", 7, 3,
         "b002mafat_01,BODY b002MAfat~_slob" + man + "nmfat_01,BODY nmfat~_01 nmfat_01,BODY umfat~_lguard01" + hands +
             "fmfat_01,BODY fmfat~_01" + formalHands + outfits("mafat")},
        {1, 0, 3, "med", 7, 2,
         "b001fcchd_01,BODY b001fcchd~_girl01 c001fc_amanda,HEAD-HEAD c001fc~_amanda01" + anchors +
             "female 9 ~ nuchd_01,BODY nuchd~_01 nuchd_01,BODY ufchd~_undies01" + hands + "- -" + formalHands +
             noOutfits},
        {0, 0, 1, "lgt", 8, 1,
         "b002mcchd_01,BODY b001mcchd~_slob c001mc_ave,HEAD-HEAD c001mc~_altblond" + anchors +
             "male 9 ~ nuchd_01,BODY nuchd~_01 nuchd_01,BODY umchd~_undies01" + hands + "- -" + formalHands +
             noOutfits},
    };
    for (const auto& row : rows) {
        const BodyStrings body(row.gender, row.age, row.tone, row.version, row.type);
        EXPECT_EQ(slotsOf(body), replaced(row.slots, "~", row.word));
        EXPECT_EQ(body.version(), row.version);
    }
}

}  // namespace
