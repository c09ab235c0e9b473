#include "sample/character_chunks.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "gamefiles/character_ids.h"
#include "gamefiles/text_chunk.h"

namespace {

// The contents of the "STR#" chunks have four forms.
using TextForm = void (*)(ByteWriter& content, const std::vector<std::string>& texts);

// A text and an empty comment each, without a language.
void writeCommented(ByteWriter& content, const std::vector<std::string>& texts) {
    content.u8(0xFE).u8(0xFF).u16Le(static_cast<std::int64_t>(texts.size()));
    for (const std::string& text : texts) {
        content.text(text).u8(0).u8(0);
    }
}

void writePlain(ByteWriter& content, const std::vector<std::string>& texts) {
    content.u8(0xFF).u8(0xFF).u16Le(static_cast<std::int64_t>(texts.size()));
}

void writeCounted(ByteWriter& content, const std::vector<std::string>& texts) {
    content.u16Be(static_cast<std::int64_t>(texts.size()));
    for (const std::string& text : texts) {
        content.u8(static_cast<std::int64_t>(text.size())).text(text);
    }
}

struct StringsRow {
    std::uint16_t id;
    const char* label;
    std::size_t size;  // of the chunk, its header included
    TextForm write;
    std::vector<std::string> texts;
};

std::vector<IffChunk> stringsChunks() {
    const StringsRow rows[] = {
        {300, "Behavior editor string set", 130, writeCounted, {"a Sim of the Tidewright sample household"}},
        {257, "", 91, writeCounted, {"a person"}},
        {258, "", 80, writePlain, {}},
        {304, "suit names", 99, writeCommented, {"everyday", "party"}},
        {256,
         "person attributes",
         190,
         writeCommented,
         {"fond of gardens", "hums while cooking", "late for the bus", "collects sea glass", "afraid of geese"}},
    };
    std::vector<IffChunk> chunks;
    for (const StringsRow& row : rows) {
        ByteWriter content;
        row.write(content, row.texts);
        content.fillTo(row.size - iffChunkHeaderSize, textFill);
        chunks.push_back({.type = "STR#", .id = row.id, .label = row.label, .content = content.written()});
    }
    return chunks;
}

struct ChunkRow {
    const char* type;
    std::uint16_t id;
    const char* label;
    std::size_t size;  // of the chunk, its header included
};

// The behavior editor's data on a tree or its parameters, here without any. It begins with a zero, the version and the
// type spelled backwards.
ByteWriter emptyNotes(const std::string& type) {
    ByteWriter content;
    content.u32Le(0).u32Le(type == "TREE" ? 1 : 4).text(std::string(type.rbegin(), type.rend()));
    return content;
}

// The operations of a tree's instructions in turn, until there are enough. From 4096 on an operation calls one of the
// file's own trees, from 8192 on a tree that all Sims share.
std::vector<std::uint16_t> operationsOf(std::uint16_t tree) {
    constexpr std::uint16_t expression = 2;
    constexpr std::uint16_t randomNumber = 8;
    if (tree == mainTreeId) return {0x2001};
    if (tree == initTreeId) return {0x2000, initTraitsId};
    if (tree == loadTreeId) return {0x2034, expression};
    return {randomNumber, expression};
}

// A header of 12 bytes has the number of instructions. Each of these takes 12 bytes: the operation, the next
// instruction after a success and after a failure, and 8 bytes of operands. The main tree goes on for ever.
ByteWriter behavior(std::uint16_t tree, std::size_t contentSize) {
    constexpr int behaviorVersion = 0x8002;
    constexpr std::size_t instructionSize = 12;
    constexpr std::size_t returnTrue = 254;
    constexpr int error = 253;
    const std::vector<std::uint16_t> operations = operationsOf(tree);
    const std::size_t count = contentSize / instructionSize - 1;
    const std::size_t behindLast = tree == mainTreeId ? 0 : returnTrue;
    ByteWriter content;
    content.u16Le(behaviorVersion).u16Le(static_cast<std::int64_t>(count)).u8(0).u8(4).fillTo(instructionSize);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t next = i + 1 < count ? i + 1 : behindLast;
        content.u16Le(operations[i % operations.size()]);
        content.u8(static_cast<std::int64_t>(next)).u8(error).u32Le(0).u32Le(0);
    }
    return content;
}

// One slot, where another Sim may stand.
ByteWriter slots() {
    constexpr int version = 6;
    ByteWriter content;
    content.u32Le(0).u32Le(version).text("TOLS").u32Le(1).u16Le(3);
    for (const std::int64_t word : {0, 0, 0, 1, 0, 0, 0x44, -1, 1, 1, 1}) {
        content.u32Le(word);
    }
    return content;
}

ByteWriter sharedBehaviors(const std::string& name, std::size_t contentSize) {
    ByteWriter content;
    content.u8(static_cast<std::int64_t>(name.size())).text(name).fillTo(contentSize, textFill);
    return content;
}

IffChunk behaviorChunk(const ChunkRow& row, BehaviorSet set) {
    const std::size_t size = row.size - iffChunkHeaderSize;
    const std::string type = row.type;
    ByteWriter content = type == "BHAV"   ? behavior(row.id, size)
                         : type == "SLOT" ? slots()
                         : type == "GLOB"
                             ? sharedBehaviors(set == BehaviorSet::pet ? "PetGlobals" : sharedBehaviorsName, size)
                             : emptyNotes(type);
    return {.type = type, .id = row.id, .label = row.label, .content = content.fillTo(size).written()};
}

constexpr ChunkRow olderNotes[] = {
    {"TREE", initTreeId, "", 176},   {"TREE", loadTreeId, "", 176},   {"TREE", mainTreeId, "", 204},
    {"TREE", initTraitsId, "", 882}, {"TPRP", initTreeId, "", 144},   {"TPRP", loadTreeId, "", 144},
    {"TPRP", mainTreeId, "", 144},   {"TPRP", initTraitsId, "", 178},
};
constexpr ChunkRow olderTrees[] = {
    {"BHAV", initTreeId, "init tree", 112},
    {"BHAV", loadTreeId, "load tree", 112},
    {"BHAV", mainTreeId, "Main", 136},
    {"BHAV", initTraitsId, "init traits", 340},
};
constexpr ChunkRow townieTrees[] = {{"OBJf", characterSlotsId, "", 216}, {"BHAV", 4099, "visit", 136}};
constexpr ChunkRow slotsAndGlobals[] = {
    {"SLOT", characterSlotsId, "", 146},
    {"GLOB", 128, "Semi-global file", 332},
};
constexpr ChunkRow newerTreeNotes[] = {
    {"TREE", initTraitsId, "", 958},
    {"TREE", initTreeId, "", 176},
    {"TREE", mainTreeId, "", 204},
    {"TREE", loadTreeId, "", 204},
};
constexpr ChunkRow newerTrees[] = {
    {"BHAV", initTraitsId, "init traits", 328},
    {"BHAV", initTreeId, "init tree", 112},
    {"BHAV", mainTreeId, "Main", 136},
    {"BHAV", loadTreeId, "load tree", 112},
};
constexpr ChunkRow newerParameterNotes[] = {
    {"TPRP", initTraitsId, "", 182},
    {"TPRP", initTreeId, "", 144},
    {"TPRP", mainTreeId, "", 144},
    {"TPRP", loadTreeId, "", 144},
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

std::vector<IffChunk> behaviorChunks(BehaviorSet set) {
    std::vector<IffChunk> chunks;
    const auto add = [&](std::span<const ChunkRow> rows) {
        for (const ChunkRow& row : rows) {
            chunks.push_back(behaviorChunk(row, set));
        }
    };
    const auto addStrings = [&] { std::ranges::move(stringsChunks(), std::back_inserter(chunks)); };
    if (set == BehaviorSet::newer) {
        add(newerTreeNotes);
        add(newerTrees);
        addStrings();
        add(slotsAndGlobals);
        add(newerParameterNotes);
    } else {
        addStrings();
        add(olderNotes);
        add(olderTrees);
        if (set == BehaviorSet::townie) add(townieTrees);
        add(slotsAndGlobals);
    }
    return chunks;
}

std::size_t chunksBeforeDefinition(BehaviorSet set) {
    return set == BehaviorSet::newer ? std::size(newerTreeNotes) : behaviorChunks(set).size();
}

void addPictureChunks(IffBuilder& file, const PortraitColors& colors, int relationshipRows) {
    constexpr int relationshipWidth = relationshipRowSize / 3;  // 3 bytes a pixel
    const PictureRow rows[] = {
        {2002, "faces", 105, 41},       {2003, "rel. images", relationshipWidth, relationshipRows},
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
