#include "restore/happenings.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "restore/point_files.h"
#include "ui/sentence_parts.h"
#include "world/neighborhood.h"
#include "world/paths.h"
#include "world/sims_directory.h"

namespace {

// As many Sims as one line can name.
constexpr std::size_t mostNames = 4;

// A GUID that can be looked up.
using GuidKey = std::array<std::uint8_t, 4>;

GuidKey keyOf(const Guid& guid) {
    GuidKey key{};
    std::ranges::copy(guid.bytes(), key.begin());
    return key;
}

struct FamilyName {
    std::int16_t number = 0;
    std::string name;
};

// One neighborhood of a state. The members of its families aren't resolved, since that may open a box; they are read
// from the file as it is.
class Version {
 public:
    Version(const std::string& simsDirectory, int number)
        : directory_(neighborhoodDirectory(simsDirectory.c_str(), number)),
          isRead_(neighborhood_->load(directory_.c_str(), neighborhoodFileName, allFormats) == 0) {
        if (isRead_) readMembers();
    }

    bool isRead() const { return isRead_; }
    Neighborhood& operator*() const { return *neighborhood_; }
    const std::map<GuidKey, FamilyName>& families() const { return families_; }

    const FamilyName* familyOf(const GuidKey& guid) const {
        const auto found = families_.find(guid);
        return found != families_.end() ? &found->second : nullptr;
    }

    bool hasFamily(std::int16_t number) const {
        for (std::int32_t i = 0; i < neighborhood_->familyCount(); ++i) {
            if (neighborhood_->family(i)->familyNumber() == number) return true;
        }
        return false;
    }

    Sim* simOfRecord(std::string_view name) const {
        for (std::int32_t i = 0; i < neighborhood_->simCount(); ++i) {
            if (equalInAnyCase(neighborhood_->sim(i)->recordName(), name)) return neighborhood_->sim(i);
        }
        return nullptr;
    }

    std::string nameOf(Sim& sim) const {
        const std::string name = sim.name();
        if (name.empty()) return sim.recordName();
        const FamilyName* const family = familyOf(keyOf(sim.guid()));
        return family != nullptr ? name + ' ' + family->name : name;
    }

 private:
    void readMembers() {
        const std::string path = std::string(directory_.view()) + '\\' + neighborhoodFileName;
        std::FILE* const file = openFile(path.c_str(), "rb");
        if (file == nullptr) return;
        for (std::int32_t i = 0; i < neighborhood_->familyCount(); ++i) {
            const Family& family = *neighborhood_->family(i);
            GuidKey guid{};
            const std::int32_t size = family.tableSize();
            if (std::fseek(file, family.memberTableOffset(), SEEK_SET) != 0) continue;
            for (std::int32_t at = 0; at < size && std::fread(guid.data(), guid.size(), 1, file) == 1;
                 at += familyRecord::guidSize) {
                families_.try_emplace(guid, FamilyName{family.familyNumber(), family.name()});
            }
        }
        std::fclose(file);
    }

    NeighborhoodPath directory_;
    std::unique_ptr<Neighborhood> neighborhood_ = std::make_unique<Neighborhood>();
    bool isRead_;
    std::map<GuidKey, FamilyName> families_;
};

// What happened to each Sim, by full name, in the order of the file.
class Deeds {
 public:
    void add(const std::string& name, const std::string& deed) {
        const auto found = std::ranges::find(deeds_, name, &std::pair<std::string, std::string>::first);
        if (found == deeds_.end()) {
            deeds_.emplace_back(name, deed);
        } else {
            found->second += ", " + deed;
        }
    }

    std::vector<std::string> sentences() const {
        std::vector<std::string> all;
        for (const auto& [name, deed] : deeds_) {
            if (all.size() == mostNames) {
                all.push_back(std::to_string(deeds_.size() - mostNames) + " more changed");
                break;
            }
            std::string sentence = name;
            all.push_back(sentence.append(1, ' ').append(deed));
        }
        return all;
    }

 private:
    std::vector<std::pair<std::string, std::string>> deeds_;
};

void addStages(const Version& before, const Version& after, Deeds& deeds) {
    for (std::int32_t i = 0; i < (*before).simCount(); ++i) {
        Sim& sim = *(*before).sim(i);
        const Sim* const now = after.simOfRecord(sim.recordName());
        if (now == nullptr || now->age() == sim.age()) continue;
        if (now->age() == ageNumber::teen) deeds.add(before.nameOf(sim), "became a teenager");
        if (now->age() == ageNumber::adult) deeds.add(before.nameOf(sim), "became an adult");
        if (now->age() == ageNumber::child) deeds.add(before.nameOf(sim), "became a child");
    }
}

void addMoves(const Version& before, const Version& after, Deeds& deeds) {
    for (const auto& [guid, family] : before.families()) {
        const FamilyName* const now = after.familyOf(guid);
        if (now != nullptr && now->number == family.number) continue;
        Sim* const sim = (*before).simWithGuid(Guid(guid));
        if (sim == nullptr) continue;
        const bool movedOut = now != nullptr && !before.hasFamily(now->number);
        const std::string name = before.nameOf(*sim);
        if (now == nullptr) {
            deeds.add(name, "left the family");
        } else {
            deeds.add(name, movedOut ? "moved out" : "moved in with " + now->name);
        }
    }
    for (const auto& [guid, family] : after.families()) {
        if (before.familyOf(guid) != nullptr) continue;
        Sim* const sim = (*after).simWithGuid(Guid(guid));
        if (sim != nullptr) deeds.add(after.nameOf(*sim), "came");
    }
}

std::vector<int> neighborhoodsOf(const std::vector<std::string>& paths) {
    std::set<int> numbers;
    for (const std::string& path : paths) {
        numbers.insert(neighborhoodOf(path));
    }
    return {numbers.begin(), numbers.end()};
}

bool isOfASave(const std::string& path) {
    const std::string below = lowered(path.substr(path.find('/') + 1));
    return below == neighborhoodFileName || (below.starts_with("characters/") && below.ends_with(".iff"));
}

}  // namespace

std::vector<std::string> differingFiles(const RestorePoint& one, const RestorePoint& other) {
    std::set<std::string> paths;
    const auto has = [](const RestorePoint& point, const PointFile& file) {
        const auto found = std::ranges::lower_bound(point.files, file.path, {}, &PointFile::path);
        return found != point.files.end() && found->path == file.path && found->checksum == file.checksum &&
               found->stamp.size == file.stamp.size;
    };
    for (const PointFile& file : one.files) {
        if (!has(other, file)) paths.insert(file.path);
    }
    for (const PointFile& file : other.files) {
        if (!has(one, file)) paths.insert(file.path);
    }
    return {paths.begin(), paths.end()};
}

std::vector<std::string> filesOfPlaying(const std::vector<std::string>& paths) {
    std::vector<std::string> played;
    std::ranges::copy_if(paths, std::back_inserter(played), [](const std::string& path) { return !isOfASave(path); });
    return played;
}

std::vector<int> playedNeighborhoods(const std::vector<std::string>& paths) {
    return neighborhoodsOf(filesOfPlaying(paths));
}

std::string happeningsBetween(const std::string& before, const std::string& after,
                              const std::vector<std::string>& paths) {
    if (paths.empty()) return "nothing changed";
    const std::vector<int> played = playedNeighborhoods(paths);
    std::string text;
    const auto add = [&](const std::string& words) { text += (text.empty() ? "" : "; ") + words; };
    for (const int number : neighborhoodsOf(paths)) {
        const std::string name = "Neighborhood " + std::to_string(number);
        const Version old(before, number), now(after, number);
        Deeds deeds;
        if (old.isRead() && now.isRead()) {
            addStages(old, now, deeds);
            addMoves(old, now, deeds);
        }
        for (const std::string& sentence : deeds.sentences()) {
            add(sentence);
        }
        const bool wasPlayed = std::ranges::find(played, number) != played.end();
        if (wasPlayed || deeds.sentences().empty()) add(name + (wasPlayed ? " was played" : " was changed"));
    }
    return text;
}

NeighborhoodCounts countsIn(const std::string& directory, int neighborhood) {
    NeighborhoodCounts counts;
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        if (neighborhood != allNeighborhoods && number != neighborhood) continue;
        FileStatus status{};
        if (!queryFileStatus(neighborhoodDirectory(directory.c_str(), number).c_str(), status)) continue;
        const Version version(directory, number);
        if (!version.isRead()) continue;
        counts.families += (*version).familyCount();
        counts.sims += (*version).simCount();
    }
    return counts;
}
