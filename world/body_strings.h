// What one Sim looks like: its meshes and skins, its hands, and the words for gender, age and skin tone. Read from a
// character file or made new for a stage, and written as the text of the game's "bodystring" chunk.
#ifndef WORLD_BODY_STRINGS_H
#define WORLD_BODY_STRINGS_H

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/fixed_text.h"
#include "world/stream.h"

// The slots, in the order of the text. The mesh and the skin of one part of the body share an entry of the text.
namespace bodySlot {
enum Index : std::size_t {
    bodyMesh,
    bodySkin,  // holds "TNR" for a teen
    headMesh,
    headSkin,
    anchorBoneA,
    anchorPointA,
    anchorBoneB,
    anchorPointB,
    spare8,
    spare9,
    spare10,
    spare11,
    spare12,
    gender,    // "female" or "male"
    ageText,   // "9", "18" or "27"
    skinTone,  // "lgt", "med" or "drk"
    nBodyMesh,
    nBodySkin,
    uBodyMesh,
    uBodySkin,
    handLOMesh,
    handLOSkin,
    handROMesh,
    handROSkin,
    handLPMesh,
    handLPSkin,
    handRPMesh,
    handRPSkin,
    handLCMesh,
    handLCSkin,
    handRCMesh,
    handRCSkin,
    spare32,
    spare33,
    spare34,
    spare35,
    fBodyMesh,
    fBodySkin,
    fHandLOMesh,
    fHandLOSkin,
    fHandROMesh,
    fHandROSkin,
    f100Mesh,  // from here on only in a text of version 7 or above
    f100Skin,
    s100Mesh,
    s100Skin,
    l100Mesh,
    l100Skin,
    w100Mesh,
    w100Skin,
    count
};
}  // namespace bodySlot

class BodyStrings {
 public:
    static constexpr std::size_t slotCapacity = 149;
    using Slot = FixedText<slotCapacity>;
    static constexpr std::string_view missingOutfit = "ADDED";  // what the game itself writes for one

    // All slots are empty, except that the gender is "female". `parse` starts from this.
    BodyStrings();

    // A complete body for a stage (lifestage/stage_body.cpp). `gender` is 1 for a female, anything else for a male;
    // `age` 0 for a child's body, anything else for a grown one; `skinTone` 1 light, 3 medium, anything else dark;
    // `bodyType` 0 "TNR", 1 "skn", 2 "fit", 3 "fat". A `version` below 7 leaves the slots from `f100Mesh` on empty.
    BodyStrings(std::int16_t gender, std::uint8_t age, std::int16_t skinTone, std::int16_t version,
                std::int16_t bodyType);

    BodyStrings(const BodyStrings&) = default;
    BodyStrings& operator=(const BodyStrings&) = default;
    virtual ~BodyStrings() = default;

    // The layout of the text that was read, 7 if it has the entry of `f100Mesh`; or what the constructor was given.
    std::int16_t version() const { return version_; }

    const char* headMesh() const { return slots_[bodySlot::headMesh].c_str(); }
    const char* headSkin() const { return slots_[bodySlot::headSkin].c_str(); }
    const char* slot(bodySlot::Index index) const { return slots_[index].c_str(); }

    void setBodyMesh(const char* text) { slots_[bodySlot::bodyMesh].assign(text); }
    void setBodySkin(const char* text) { slots_[bodySlot::bodySkin].assign(text); }
    void setHeadMesh(const char* text) { slots_[bodySlot::headMesh].assign(text); }
    void setHeadSkin(const char* text) { slots_[bodySlot::headSkin].assign(text); }
    void setAgeText(const char* text) { slots_[bodySlot::ageText].assign(text); }
    void setNBodyMesh(const char* text) { slots_[bodySlot::nBodyMesh].assign(text); }
    void setNBodySkin(const char* text) { slots_[bodySlot::nBodySkin].assign(text); }
    void setUBodyMesh(const char* text) { slots_[bodySlot::uBodyMesh].assign(text); }
    void setUBodySkin(const char* text) { slots_[bodySlot::uBodySkin].assign(text); }
    void setFBodyMesh(const char* text) { slots_[bodySlot::fBodyMesh].assign(text); }
    void setFBodySkin(const char* text) { slots_[bodySlot::fBodySkin].assign(text); }
    void setF100Mesh(const char* text) { slots_[bodySlot::f100Mesh].assign(text); }
    void setF100Skin(const char* text) { slots_[bodySlot::f100Skin].assign(text); }
    void setS100Mesh(const char* text) { slots_[bodySlot::s100Mesh].assign(text); }
    void setS100Skin(const char* text) { slots_[bodySlot::s100Skin].assign(text); }
    void setL100Mesh(const char* text) { slots_[bodySlot::l100Mesh].assign(text); }
    void setL100Skin(const char* text) { slots_[bodySlot::l100Skin].assign(text); }
    void setW100Mesh(const char* text) { slots_[bodySlot::w100Mesh].assign(text); }
    void setW100Skin(const char* text) { slots_[bodySlot::w100Skin].assign(text); }

    // Reads the text from the cursor, which is just behind the character tag. `simVersion` is the version of the Sim's
    // neighbor record. Sets `version` to 7 for a text with entry 30; else to `simVersion`, or to 6 if that is 7. Bad
    // input results in empty slots.
    void parse(StreamView stream, std::int16_t simVersion);

    // Writes the text in the layout of `simVersion`, then fill bytes up to and including index `limit`. A text that
    // reaches beyond `limit` gets no fill, and one that reaches beyond `buffer` is cut there. Returns the position
    // behind the last byte written. With `allTexts` a text of version 7 or above is that of later editions: "ADDED"
    // stands for a missing outfit, what was read without "=" is written without, and no pattern ends it.
    std::size_t serialise(std::span<std::uint8_t> buffer, std::size_t limit, std::int16_t simVersion,
                          bool allTexts = false) const;

 private:
    int parsePair(StreamView& stream, bodySlot::Index first);
    void parseSingle(StreamView& stream, bodySlot::Index slot);
    void setFixedSlots(std::string_view tone);
    void setGrownSlots(bool female, std::string_view tone, std::int16_t bodyType);
    void setGrownOutfits(bool female, std::string_view tone, std::int16_t bodyType);
    void setChildSlots(bool female, std::string_view tone);

    std::int16_t version_ = 0;
    std::array<Slot, bodySlot::count> slots_;
    std::bitset<bodySlot::count> unmarked_;  // the first slots of pairs that were read without "="
    Slot lastText_{missingOutfit};           // entry 34, which only later editions have
};

// Results of readToken and readPair.
namespace tokenStatus {
constexpr int read = 1;
constexpr int endMark = -1;  // a fill byte was read, or the stream ended
constexpr int tooLong = -2;  // one more byte was read after 150 characters
}  // namespace tokenStatus

// The text of one entry: up to 149 characters, or the first 150 of one that was too long.
using TokenText = FixedText<BodyStrings::slotCapacity + 1>;

// Reads one entry into `text`. Zero bytes in front of it are skipped, and so is every 0x01. `text` keeps what was read,
// whatever the status.
int readToken(TokenText& text, StreamView& stream);

// Reads one entry and splits it at its first "="; without one, all of it goes to `first`. Changes neither text unless
// the status is 1.
int readPair(BodyStrings::Slot& first, BodyStrings::Slot& second, StreamView& stream);

#endif
