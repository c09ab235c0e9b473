#include "gamefiles/body_strings_chunk.h"

#include <algorithm>

#include "gamefiles/character_ids.h"
#include "gamefiles/text_chunk.h"

namespace {

constexpr int closingBlocks = 7;
constexpr int winterOutfit = 33;

// Entries 1 and 2 are the body and the head, 15 to 22 the outfits and six hands, 27 to 33 later outfits.
constexpr bool isPair(int entry) {
    return entry <= 2 || (entry >= 15 && entry <= 22) || entry >= 27;
}

// Moves `slot` behind those of the entry.
std::string entryText(int entry, BodySlots::const_iterator& slot, BodyEnding ending) {
    constexpr std::size_t shortestWinterText = 2;
    std::string mesh = *slot++;
    if (!isPair(entry)) return mesh;
    const std::string skin = *slot++;
    if (ending == BodyEnding::atEntry34) {
        const bool isShort = mesh.size() < shortestWinterText || skin.size() < shortestWinterText;
        if (entry == winterOutfit && isShort) return missingOutfit;
        if (skin.empty() && !mesh.empty()) return mesh;
    }
    return mesh + "=" + skin;
}

}  // namespace

Bytes bodyStringText(const BodySlots& slots, BodyEnding ending, const std::string& lastEntry) {
    ByteWriter text;
    text.u16Le(0);  // closes the word "adult" or "child"
    auto slot = slots.begin();
    for (int entry = 1; entry <= std::min(static_cast<int>(ending), winterOutfit); ++entry) {
        text.u8(usEnglish).text(entryText(entry, slot, ending)).u16Le(0);
    }
    if (ending == BodyEnding::atEntry34) text.u8(usEnglish).text(lastEntry).u16Le(0);
    if (ending == BodyEnding::atEntry32) text.u8(usEnglish);  // begins an entry that never comes
    if (ending == BodyEnding::atEntry33) {
        for (int i = 0; i < closingBlocks; ++i) {
            text.u16Le(0).u8(textFill).u8(0);
        }
        text.u16Le(0);
    }
    return text.written();
}

Bytes filledBodyStringText(const BodySlots& slots, BodyEnding ending, std::size_t size, const std::string& lastEntry) {
    return ByteWriter().bytes(bodyStringText(slots, ending, lastEntry)).fillTo(size, textFill).written();
}

IffChunk bodyStringsChunk(const std::string& tag, const BodySlots& slots, BodyEnding ending, std::size_t textSize,
                          const std::string& label, const std::string& lastEntry) {
    const std::size_t textCount = 1 + static_cast<std::size_t>(ending);  // the tag, and one for each entry
    ByteWriter content = beginTextChunk(textCount);
    content.u8(usEnglish).text(tag).bytes(filledBodyStringText(slots, ending, textSize, lastEntry));
    return {.type = "STR#", .id = bodyStringsId, .label = label, .content = content.written()};
}
