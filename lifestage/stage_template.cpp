// The complete new bodies of a stage, out of fixed names and a few facts about the Sim. The game looks the names up as
// they are, so their odd capitals stay.
#include "lifestage/stage_template.h"

#include <initializer_list>

#include "world/body_string_text.h"
#include "world/body_strings.h"
#include "world/sim.h"

namespace {

using Parts = std::initializer_list<std::string_view>;

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

void set(BodyStrings::Slot& slot, Parts parts) {
    slot.clear();
    for (const std::string_view part : parts) {
        slot.append(part);
    }
}

// Mesh and skin of the everyday body, which follow no rule.
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

// The slots that are the same for every age.
void BodyStrings::setFixedSlots(std::string_view tone) {
    using namespace bodySlot;
    set(slots_[anchorBoneA], {"HEAD"});
    set(slots_[anchorPointA], {"Top"});
    set(slots_[anchorBoneB], {"R_HAND"});
    set(slots_[anchorPointB], {"Palm"});
    set(slots_[skinTone], {tone});
    const struct {
        Index mesh;
        std::string_view meshName, skinStem;
    } hands[] = {
        {handLOMesh, "HuLO,HAND", "huao"},  {handROMesh, "HuRO,HAND", "huao"},  {handLPMesh, "HuLP,HAND", "huap"},
        {handRPMesh, "HuRP,HAND", "huap"},  {handLCMesh, "HuLC,HAND", "huac"},  {handRCMesh, "HuRC,HAND", "huac"},
        {fHandLOMesh, "HuLO,HAND", "huao"}, {fHandROMesh, "HuRO,HAND", "huao"},
    };
    for (const auto& hand : hands) {
        set(slots_[hand.mesh], {hand.meshName});
        set(slots_[bodyText::secondOf(hand.mesh)], {hand.skinStem, tone});
    }
}

void BodyStrings::setGrownSlots(bool female, std::string_view tone, std::int16_t type) {
    using namespace bodySlot;
    const std::string_view sex = female ? "f" : "m";
    const std::string_view body = bodyWord(type);
    const auto& bodies = female ? femaleBodies : maleBodies;
    if (type >= bodyType::teen && type <= bodyType::fat) {
        const BodyNames& names = bodies[static_cast<std::size_t>(type)];
        set(slots_[bodyMesh], {names.mesh});
        set(slots_[bodySkin], {names.skinStem, tone, names.skinEnd});
    }
    set(slots_[bodySlot::headMesh], {female ? "c012fa_gma2,HEAD-HEAD" : "c007ma_gpa1,HEAD-HEAD"});
    set(slots_[bodySlot::headSkin], {female ? "c012fa" : "c007ma", tone, female ? "_asian" : "_alt"});
    set(slots_[ageText], {"27"});
    // Men and women of the skinny type share one mesh.
    set(slots_[nBodyMesh], {"n", type == bodyType::skinny ? "u" : sex, body, "_01,BODY"});
    set(slots_[nBodySkin], {"n", sex, body, tone, "_01"});
    slots_[uBodyMesh] = slots_[nBodyMesh];
    set(slots_[uBodySkin], {"u", sex, body, tone, "_lguard01"});
    set(slots_[fBodyMesh], {"f", sex, body, "_01,BODY"});
    set(slots_[fBodySkin], {"f", sex, body, tone, "_01"});
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
        set(slots_[outfit.mesh], {outfit.stem, sex, body, "_original,BODY"});
        set(slots_[bodyText::secondOf(outfit.mesh)], {outfit.stem, sex, body, tone, "_original"});
    }
}

void BodyStrings::setChildSlots(bool female, std::string_view tone) {
    using namespace bodySlot;
    // The boy's mesh and skin differ in their number.
    set(slots_[bodyMesh], {female ? "b001fcchd_01,BODY" : "b002mcchd_01,BODY"});
    set(slots_[bodySkin], {female ? "b001fcchd" : "b001mcchd", tone, female ? "_girl01" : "_slob"});
    set(slots_[bodySlot::headMesh], {female ? "c001fc_amanda,HEAD-HEAD" : "c001mc_ave,HEAD-HEAD"});
    set(slots_[bodySlot::headSkin], {female ? "c001fc" : "c001mc", tone, female ? "_amanda01" : "_altblond"});
    set(slots_[ageText], {"9"});
    set(slots_[nBodyMesh], {"nuchd_01,BODY"});
    set(slots_[nBodySkin], {"nuchd", tone, "_01"});
    slots_[uBodyMesh] = slots_[nBodyMesh];
    set(slots_[uBodySkin], {female ? "ufchd" : "umchd", tone, "_undies01"});
}
