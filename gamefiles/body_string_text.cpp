#include "gamefiles/body_string_text.h"

#include "gamefiles/text_chunk.h"

namespace {

constexpr std::size_t shortestWinterText = 2;
constexpr int firstPackVersion = 7;
constexpr int closingBlocks = 7;

// Entries 1 and 2 are the body and the head, 15 to 22 the outfits and six hands, 27 to 33 later outfits.
constexpr bool isPair(int entry) {
    return entry <= 2 || (entry >= 15 && entry <= 22) || entry >= 27;
}

}  // namespace

BodyEnding sampleBodyEnding(const BodySlots& slots, int version) {
    if (version < firstPackVersion) return BodyEnding::atEntry29;
    const bool hasWinterOutfit = slots[sampleSlot::w100Mesh].size() >= shortestWinterText &&
                                 slots[sampleSlot::w100Skin].size() >= shortestWinterText;
    return hasWinterOutfit ? BodyEnding::atEntry33 : BodyEnding::atEntry32;
}

std::size_t bodyStringCount(BodyEnding ending) {
    return static_cast<std::size_t>(ending) + 1;
}

Bytes sampleBodyText(const BodySlots& slots, BodyEnding ending) {
    ByteWriter text;
    text.u16Le(0);  // closes the word "adult" or "child"
    auto slot = slots.begin();
    for (int entry = 1; entry <= static_cast<int>(ending); ++entry) {
        text.u8(usEnglish).text(*slot++);
        if (isPair(entry)) text.text("=").text(*slot++);
        text.u16Le(0);
    }
    if (ending == BodyEnding::atEntry32) text.u8(usEnglish);  // begins an entry that never comes
    if (ending == BodyEnding::atEntry33) {
        for (int i = 0; i < closingBlocks; ++i) {
            text.u16Le(0).u8(textFill).u8(0);
        }
        text.u16Le(0);
    }
    return text.written();
}

Bytes filledSampleBodyText(const BodySlots& slots, BodyEnding ending, std::size_t size) {
    return ByteWriter().bytes(sampleBodyText(slots, ending)).fillTo(size, textFill).written();
}
