#include "world/family.h"

#include <algorithm>
#include <string_view>

#include "platform/files.h"
#include "world/neighborhood.h"
#include "world/sim.h"

std::int32_t Family::memberCount() {
    if (!membersResolved_) resolveMembers();
    return memberCount_;
}

Sim* Family::member(std::int32_t index) const {
    if (index < 0 || index >= memberCount_) return nullptr;
    return members_[static_cast<std::size_t>(index)];
}

int Family::resolveMembers() {
    if (membersResolved_) return 1;
    // Set first: reading a stage may open a box, and meanwhile the user can pick this family again.
    membersResolved_ = true;
    linkMembers();
    for (std::int32_t i = 0; i < memberCount_; ++i) {
        if (member(i) != nullptr && member(i)->stage() >= stageNumber::adult) ++adultCount_;
    }
    return 1;
}

// The directory is listed once for all files that are asked for a GUID. Stages come later: a broken file opens a box,
// during which the user can save, and a save needs to see what is in the directory then.
void Family::linkMembers() {
    const SteadyDirectories steady;
    for (std::int32_t i = 0; i < memberCount_; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        members_[slot] = neighborhood_->simWithGuid(memberGuids_[slot]);
        if (members_[slot] != nullptr) members_[slot]->setFamily(this);
    }
}

// An unreadable member keeps its GUID from the file.
Guid Family::memberGuid(std::size_t index) const {
    return members_[index] != nullptr ? members_[index]->guid() : memberGuids_[index];
}

const RecordFormat& Family::format() const {
    return members_[0] != nullptr ? members_[0]->format() : baseFormats[0];
}

bool Family::hasMember(const Sim& sim) const {
    return std::any_of(members_.begin(), members_.end(), [&](const Sim* member) {
        return member != nullptr && std::string_view(member->recordName()) == sim.recordName();
    });
}

int Family::addMember(Sim& sim) {
    if (memberCount_ < 0 || memberCount_ >= familyRecord::highestMemberCount) return -1;
    members_[static_cast<std::size_t>(memberCount_)] = &sim;
    ++memberCount_;
    if (sim.stage() >= stageNumber::adult) ++adultCount_;
    dirty_ = true;
    membersResolved_ = true;
    return 1;
}

int Family::removeMember(Sim& sim) {
    if (memberCount_ < 1) return -1;
    // The GUIDs move with the links, so that each unreadable member keeps its own.
    decltype(members_) keptMembers{};
    decltype(memberGuids_) keptGuids{};
    std::size_t kept = 0;
    for (std::size_t i = 0; i < static_cast<std::size_t>(memberCount_); ++i) {
        const Sim* member = members_[i];
        if (member != nullptr && std::string_view(member->recordName()) == sim.recordName()) continue;
        keptMembers[kept] = members_[i];
        keptGuids[kept] = memberGuids_[i];
        ++kept;
    }
    if (kept == static_cast<std::size_t>(memberCount_)) return -1;
    members_ = keptMembers;
    memberGuids_ = keptGuids;
    memberCount_ = static_cast<std::int16_t>(kept);
    if (sim.stage() >= stageNumber::adult) --adultCount_;
    dirty_ = true;
    return 1;
}
