// The complete bodies of the templates, slot by slot.
#include <gtest/gtest.h>

#include "tests/support/body_slots.h"

namespace {

// What a grown body's names share, but for everyday body, head and sex. `letters` are "f" or "m" and the body's word.
std::string grown(const std::string& letters, const std::string& nightMesh) {
    return replaced("n" + nightMesh + "_01,BODY n#~_01 n" + nightMesh + "_01,BODY u#~_lguard01" + handSlots +
                        "f#_01,BODY f#~_01" + formalHandSlots,
                    "#", letters);
}

TEST(StageTemplateTest, EverySlotOfEveryBody) {
    const std::string woman = " c012fa_gma2,HEAD-HEAD c012fa~_asian" + anchorSlots + "female 27 ~ ";
    const std::string man = " c007ma_gpa1,HEAD-HEAD c007ma~_alt" + anchorSlots + "male 27 ~ ";
    const auto outfits = [](const char* letters) { return replaced(outfitSlots, "#", letters) + "- -"; };
    const struct {
        std::int16_t gender;
        std::uint8_t age;
        std::int16_t tone;
        const char* word;
        std::int16_t version, type;
        std::string slots;
    } rows[] = {
        {1, 27, 3, "med", 8, 1, "b011faskn_01,BODY b011faskn~_tom" + woman + grown("fskn", "uskn") + outfits("faskn")},
        {1, 18, 2, "drk", 7, 2,
         "b002fafit_01,BODY B002FAFit~_mom01" + woman + grown("ffit", "ffit") + outfits("fafit")},
        {1, 27, 0, "drk", 6, 3, "b002fafat_01,BODY b002fafat~_gma1" + woman + grown("ffat", "ffat") + noOutfitSlots},
        {0, 27, 1, "lgt", 7, 1, "b002maskn_01,BODY b002maskn~_nerd" + man + grown("mskn", "uskn") + outfits("maskn")},
        {2, 27, 3, "med", -1, 2, "b002mafit_01,BODY b002MAfit~_casual" + man + grown("mfit", "mfit") + noOutfitSlots},
        {0, 1, 64, "drk", 7, 3, "b002mafat_01,BODY b002MAfat~_slob" + man + grown("mfat", "mfat") + outfits("mafat")},
    };
    for (const auto& row : rows) {
        const BodyStrings body(row.gender, row.age, row.tone, row.version, row.type);
        EXPECT_EQ(slotsOf(body), replaced(row.slots, "~", row.word));
    }
}

}  // namespace
