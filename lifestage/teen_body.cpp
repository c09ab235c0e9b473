#include "lifestage/teen_body.h"

#include <string_view>

#include "lifestage/skin_sets.h"
#include "lifestage/stage_body.h"
#include "platform/files.h"
#include "platform/fixed_text.h"
#include "world/sim.h"
#include "world/sims_directory.h"

namespace {

using Slot = BodyStrings::Slot;

// The parts of names that differ between girls and boys.
struct TeenNames {
    const char* bodyMesh;
    std::string_view bodyStem;
    std::string_view sex;        // in the names of nightwear, underwear and formal wear
    std::string_view outfitSex;  // in the names of the expansions' outfits
    std::string_view undergarment;
    void (*pickOutfit)(OutfitText&);
};

constexpr TeenNames girlNames = {"b609faTNR_01,BODY", "b609faTNR", "f", "fa", "_undies01", pickTeenGirlOutfit};
constexpr TeenNames boyNames = {"b614maTNR_01,BODY", "b614maTNR", "m", "ma", "_briefs01", pickTeenBoyOutfit};

// Whether the expansion's directory exists and may be written, as the game's installer leaves it.
bool hasFourthExpansion() {
    DirectoryText directory;
    if (findSimsDirectory(directory) != 0) return false;
    const auto path = joined<PathText>(directory, "\\ExpansionPack4");
    FileStatus status{};
    return queryFileStatus(path.c_str(), status) && status.mode == writableDirectoryMode;
}

void setOutfits(BodyStrings& body, const TeenNames& names, std::string_view tone) {
    const auto mesh = [&](std::string_view stem) { return joined<Slot>(stem, names.outfitSex, "TNR_original,BODY"); };
    const auto skin = [&](std::string_view stem) {
        return joined<Slot>(stem, names.outfitSex, "TNR", tone, "_original");
    };
    body.setF100Mesh(mesh("F100").c_str());
    body.setF100Skin(skin("F100").c_str());
    body.setS100Mesh(mesh("S100").c_str());
    body.setS100Skin(skin("S100").c_str());
    body.setL100Mesh(mesh("L100").c_str());
    body.setL100Skin(skin("L100").c_str());
    if (!hasFourthExpansion()) return;
    body.setW100Mesh(mesh("W100").c_str());
    body.setW100Skin(skin("W100").c_str());
}

}  // namespace

BodyStrings teenBody(std::int16_t gender, std::int16_t skinTone, std::int16_t version) {
    const TeenNames& names = gender == genderNumber::female ? girlNames : boyNames;
    const std::string_view tone = toneWord(skinTone);
    BodyStrings body(gender, grownBody, skinTone, version, bodyType::skinny);
    body.setNBodyMesh("nuTNR_01,BODY");
    body.setUBodyMesh("nuTNR_01,BODY");
    body.setBodyMesh(names.bodyMesh);
    body.setNBodySkin(joined<Slot>("n", names.sex, "TNR", tone, "_01").c_str());
    body.setUBodySkin(joined<Slot>("u", names.sex, "TNR", tone, names.undergarment).c_str());
    body.setFBodyMesh(joined<Slot>("f", names.sex, "TNR_01,BODY").c_str());
    body.setFBodySkin(joined<Slot>("f", names.sex, "TNR", tone, "_01").c_str());

    OutfitText outfit;
    names.pickOutfit(outfit);
    body.setBodySkin(joined<Slot>(names.bodyStem, tone, "_", outfit).c_str());
    setOutfits(body, names, tone);
    body.setAgeText("18");
    return body;
}
