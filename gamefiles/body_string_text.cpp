#include "gamefiles/body_string_text.h"

#include "gamefiles/text_chunk.h"

namespace {

constexpr int entryCount = 33;

// Entries 1 and 2 are the body and the head; 15 to 22 the outfits and six hands; 27 to 33 later outfits.
constexpr bool isPair(int entry) {
    return entry <= 2 || (entry >= 15 && entry <= 22) || entry >= 27;
}

constexpr std::size_t slotsThrough(int lastEntry) {
    std::size_t count = 0;
    for (int entry = 1; entry <= lastEntry; ++entry) {
        count += isPair(entry) ? 2 : 1;
    }
    return count;
}
static_assert(slotsThrough(entryCount) == std::tuple_size_v<BodySlots>);

int lastEntry(BodyEnding ending) {
    return bodyStringCount(ending) - 1;
}

}  // namespace

BodyEnding sampleBodyEnding(const BodySlots& slots, int version) {
    if (version < 7) return BodyEnding::atEntry29;
    const bool dressedForWinter = slots[sampleSlot::w100Mesh].size() >= 2 && slots[sampleSlot::w100Skin].size() >= 2;
    return dressedForWinter ? BodyEnding::atEntry33 : BodyEnding::atEntry32;
}

int bodyStringCount(BodyEnding ending) {
    switch (ending) {
        case BodyEnding::atEntry29:
            return 30;
        case BodyEnding::atEntry32:
            return 33;
        case BodyEnding::atEntry33:
            break;
    }
    return 34;
}

Bytes sampleBodyText(const BodySlots& slots, BodyEnding ending) {
    ByteWriter text;
    text.u16Le(0);  // closes the word "adult" or "child"
    for (int entry = 1; entry <= lastEntry(ending); ++entry) {
        const std::size_t slot = slotsThrough(entry - 1);
        text.u8(1).text(slots[slot]);
        if (isPair(entry)) text.text("=").text(slots[slot + 1]);
        text.u16Le(0);
    }
    // An expansion pack's text breaks off in an opened entry, or closes with a block of its own.
    if (ending == BodyEnding::atEntry32) text.u8(1);
    if (ending == BodyEnding::atEntry33) {
        for (int i = 0; i < 7; ++i) {
            text.u16Le(0).u8(textFill).u8(0);
        }
        text.u16Le(0);
    }
    return text.written();
}

Bytes filledSampleBodyText(const BodySlots& slots, BodyEnding ending, std::size_t size) {
    return ByteWriter().bytes(sampleBodyText(slots, ending)).fillTo(size, textFill).written();
}
