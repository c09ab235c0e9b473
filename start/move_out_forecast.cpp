#include "start/move_out_forecast.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "gamefiles/iff_builder.h"
#include "start/neighbor_records.h"
#include "ui/sentence_parts.h"
#include "world/neighborhood_layout.h"

namespace {

// Where the save cuts; the file's end if it doesn't.
std::size_t cutOf(const Bytes& file, const Neighborhood& neighborhood) {
    std::size_t cut = file.size();
    if (neighborhood.xxxxOffset() > 0) {
        cut = static_cast<std::size_t>(neighborhood.xxxxOffset());
    } else if (neighborhood.mapOffset() > 0) {
        cut = static_cast<std::size_t>(neighborhood.mapOffset());
    }
    return std::min(cut, file.size());
}

// Letters that look like a tag, but begin no chunk, end with themselves.
std::size_t endOfChunk(const Bytes& file, std::size_t offset, std::string_view tag) {
    const auto rest = std::span(file).subspan(offset);
    if (rest.size() < iffChunkHeaderSize) return file.size();
    std::size_t size = 0;
    for (const std::uint8_t byte : rest.subspan(iffChunkHeader::size, 4)) {
        size = size << 8 | byte;
    }
    return offset + (size >= iffChunkHeaderSize && size <= rest.size() ? size : tag.size());
}

std::size_t endOfLast(const Bytes& file, std::string_view tag) {
    std::size_t end = 0;
    for (std::size_t at = nextTag(file, tag, 0); at < file.size(); at = nextTag(file, tag, at + 1)) {
        end = std::max(end, endOfChunk(file, at, tag));
    }
    return end;
}

// A family whose name is cut off is gone, too: the editor would take the next one's.
bool isCutOff(const Bytes& file, const Family& family, std::size_t cut) {
    const std::size_t name = nextTag(file, familyName::chunkTag, static_cast<std::size_t>(family.memberTableOffset()));
    return name == file.size() || endOfChunk(file, name, familyName::chunkTag) > cut;
}

std::vector<std::string> familiesBehind(const Bytes& file, const Neighborhood& neighborhood, std::size_t cut) {
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        const Family& family = *neighborhood.family(i);
        if (isCutOff(file, family, cut)) names.emplace_back(family.name());
    }
    return names;
}

}  // namespace

std::string moveOutLoss(const Bytes& file, const Neighborhood& neighborhood) {
    const std::size_t cut = cutOf(file, neighborhood);
    const std::size_t end = std::max(
        {endOfLast(file, "NBRS"), endOfLast(file, familyRecord::chunkTag), endOfLast(file, familyName::chunkTag)});
    if (cut >= end) return "";
    const std::size_t sims = countSims(file, allFormats, cut);
    const std::vector<std::string> families = familiesBehind(file, neighborhood, cut);
    std::string loss = sims == 0 ? "" : counted(sims, "Sim", "Sims");
    if (!families.empty()) {
        loss += (loss.empty() ? "" : " and ") + std::string(families.size() == 1 ? "the family " : "the families ");
        loss += listed(families);
    }
    return "drop " + (loss.empty() ? "the end of the game's own neighbors and families" : loss);
}
