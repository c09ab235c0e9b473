// Reads a Sim's name, GUID, character tag and body strings from its character file. Each load opens the file, reads one
// of them and closes the file. The resource map shows where the chunks are; a file without one is scanned for their
// tags.
#include <cstring>

#include "platform/byte_order.h"
#include "platform/win32.h"
#include "world/character_layout.h"
#include "world/sim.h"
#include "world/tag_scan.h"

namespace {

// Two pages at a time, because the map, the object chunk and the body strings are far apart.
constexpr std::size_t characterWindow = 8192;

// `offset` is where the chunk begins if it was found, else a negative result of findTag. A bad map may lead to offset
// 0, where no chunk can be.
struct ChunkSearch {
    bool found;
    std::int32_t offset;
};

// Reads the 3 bytes at `distance` from the hit that findTag returned. If the file ends in them, the caller's view fails
// and reads nothing more.
std::int32_t offsetNearHit(StreamView& stream, std::int32_t hit, int distance) {
    stream.seek(static_cast<std::int64_t>(hit) - 1 + distance);
    return static_cast<std::int32_t>(readU24Le(stream.readBytes<3>()));
}

ChunkSearch findChunk(StreamView& stream, const characterFile::ChunkTag& tag, std::int32_t mapOffset,
                      std::int32_t fileSize) {
    stream.seek(mapOffset);
    const std::int32_t hit = findTag(stream, mapOffset == 0 ? tag.inFile : tag.inMap, fileSize);
    if (hit < 0) return {false, hit};
    return {true, mapOffset == 0 ? hit - 1 : offsetNearHit(stream, hit, characterFile::mapTagToOffset)};
}

ChunkSearch findBodyStringsByLabel(StreamView stream, std::int32_t fileSize) {
    for (;;) {
        const std::int32_t hit = findTag(stream, characterFile::bodyStringsTag, fileSize);
        if (hit < 0) return {false, hit};
        stream.seek(hit - 1);
        stream.skip(characterFile::label);
        const auto label = stream.readBytes<characterFile::bodyStringsLabel.size()>();
        if (std::memcmp(label.data(), characterFile::bodyStringsLabel.data(), label.size()) == 0) {
            return {true, hit - 1};
        }
    }
}

ChunkSearch findBodyStrings(StreamView& stream, std::int32_t mapOffset, std::int32_t fileSize) {
    stream.seek(mapOffset);
    if (mapOffset == 0) return findBodyStringsByLabel(stream, fileSize);
    const std::int32_t hit = findTag(stream, characterFile::bodyStringsInMap, fileSize);
    if (hit < 0) return {false, hit};
    return {true, offsetNearHit(stream, hit, characterFile::mapPatternToOffset)};
}

}  // namespace

int Sim::readHeaderOffset() {
    StreamFile file;
    return openCharacterFile(file) ? 1 : -1;
}

bool Sim::openCharacterFile(StreamFile& file) {
    if (!file.open(filePath_.c_str(), StreamFile::Access::read, characterWindow)) return false;
    if (!headerRead_) {
        StreamView header(file);
        mapOffset_ = readMapOffset(header);
        headerRead_ = true;
    }
    return true;
}

int Sim::loadName() {
    if (nameLoaded_) return 1;
    StreamFile file;
    if (!openCharacterFile(file)) return -1;
    return readName(StreamView(file));
}

int Sim::readName(StreamView stream) {
    const ChunkSearch chunk = findChunk(stream, characterFile::nameChunk, mapOffset_, fileSize_);
    if (chunk.found && chunk.offset == 0) {
        fileUsable_ = false;
        return 1;
    }
    name_.clear();
    if (chunk.found) {
        stream.seek(static_cast<std::int64_t>(chunk.offset) + characterFile::displayName);
        for (int character = stream.peek(); character > 0 && name_.size() < name_.capacity();
             character = stream.peek()) {
            name_.append(static_cast<char>(character));
            stream.skip(1);
        }
    }
    nameLoaded_ = true;
    return 1;
}

int Sim::loadGuid() {
    if (guidLoaded_) return 1;
    if (!fileUsable_) return -3;
    StreamFile file;
    if (!openCharacterFile(file)) return -1;
    return readGuid(StreamView(file));
}

int Sim::readGuid(StreamView stream) {
    const ChunkSearch chunk = findChunk(stream, characterFile::objectChunk, mapOffset_, fileSize_);
    if (!chunk.found) return chunk.offset;
    if (chunk.offset == 0) {
        fileUsable_ = false;
        return 1;
    }
    stream.seek(static_cast<std::int64_t>(chunk.offset) + characterFile::guid);
    guid_ = Guid(stream.readBytes<4>());
    guidLoaded_ = true;
    return 1;
}

int Sim::loadBodyStrings() {
    if (bodyStringsLoaded_) return 1;
    if (!fileUsable_) return -3;
    StreamFile file;
    if (!openCharacterFile(file)) return -1;
    return readBodyStrings(StreamView(file));
}

int Sim::readBodyStrings(StreamView stream) {
    const ChunkSearch chunk = findBodyStrings(stream, mapOffset_, fileSize_);
    if (!chunk.found || chunk.offset <= 0) return -1;

    stream.seek(static_cast<std::int64_t>(chunk.offset) + characterFile::characterTag);
    const auto bytes = stream.readBytes<characterFile::characterTagSize>();
    const std::string_view tag(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (tag != characterFile::adultTag && tag != characterFile::childTag) return -1;
    characterTag_ = tag == characterFile::adultTag;
    bodyOffset_ = static_cast<std::int32_t>(stream.tell());
    tagOffset_ = bodyOffset_ - characterFile::characterTagSize;

    if (!textEnds(stream)) {
        MessageBoxA(nullptr,
                    "Cannot find the end of the meshes and skins.  This is an unknown user file body string format.",
                    "Error reading body strings", MB_OK);
        fileUsable_ = false;
        return -1;
    }
    stream.seek(bodyOffset_);
    bodyStrings_ = std::make_unique<BodyStrings>();
    bodyStrings_->parse(stream, version());
    bodyStringsLoaded_ = true;
    return 1;
}

// Whether the file is of a known form: one of the two patterns that end a text must come somewhere behind the character
// tag, unless it has all strings, whose count ends it. Reading the text doesn't depend on where the pattern is.
bool Sim::textEnds(StreamView stream) const {
    if (format_->hasAllTexts) {
        stream.seek(tagOffset_ + characterFile::stringCount - characterFile::characterTag);
        if (readU16Le(stream.readBytes<2>()) == characterFile::allStrings) return true;
    }
    for (const auto pattern : {characterFile::fillPattern, characterFile::trailerPattern}) {
        stream.seek(bodyOffset_);
        if (findTag(stream, pattern, fileSize_) > bodyOffset_) return true;
    }
    return false;
}
