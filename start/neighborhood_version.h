// A neighborhood as it is in the game's directory or in a copy: its families, its Sims and their names.
#ifndef START_NEIGHBORHOOD_VERSION_H
#define START_NEIGHBORHOOD_VERSION_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "gamefiles/byte_writer.h"
#include "start/neighborhood_files.h"
#include "world/neighborhood.h"

struct FamilyEntry {
    std::int32_t number = 0;
    std::string name = {};
    std::int32_t funds = 0;
    std::vector<Guid> members = {};

    bool isSame(const FamilyEntry& other) const { return number == other.number && name == other.name; }
};

class NeighborhoodVersion {
 public:
    // Reads the neighborhood file. The members of its families aren't resolved, since that may open a box.
    explicit NeighborhoodVersion(const NeighborhoodPlace& place);

    bool isRead() const { return isRead_; }
    const NeighborhoodPlace& place() const { return place_; }
    const Bytes& file() const { return file_; }
    const std::vector<FamilyEntry>& families() const { return families_; }
    // False if there may be more families than these.
    bool hasAllFamilies() const { return families_.size() < Neighborhood::highestFamilyCount; }

    std::int32_t simCount() const { return neighborhood_->simCount(); }
    Sim& sim(std::int32_t index) const { return *neighborhood_->sim(index); }

    // Null if there is none. `recordName` may be in any case.
    Sim* simOfRecord(const std::string& recordName) const;
    Sim* simOfGuid(const Guid& guid) const { return neighborhood_->simWithGuid(guid); }

    // "Clover Thistlewood"; without the family's name if no listed family has the Sim, and the record's name if the
    // file can't be read.
    std::string nameOf(Sim& sim) const;

 private:
    NeighborhoodPlace place_;
    std::unique_ptr<Neighborhood> neighborhood_ = std::make_unique<Neighborhood>();
    bool isRead_;
    Bytes file_;
    std::vector<FamilyEntry> families_;
};

#endif
