#include "gamefiles/character_chunks.h"

#include "gamefiles/body_string_text.h"
#include "gamefiles/text_chunk.h"

namespace {

constexpr std::uint16_t mainTreeId = 4096;

struct ChunkFact {
    std::uint16_t id;
    const char* label;
    std::size_t size;  // with the chunk's header
};

Bytes zeroFilled(ByteWriter& content, const ChunkFact& fact) {
    return content.fillTo(fact.size - iffChunkHeaderSize).written();
}

// The editor's notes on a behaviour, its tree and the names of its parameters, open with the type reversed and say how
// much they note: nothing here.
Bytes emptyNotes(const char* reversedType, const ChunkFact& fact) {
    ByteWriter content;
    content.u32Le(0).u32Le(0).text(reversedType).u32Le(0);
    return zeroFilled(content, fact);
}

// A behaviour: a header of 12 bytes with the number of instructions, then 12 bytes for each: operation, where to go on
// when it succeeds and when it fails, 8 bytes of operands. These sleep (0), each goes on to the next, the last returns.
Bytes sleepingBehaviour(const ChunkFact& fact) {
    constexpr std::size_t instructionSize = 12;
    constexpr int returnTrue = 254;
    constexpr int returnFalse = 255;
    const std::size_t count = (fact.size - iffChunkHeaderSize) / instructionSize - 1;
    ByteWriter content;
    content.u16Le(0x8002).u16Le(static_cast<std::int64_t>(count)).fillTo(instructionSize);
    for (std::size_t i = 1; i <= count; ++i) {
        content.u16Le(0).u8(i < count ? static_cast<std::int64_t>(i) : returnTrue).u8(returnFalse);
        content.fillTo(instructionSize * (i + 1));
    }
    return content.written();
}

void addStrings(IffBuilder& file) {
    const struct {
        ChunkFact fact;
        std::vector<std::string> texts;
    } rows[] = {
        {{300, "Behavior editor string set", 130}, {"a Sim of the Tidewright sample household"}},
        {{257, "", 91}, {"a person"}},
        {{258, "", 80}, {}},
        {{304, "suit names", 99}, {"everyday", "party"}},
        {{256, "person attributes", 190},
         {"fond of gardens", "hums while cooking", "late for the bus", "collects sea glass", "afraid of geese"}},
    };
    for (const auto& [fact, texts] : rows) {
        file.add({.type = "STR#",
                  .id = fact.id,
                  .label = fact.label,
                  .content = textChunkContent(texts, fact.size - iffChunkHeaderSize)});
    }
}

}  // namespace

void addBehaviourChunks(IffBuilder& file) {
    constexpr ChunkFact trees[] = {{4097, "", 176}, {4098, "", 176}, {mainTreeId, "", 204}, {4100, "", 882}};
    constexpr ChunkFact parameters[] = {{4097, "", 144}, {4098, "", 144}, {mainTreeId, "", 144}, {4100, "", 178}};
    constexpr ChunkFact behaviours[] = {
        {4097, "init tree", 112}, {4098, "load tree", 112}, {mainTreeId, "Main", 136}, {4100, "init traits", 340}};
    constexpr ChunkFact slots = {128, "", 146};
    constexpr ChunkFact semiGlobals = {128, "Semi-global file", 332};

    addStrings(file);
    for (const ChunkFact& fact : trees) {
        file.add({.type = "TREE", .id = fact.id, .label = fact.label, .content = emptyNotes("EERT", fact)});
    }
    for (const ChunkFact& fact : parameters) {
        file.add({.type = "TPRP", .id = fact.id, .label = fact.label, .content = emptyNotes("PRPT", fact)});
    }
    for (const ChunkFact& fact : behaviours) {
        file.add({.type = "BHAV", .id = fact.id, .label = fact.label, .content = sleepingBehaviour(fact)});
    }
    file.add({.type = "SLOT", .id = slots.id, .label = slots.label, .content = emptyNotes("TOLS", slots)});
    ByteWriter globals;
    globals.text("PersonGlobals");
    file.add({.type = "GLOB",
              .id = semiGlobals.id,
              .label = semiGlobals.label,
              .content = zeroFilled(globals, semiGlobals)});
}

IffChunk objectChunk(const std::string& label, std::uint32_t guid) {
    // Offsets within the content; all other words of a person's definition are 0.
    constexpr std::size_t objectType = 18;
    constexpr std::size_t guidField = 28;
    constexpr std::size_t bodyStringsField = 38;
    constexpr int definitionVersion = 138;
    constexpr int person = 2;
    ByteWriter content;
    content.u32Le(definitionVersion).fillTo(objectType).u16Le(person);
    content.fillTo(guidField).u32Le(guid);
    content.fillTo(bodyStringsField).u16Le(bodyStringsId).u16Le(characterObjectId);
    return {.type = "OBJD",
            .id = characterObjectId,
            .label = label,
            .content = content.fillTo(objectChunkSize - iffChunkHeaderSize).written()};
}

void addPictureChunks(IffBuilder& file, const PortraitColors& colors, int relationshipRows) {
    const struct {
        std::uint16_t id;
        const char* label;
        int width, height;
    } pictures[] = {
        {2002, "faces", 54, 79},        {2003, "rel. images", 100, relationshipRows},
        {2004, "thumbnail", 25, 25},    {2005, "speech_med", 16, 16},
        {2006, "speech_large", 32, 32},
    };
    for (const auto& picture : pictures) {
        file.add({.type = "BMP_",
                  .id = picture.id,
                  .label = picture.label,
                  .content = portraitBitmap(picture.width, picture.height, colors)});
    }
}

IffChunk webPictureChunk(const PortraitColors& colors) {
    return {.type = "BMP_", .id = 2007, .label = "web_image", .content = portraitBitmap(45, 45, colors)};
}
