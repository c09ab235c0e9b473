#include "start/neighborhood_version.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/letter_case.h"
#include "prepare/whole_file.h"
#include "world/neighborhood_layout.h"
#include "world/paths.h"

namespace {

std::vector<Guid> membersOf(const Bytes& file, const Family& family) {
    std::vector<Guid> members;
    const auto begin = static_cast<std::size_t>(family.memberTableOffset());
    const auto size = static_cast<std::size_t>(family.tableSize());
    if (begin > file.size() || size > file.size() - begin) return members;
    for (std::size_t at = begin; at < begin + size; at += familyRecord::guidSize) {
        std::array<std::uint8_t, familyRecord::guidSize> guid{};
        std::copy_n(file.begin() + static_cast<std::ptrdiff_t>(at), guid.size(), guid.begin());
        members.emplace_back(guid);
    }
    return members;
}

}  // namespace

NeighborhoodVersion::NeighborhoodVersion(const NeighborhoodPlace& place)
    : place_(place),
      isRead_(neighborhood_->load(place.directory.c_str(), neighborhoodFileName, allFormats) == 0),
      file_(readWholeFile(place.liveFile().c_str()).value_or(Bytes())) {
    for (std::int32_t i = 0; i < neighborhood_->familyCount(); ++i) {
        const Family& family = *neighborhood_->family(i);
        families_.push_back({family.familyNumber(), family.name(), family.funds(), membersOf(file_, family)});
    }
}

Sim* NeighborhoodVersion::simOfRecord(const std::string& recordName) const {
    for (std::int32_t i = 0; i < simCount(); ++i) {
        if (equalInAnyCase(sim(i).recordName(), recordName)) return &sim(i);
    }
    return nullptr;
}

std::string NeighborhoodVersion::nameOf(Sim& sim) const {
    std::string name = sim.name();
    if (name.empty()) return sim.recordName();
    const auto family = std::ranges::find_if(families_, [&](const FamilyEntry& each) {
        return std::ranges::find(each.members, sim.guid()) != each.members.end();
    });
    return family == families_.end() ? name : name + " " + family->name;
}
