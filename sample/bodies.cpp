#include "sample/bodies.h"

#include <utility>

namespace {

void setPair(BodySlots& slots, std::size_t meshSlot, const std::string& mesh, const std::string& skin) {
    slots[meshSlot] = mesh;
    slots[meshSlot + 1] = skin;
}

// Sets what all ages have: anchors, gender, age and tone, and the six hands. `hands` is the letter in the names of the
// game's hands: m, f, or u for children.
BodySlots commonSlots(BodySex sex, const std::string& tone, const std::string& age, char hands) {
    BodySlots slots;
    std::size_t slot = sampleSlot::firstAnchor;
    for (const char* anchor : {"HEAD", "Top", "R_HAND", "Palm"}) {
        slots[slot++] = anchor;
    }
    slots[sampleSlot::gender] = sex == BodySex::female ? "female" : "male";
    slots[sampleSlot::ageText] = age;
    slots[sampleSlot::skinTone] = tone;
    slot = sampleSlot::handLOMesh;
    constexpr std::pair<char, const char*> poses[] = {{'O', "huao"}, {'P', "huap"}, {'C', "huac"}};
    for (const auto& [pose, skin] : poses) {  // open, pointing, closed
        for (const char side : {'L', 'R'}) {
            setPair(slots, slot, std::string({'H', hands, side, pose}) + ",HAND", skin + tone);
            slot += 2;
        }
    }
    return slots;
}

// Sets formal, summer, lounge and winter wear, the pairs of entries 30 to 33. `build` is sex, age and build ("mafit").
void setSeasonalOutfits(BodySlots& slots, const std::string& build, const std::string& tone) {
    std::size_t slot = sampleSlot::f100Mesh;
    for (const char occasion : {'f', 's', 'l', 'w'}) {
        const std::string name = std::string(1, occasion) + "100" + build;
        setPair(slots, slot, name + "_original,BODY", name + tone + "_original");
        slot += 2;
    }
}

BodySlots grownSlots(BodySex sex, const std::string& tone, const std::string& age, const std::string& build) {
    const std::string letter = sex == BodySex::female ? "f" : "m";
    BodySlots slots = commonSlots(sex, tone, age, letter.front());
    setPair(slots, sampleSlot::nBodyMesh, "n" + letter + build + "_01,BODY", "n" + letter + build + tone + "_01");
    setPair(slots, sampleSlot::uBodyMesh, "n" + letter + build + "_01,BODY", "u" + letter + build + tone + "_lguard01");
    setPair(slots, sampleSlot::fBodyMesh, "f" + letter + build + "_01,BODY", "f" + letter + build + tone + "_01");
    setPair(slots, sampleSlot::fHandLOMesh, "HmLO,HAND", "gmao_yeti");
    setPair(slots, sampleSlot::fHandROMesh, "HmRO,HAND", "gmao_yeti");
    setSeasonalOutfits(slots, letter + "a" + build, tone);
    return slots;
}

}  // namespace

BodySlots adultSlots(BodySex sex, const std::string& tone) {
    BodySlots slots = grownSlots(sex, tone, "27", "fit");
    if (sex == BodySex::female) {
        setPair(slots, sampleSlot::bodyMesh, "b002fafit_01,BODY", "b002fafit" + tone + "_mom01");
        setHead(slots, "c012fa_gma2,HEAD-HEAD", "c012fa" + tone + "_asian");
    } else {
        setPair(slots, sampleSlot::bodyMesh, "b003mafit_01,BODY", "b003mafit" + tone + "_bmoc");
        setHead(slots, "c008ma_asian,HEAD-HEAD", "c008ma" + tone + "_asian");
    }
    return slots;
}

BodySlots teenSlots(BodySex sex, const std::string& tone) {
    BodySlots slots = grownSlots(sex, tone, "18", "TNR");
    if (sex == BodySex::female) {
        setPair(slots, sampleSlot::bodyMesh, "b609faTNR_01,BODY", "b609faTNR" + tone + "_TDWTeenStar");
        setHead(slots, "c005fa_clove,HEAD-HEAD", "c005fa" + tone + "_clove01");
    } else {
        setPair(slots, sampleSlot::bodyMesh, "b614maTNR_01,BODY", "b614maTNR" + tone + "_hip01");
        setHead(slots, "c013ma_pompa,HEAD-HEAD", "c013ma" + tone + "_pompa");
    }
    return slots;
}

BodySlots childSlots(BodySex sex, const std::string& tone) {
    BodySlots slots = commonSlots(sex, tone, "9", 'u');
    setPair(slots, sampleSlot::nBodyMesh, "nuchd_01,BODY", "nuchd" + tone + "_01");
    if (sex == BodySex::female) {
        setPair(slots, sampleSlot::bodyMesh, "b001fcchd_01,BODY", "b001fcchd" + tone + "_girl01");
        setPair(slots, sampleSlot::uBodyMesh, "nuchd_01,BODY", "ufchd" + tone + "_undies01");
        setHead(slots, "c001fc_amanda,HEAD-HEAD", "c001fc" + tone + "_amanda01");
    } else {
        setPair(slots, sampleSlot::bodyMesh, "b002mcchd_01,BODY", "b001mcchd" + tone + "_slob");
        setPair(slots, sampleSlot::uBodyMesh, "nuchd_01,BODY", "umchd" + tone + "_undies01");
        setHead(slots, "c001mc_ave,HEAD-HEAD", "c001mc" + tone + "_altblond");
    }
    setPair(slots, sampleSlot::fHandLOMesh, "HuLO,HAND", "huao" + tone);
    setPair(slots, sampleSlot::fHandROMesh, "HuRO,HAND", "huao" + tone);
    return slots;
}

BodySlots petSlots() {
    BodySlots slots = commonSlots(BodySex::male, "lgt", "27", 'u');
    setPair(slots, sampleSlot::bodyMesh, "b001an_small,BODY", "b001anlgt_brindle");
    setHead(slots, "c001an_small,HEAD-HEAD", "c001anlgt_brindle");
    return slots;
}

void setHead(BodySlots& slots, const std::string& mesh, const std::string& skin) {
    setPair(slots, sampleSlot::headMesh, mesh, skin);
}
