#include "world/neighborhood.h"

#include <algorithm>
#include <utility>

Family* Neighborhood::family(std::int32_t index) const {
    if (index < 0 || index >= familyCount_) return nullptr;
    return families_[static_cast<std::size_t>(index)];
}

Sim* Neighborhood::sim(std::int32_t index) const {
    if (index < 0 || index >= simCount_) return nullptr;
    return sims_[static_cast<std::size_t>(index)];
}

Sim* Neighborhood::simWithGuid(const Guid& guid) const {
    const auto listed = std::span(sims_).first(static_cast<std::size_t>(simCount_));
    const auto found = std::ranges::find_if(listed, [&](Sim* sim) { return sim->guid() == guid; });
    return found != listed.end() ? *found : nullptr;
}

Family* Neighborhood::newFamily(std::int32_t index) const {
    if (index < 0 || index >= newFamilyCount_) return nullptr;
    return newFamilies_[static_cast<std::size_t>(index)];
}

int Neighborhood::addNewFamily(std::unique_ptr<Family> family) {
    if (newFamilyCount_ >= highestNewFamilyCount) return -1;
    newFamilies_[static_cast<std::size_t>(newFamilyCount_)] = family.get();
    ++newFamilyCount_;
    ownedFamilies_.push_back(std::move(family));
    dirty_ = true;
    hasNewFamilies_ = true;
    return 1;
}

bool Neighborhood::isDirty() {
    for (std::int32_t i = 0; i < simCount_; ++i) {
        if (sim(i)->recordDirty()) dirty_ = true;
    }
    return dirty_;
}
