// Makes the complete body of a stage out of fixed names and a few facts about the Sim. The odd capitals are those of
// the game's own files.
#include "lifestage/stage_body.h"

#include "platform/fixed_text.h"
#include "world/body_strings.h"
#include "world/body_text_layout.h"
#include "world/sim.h"

namespace {

std::string_view bodyWord(std::int16_t type) {
    switch (type) {
        case bodyType::teen:
            return "TNR";
        case bodyType::skinny:
            return "skn";
        case bodyType::fit:
            return "fit";
        case bodyType::fat:
            return "fat";
        default:
            return "";
    }
}

// Mesh and skin of the everyday body. These names follow no rule.
struct BodyNames {
    std::string_view mesh, skinStem, skinEnd;
};

constexpr std::array<BodyNames, 4> femaleBodies = {{
    {"b609faTNR_01,BODY", "b609faTNR", "_TDWTeenMeshMosaic"},
    {"b011faskn_01,BODY", "b011faskn", "_tom"},
    {"b002fafit_01,BODY", "B002FAFit", "_mom01"},
    {"b002fafat_01,BODY", "b002fafat", "_gma1"},
}};

constexpr std::array<BodyNames, 4> maleBodies = {{
    {"b614maTNR_01,BODY", "b614maTNR", "_TDWTeenWeekend"},
    {"b002maskn_01,BODY", "b002maskn", "_nerd"},
    {"b002mafit_01,BODY", "b002MAfit", "_casual"},
    {"b002mafat_01,BODY", "b002MAfat", "_slob"},
}};

}  // namespace

std::string_view toneWord(std::int16_t skinTone) {
    return skinTone == 1 ? "lgt" : skinTone == 3 ? "med" : "drk";
}

BodyStrings::BodyStrings(std::int16_t gender, std::uint8_t age, std::int16_t skinTone, std::int16_t version,
                         std::int16_t bodyType)
    : version_(version) {
    const bool female = gender == genderNumber::female;
    const std::string_view tone = toneWord(skinTone);
    slots_[bodySlot::gender].assign(female ? "female" : "male");
    setFixedSlots(tone);
    if (age == 0) {
        setChildSlots(female, tone);
        return;
    }
    setGrownSlots(female, tone, bodyType);
    if (version >= bodyText::extendedVersion) setGrownOutfits(female, tone, bodyType);
}

// The slots that don't depend on the age.
void BodyStrings::setFixedSlots(std::string_view tone) {
    using namespace bodySlot;
    slots_[anchorBoneA].assign("HEAD");
    slots_[anchorPointA].assign("Top");
    slots_[anchorBoneB].assign("R_HAND");
    slots_[anchorPointB].assign("Palm");
    slots_[skinTone].assign(tone);
    const struct {
        Index mesh;
        std::string_view meshName, skinStem;
    } hands[] = {
        {handLOMesh, "HuLO,HAND", "huao"},  {handROMesh, "HuRO,HAND", "huao"},  {handLPMesh, "HuLP,HAND", "huap"},
        {handRPMesh, "HuRP,HAND", "huap"},  {handLCMesh, "HuLC,HAND", "huac"},  {handRCMesh, "HuRC,HAND", "huac"},
        {fHandLOMesh, "HuLO,HAND", "huao"}, {fHandROMesh, "HuRO,HAND", "huao"},
    };
    for (const auto& hand : hands) {
        slots_[hand.mesh].assign(hand.meshName);
        slots_[bodyText::secondOf(hand.mesh)] = joined<Slot>(hand.skinStem, tone);
    }
}

void BodyStrings::setGrownSlots(bool female, std::string_view tone, std::int16_t type) {
    using namespace bodySlot;
    const std::string_view sex = female ? "f" : "m";
    const std::string_view body = bodyWord(type);
    const auto& bodies = female ? femaleBodies : maleBodies;
    if (type >= bodyType::teen && type <= bodyType::fat) {
        const BodyNames& names = bodies[static_cast<std::size_t>(type)];
        slots_[bodyMesh].assign(names.mesh);
        slots_[bodySkin] = joined<Slot>(names.skinStem, tone, names.skinEnd);
    }
    slots_[bodySlot::headMesh].assign(female ? "c012fa_gma2,HEAD-HEAD" : "c007ma_gpa1,HEAD-HEAD");
    slots_[bodySlot::headSkin] = joined<Slot>(female ? "c012fa" : "c007ma", tone, female ? "_asian" : "_alt");
    slots_[ageText].assign("27");
    // Skinny men and women share one mesh.
    slots_[nBodyMesh] = joined<Slot>("n", type == bodyType::skinny ? "u" : sex, body, "_01,BODY");
    slots_[nBodySkin] = joined<Slot>("n", sex, body, tone, "_01");
    slots_[uBodyMesh] = slots_[nBodyMesh];
    slots_[uBodySkin] = joined<Slot>("u", sex, body, tone, "_lguard01");
    slots_[fBodyMesh] = joined<Slot>("f", sex, body, "_01,BODY");
    slots_[fBodySkin] = joined<Slot>("f", sex, body, tone, "_01");
}

void BodyStrings::setGrownOutfits(bool female, std::string_view tone, std::int16_t type) {
    using namespace bodySlot;
    const std::string_view sex = female ? "fa" : "ma";
    const std::string_view body = bodyWord(type);
    const struct {
        Index mesh;
        std::string_view stem;
    } outfits[] = {{f100Mesh, "F100"}, {s100Mesh, "S100"}, {l100Mesh, "L100"}};
    for (const auto& outfit : outfits) {
        slots_[outfit.mesh] = joined<Slot>(outfit.stem, sex, body, "_original,BODY");
        slots_[bodyText::secondOf(outfit.mesh)] = joined<Slot>(outfit.stem, sex, body, tone, "_original");
    }
}

void BodyStrings::setChildSlots(bool female, std::string_view tone) {
    using namespace bodySlot;
    // The boy's mesh really is number 2 and his skin number 1.
    slots_[bodyMesh].assign(female ? "b001fcchd_01,BODY" : "b002mcchd_01,BODY");
    slots_[bodySkin] = joined<Slot>(female ? "b001fcchd" : "b001mcchd", tone, female ? "_girl01" : "_slob");
    slots_[bodySlot::headMesh].assign(female ? "c001fc_amanda,HEAD-HEAD" : "c001mc_ave,HEAD-HEAD");
    slots_[bodySlot::headSkin] = joined<Slot>(female ? "c001fc" : "c001mc", tone, female ? "_amanda01" : "_altblond");
    slots_[ageText].assign("9");
    slots_[nBodyMesh].assign("nuchd_01,BODY");
    slots_[nBodySkin] = joined<Slot>("nuchd", tone, "_01");
    slots_[uBodyMesh] = slots_[nBodyMesh];
    slots_[uBodySkin] = joined<Slot>(female ? "ufchd" : "umchd", tone, "_undies01");
}
