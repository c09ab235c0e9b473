#include "lifestage/skin_sets.h"

#include <array>
#include <string_view>

#include "lifestage/random_generator.h"
#include "lifestage/text_lines.h"
#include "platform/files.h"
#include "platform/letter_case.h"
#include "world/paths.h"
#include "world/program_files.h"
#include "world/sim.h"

namespace {

constexpr std::string_view childKey = "CHILD";
constexpr std::string_view teenKey = "TEENAGER";
constexpr std::string_view adultKey = "ADULT";

constexpr std::size_t highestCandidateCount = 5;

using Field = FixedText<99>;

struct Entry {
    Field key, skin, mesh;
};

Entry splitEntry(std::string_view line) {
    Entry entry;
    const std::size_t keyEnd = line.find('=');
    entry.key.assign(line.substr(0, keyEnd));
    if (keyEnd == std::string_view::npos) return entry;
    line.remove_prefix(keyEnd + 1);
    const std::size_t skinEnd = line.find(';');
    entry.skin.assign(line.substr(0, skinEnd));
    if (skinEnd != std::string_view::npos) entry.mesh.assign(line.substr(skinEnd + 1));
    return entry;
}

// What matters of the skin set that is being read.
class SkinSet {
 public:
    SkinSet(std::int32_t stage, std::string_view headSkin)
        : sourceKey_(stage == stageNumber::teen ? childKey : teenKey),
          targetKey_(stage == stageNumber::teen ? teenKey : adultKey),
          headSkin_(headSkin) {}

    bool matched() const { return matched_; }
    std::size_t candidateCount() const { return count_; }
    const Entry& candidate(std::size_t index) const { return candidates_.at(index); }

    void forgetCandidates() { count_ = 0; }

    void take(const Entry& entry) {
        if (entry.key == sourceKey_ && equalInAnyCase(entry.skin, headSkin_)) matched_ = true;
        if (entry.key == targetKey_ && count_ < highestCandidateCount) candidates_[count_++] = entry;
    }

 private:
    std::string_view sourceKey_;
    std::string_view targetKey_;
    std::string_view headSkin_;
    bool matched_ = false;
    std::size_t count_ = 0;
    std::array<Entry, highestCandidateCount> candidates_;
};

// Reads to the end of the skin set with the head, or to the end of the file if there is none.
void readSkinSet(std::FILE* file, SkinSet& set) {
    TextLines lines(file);
    for (std::string_view line; lines.next(line);) {
        if (line.empty() || line.front() == '#') continue;
        if (line.front() != '[') {
            set.take(splitEntry(line));
        } else {
            if (set.matched()) return;
            set.forgetCandidates();
        }
    }
}

template <std::size_t N>
void pickOutfit(const std::array<std::string_view, N>& outfits, OutfitText& outfit) {
    outfit.assign(outfits[pickIndex(randomGenerator().draw(), N)]);
}

}  // namespace

int findNextStageHead(std::int32_t stage, const char* headSkin, const char* toolDirectory, HeadText& newSkin,
                      HeadText& newMesh) {
    const auto path = joined<PathText>(toolDirectory, '\\', skinSetsName);
    std::FILE* file = openFile(path.c_str(), "rb");
    if (file == nullptr) return -1;
    SkinSet set(stage, headSkin);
    readSkinSet(file, set);
    std::fclose(file);
    if (!set.matched() || set.candidateCount() == 0) return -1;

    const Entry& head = set.candidate(pickIndex(randomGenerator().draw(), set.candidateCount()));
    newSkin.assign(head.skin);
    newMesh.assign(head.mesh);
    return 0;
}

void pickTeenGirlOutfit(OutfitText& outfit) {
    constexpr std::array<std::string_view, 7> outfits = {
        "gma1",        "TDWTeenMeshMosaic",    "TDWTeenNYtribute1", "TDWTeenNYtribute2", "TDWTeenNYtribute3",
        "TDWTeenStar", "TDWTeenSunsetSweater",
    };
    pickOutfit(outfits, outfit);
}

void pickTeenBoyOutfit(OutfitText& outfit) {
    constexpr std::array<std::string_view, 3> outfits = {"hip01", "TDWTeenSk8boy", "TDWTeenWeekend"};
    pickOutfit(outfits, outfit);
}
