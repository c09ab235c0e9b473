// A save of a neighborhood that the reader has made something of: what it writes, and where. The first byte of the
// input says what is changed, the rest is "neighborhood.iff".
#include <algorithm>
#include <map>
#include <utility>

#include "fuzz/fuzz_files.h"
#include "sample/data_files.h"
#include "sample/neighborhood_file.h"
#include "save/backup_names.h"
#include "world/neighborhood.h"

namespace fs = std::filesystem;

namespace {

constexpr unsigned growUp = 1, moveOut = 2, moveOutAgain = 4;
constexpr std::int32_t newRecordSize = 232;
constexpr const char* backupName = "neighborhood.200235.147.iff";

fs::path userData() {
    return fuzzDirectory() / "UserData";
}

void writeCharacters() {
    for (unsigned i = 1; i <= 3; ++i) {
        static std::map<unsigned, Bytes> files;
        const std::string name = "user0000" + std::to_string(i);
        Bytes& file = files[i];
        if (file.empty()) file = makeCharacterFile({.recordName = name, .guid = i, .hasPictures = false}).bytes;
        writeFuzzFile("UserData/Characters/" + name + ".iff", file);
    }
}

// The templates, and a neighborhood's directory as the game leaves it.
void writeFiles(FuzzInput neighborhood) {
    static const bool hasTemplates = [] {
        backupClock().stopAt({2002, 3, 0, 5, 14, 7, 0, 0});
        return writeDataFiles(fuzzDirectory());
    }();
    promise(hasTemplates, "the templates");
    const bool isUsed = fs::exists(userData() / "Characters" / "Backups");
    if (isUsed) fs::remove_all(userData());
    fs::remove_all(userData() / "Backups");
    if (isUsed || !fs::exists(userData())) writeCharacters();
    writeFuzzFile("UserData/neighborhood.iff", neighborhood);
}

void moveFirstMemberOut(Neighborhood& neighborhood, std::int32_t index) {
    Family* const family = neighborhood.family(index);
    if (family == nullptr || family->memberCount() < 1 || family->member(0) == nullptr) return;
    Sim& sim = *family->member(0);
    auto moved = std::make_unique<Family>(neighborhood);
    moved->setName(family->name());
    moved->setFunds(500);
    promise(family->removeMember(sim) == 1 && moved->addMember(sim) == 1, "a member that moves");
    promise(neighborhood.addNewFamily(std::move(moved)) == 1, "room for a new family");
}

void change(Neighborhood& neighborhood, unsigned changes) {
    int grownUp = 0;
    for (std::int32_t i = 0; i < neighborhood.simCount() && grownUp < 2 && (changes & growUp) != 0; ++i) {
        Sim& sim = *neighborhood.sim(i);
        if (sim.bodyStrings() != nullptr && sim.setStage(stageNumber::teen, nullptr) == 1) ++grownUp;
    }
    if ((changes & moveOut) != 0) moveFirstMemberOut(neighborhood, 0);
    if ((changes & moveOutAgain) != 0) moveFirstMemberOut(neighborhood, 1);
}

// What a save may change in the copy of the old file: bytes from the first offset on, up to the second.
using Ranges = std::vector<std::pair<std::int32_t, std::int32_t>>;

Ranges changedRanges(const Neighborhood& neighborhood) {
    Ranges ranges;
    for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
        const Sim& sim = *neighborhood.sim(i);
        if (sim.recordDirty()) ranges.emplace_back(sim.recordOffset(), sim.recordOffset() + 186);
    }
    if (!neighborhood.hasNewFamilies()) return ranges;
    ranges.emplace_back(61, 64);
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        const Family& family = *neighborhood.family(i);
        const std::int32_t table = family.memberTableOffset();
        if (family.dirty()) ranges.emplace_back(table - 20, table + family.tableSize());
    }
    return ranges;
}

// How much of the old file the new one begins with.
std::size_t keptSize(const Neighborhood& neighborhood, std::size_t size) {
    if (!neighborhood.hasNewFamilies()) return size;
    const std::int32_t place = neighborhood.xxxxOffset() > 0 ? neighborhood.xxxxOffset() : neighborhood.mapOffset();
    return place > 0 ? std::min(static_cast<std::size_t>(place), size) : size;
}

// A new file is the kept part of the old one but for those ranges, with the new families behind it.
void examineNewFile(const Bytes& before, const Bytes& after, std::size_t kept, std::size_t families,
                    const Ranges& ranges) {
    promise(after.size() == kept + families * newRecordSize, "the size of the new file");
    for (std::size_t at = 0; at < kept; ++at) {
        const auto offset = static_cast<std::int32_t>(at);
        const auto holds = [offset](const auto& range) { return range.first <= offset && offset < range.second; };
        promise(before[at] == after[at] || std::ranges::any_of(ranges, holds), "a byte that had to stay");
    }
    promise(readFuzzFile(userData() / "Backups" / backupName) == before, "the backup");
}

// Only names that a save may use, and no temporary one.
void examineNames() {
    for (const auto& entry : fs::recursive_directory_iterator(fuzzDirectory())) {
        const std::string name = entry.path().lexically_relative(fuzzDirectory());
        const bool isTool = name == "Template.iff" || name == "famtemplate";
        promise(isTool || name.starts_with("UserData"), "nothing outside the neighborhood's directory");
        promise(!entry.path().filename().string().starts_with("TMP"), "no temporary file");
    }
    promise(std::distance(fs::directory_iterator(userData()), {}) <= 3, "no more names than the live ones and Backups");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const FuzzInput file(data + 1, size - 1);
    writeFiles(file);
    Neighborhood neighborhood;
    promise(neighborhood.load(userData().c_str(), "neighborhood.iff") == 0, "a file that opens is read");
    change(neighborhood, data[0]);
    const bool wasDirty = neighborhood.isDirty();
    const std::size_t kept = keptSize(neighborhood, file.size());
    const auto families = static_cast<std::size_t>(neighborhood.newFamilyCount());
    const Ranges ranges = changedRanges(neighborhood);

    neighborhood.save(fuzzDirectory().c_str());

    const Bytes before(file.begin(), file.end()), after = readFuzzFile(userData() / "neighborhood.iff");
    const bool isSaved = fs::exists(userData() / "Backups" / backupName);
    promise(isSaved || after == before, "a live file that wasn't replaced");
    promise(isSaved || neighborhood.isDirty() == wasDirty, "what isn't saved stays marked");
    promise(!isSaved || wasDirty, "nothing saved without a change");
    if (isSaved) {
        examineNewFile(before, after, kept, families, ranges);
        examineNames();
    }
    return 0;
}
