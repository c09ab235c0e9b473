#include "gamefiles/character_chunks.h"

#include <string>
#include <vector>

#include "gamefiles/text_chunk.h"

namespace {

constexpr std::uint16_t mainTree = 4096;
constexpr std::uint16_t initTree = 4097;
constexpr std::uint16_t loadTree = 4098;
constexpr std::uint16_t initTraits = 4100;

struct StringsRow {
    std::uint16_t id;
    const char* label;
    std::size_t size;  // of the chunk, its header included
    std::vector<std::string> texts;
};

void addStrings(IffBuilder& file) {
    const StringsRow rows[] = {
        {300, "Behavior editor string set", 130, {"a Sim of the Tidewright sample household"}},
        {257, "", 91, {"a person"}},
        {258, "", 80, {}},
        {304, "suit names", 99, {"everyday", "party"}},
        {256,
         "person attributes",
         190,
         {"fond of gardens", "hums while cooking", "late for the bus", "collects sea glass", "afraid of geese"}},
    };
    for (const StringsRow& row : rows) {
        file.add({.type = "STR#",
                  .id = row.id,
                  .label = row.label,
                  .content = textChunkContent(row.texts, row.size - iffChunkHeaderSize)});
    }
}

// The behaviour editor's data on a tree, its parameters or the slots. It begins with two zeros, the type spelled
// backwards and the number of notes, here 0.
ByteWriter emptyNotes(const std::string& type, std::size_t) {
    ByteWriter content;
    content.u32Le(0).u32Le(0).text(std::string(type.rbegin(), type.rend()));
    return content;
}

// A behaviour that does nothing. A header of 12 bytes has the number of instructions. Each instruction takes 12 bytes:
// operation (0 sleeps), the next instruction after a success and after a failure, and 8 bytes of operands.
ByteWriter sleepingBehaviour(const std::string&, std::size_t contentSize) {
    constexpr int behaviourVersion = 0x8002;
    constexpr std::size_t instructionSize = 12;
    constexpr int sleep = 0;
    constexpr std::int64_t returnTrue = 254;
    constexpr std::int64_t returnFalse = 255;
    const auto count = static_cast<std::int64_t>(contentSize / instructionSize - 1);
    ByteWriter content;
    content.u16Le(behaviourVersion).u16Le(count).fillTo(instructionSize);
    for (std::int64_t next = 1; next <= count; ++next) {
        content.u16Le(sleep).u8(next < count ? next : returnTrue).u8(returnFalse).u32Le(0).u32Le(0);
    }
    return content;
}

ByteWriter sharedBehaviours(const std::string&, std::size_t) {
    return ByteWriter().text("PersonGlobals");
}

struct ChunkRow {
    const char* type;
    std::uint16_t id;
    const char* label;
    std::size_t size;  // of the chunk, its header included
    // What the content begins with; zero bytes fill the rest.
    ByteWriter (*begin)(const std::string& type, std::size_t contentSize);
};

constexpr ChunkRow behaviourChunks[] = {
    {"TREE", initTree, "", 176, emptyNotes},
    {"TREE", loadTree, "", 176, emptyNotes},
    {"TREE", mainTree, "", 204, emptyNotes},
    {"TREE", initTraits, "", 882, emptyNotes},
    {"TPRP", initTree, "", 144, emptyNotes},
    {"TPRP", loadTree, "", 144, emptyNotes},
    {"TPRP", mainTree, "", 144, emptyNotes},
    {"TPRP", initTraits, "", 178, emptyNotes},
    {"BHAV", initTree, "init tree", 112, sleepingBehaviour},
    {"BHAV", loadTree, "load tree", 112, sleepingBehaviour},
    {"BHAV", mainTree, "Main", 136, sleepingBehaviour},
    {"BHAV", initTraits, "init traits", 340, sleepingBehaviour},
    {"SLOT", characterSlotsId, "", 146, emptyNotes},
    {"GLOB", 128, "Semi-global file", 332, sharedBehaviours},
};

struct PictureRow {
    std::uint16_t id;
    const char* label;
    int width, height;
};

void addPicture(IffBuilder& file, const PictureRow& row, const PortraitColors& colors) {
    file.add(
        {.type = "BMP_", .id = row.id, .label = row.label, .content = portraitBitmap(row.width, row.height, colors)});
}

}  // namespace

void addBehaviourChunks(IffBuilder& file) {
    addStrings(file);
    for (const ChunkRow& row : behaviourChunks) {
        const std::size_t contentSize = row.size - iffChunkHeaderSize;
        const Bytes content = row.begin(row.type, contentSize).fillTo(contentSize).written();
        file.add({.type = row.type, .id = row.id, .label = row.label, .content = content});
    }
}

void addPictureChunks(IffBuilder& file, const PortraitColors& colors, int relationshipRows) {
    constexpr int relationshipWidth = relationshipRowSize / 3;  // 3 bytes a pixel
    const PictureRow rows[] = {
        {2002, "faces", 54, 79},        {2003, "rel. images", relationshipWidth, relationshipRows},
        {2004, "thumbnail", 25, 25},    {2005, "speech_med", 16, 16},
        {2006, "speech_large", 32, 32},
    };
    for (const PictureRow& row : rows) {
        addPicture(file, row, colors);
    }
}

void addWebPictureChunk(IffBuilder& file, const PortraitColors& colors) {
    addPicture(file, {2007, "web_image", 45, 45}, colors);
}
