// Fuzzes two saves in a row, and checks what they write and where. The first byte of the input chooses what changes and
// what hinders the first save. The rest is "neighborhood.iff".
#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <system_error>
#include <utility>

#include "fuzz/fuzz_files.h"
#include "gamefiles/templates.h"
#include "sample/fact_template.h"
#include "sample/neighborhood_file.h"
#include "save/backup_names.h"
#include "world/neighborhood.h"

namespace fs = std::filesystem;

namespace {

constexpr unsigned growUp = 1, moveOut = 2, moveOutAgain = 4;
constexpr std::int32_t headerMap = 61;  // 3 bytes
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

// Writes the templates, and a neighborhood's directory as the game leaves it.
void writeFiles(FuzzInput neighborhood) {
    static const bool hasTemplates = [] {
        backupClock().stopAt({2002, 3, 0, 5, 14, 7, 0, 0});
        return writeTemplates(fuzzDirectory());
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

enum class Hindrance { none, noBackups, noTempFile, noTemplates, gameSaved };

Hindrance hindranceOf(std::uint8_t choice) {
    constexpr std::array all{Hindrance::none,      Hindrance::none,       Hindrance::none,        Hindrance::none,
                             Hindrance::noBackups, Hindrance::noTempFile, Hindrance::noTemplates, Hindrance::gameSaved};
    return all[choice >> 5];
}

void raise(Hindrance hindrance) {
    const fs::path live = userData() / "neighborhood.iff";
    if (hindrance == Hindrance::noBackups) writeFuzzFile("UserData/Backups", {});
    if (hindrance == Hindrance::noTempFile) fs::create_directory(userData() / "TMPneighborhood.iff");
    if (hindrance == Hindrance::gameSaved) fs::resize_file(live, fs::file_size(live) / 2);
}

void lift(Hindrance hindrance) {
    if (hindrance == Hindrance::noBackups) fs::remove(userData() / "Backups");
    if (hindrance == Hindrance::noTempFile) fs::remove(userData() / "TMPneighborhood.iff");
}

// Another neighborhood. It is the current directory before a save, and a save must not touch it.
const fs::path& neighbor() {
    static const fs::path directory = fuzzDirectory() / "UserData2";
    static const bool isMade = [] {
        for (const char* name : {"neighborhood.iff", "TMPneighborhood.iff", "Characters/user00001.iff"}) {
            writeFuzzFile(directory.filename() / name, ByteWriter().text("another neighborhood's").written());
        }
        return true;
    }();
    promise(isMade, "another neighborhood");
    return directory;
}

// The time of a file changes with a write, that of a directory with a new or removed name.
std::vector<fs::file_time_type> timesOutside() {
    std::vector<fs::file_time_type> times;
    for (const char* name : {".", "neighborhood.iff", "TMPneighborhood.iff", "Characters", "Characters/user00001.iff",
                             "../Template.iff", "../famtemplate", "../Template-later.iff", "../famtemplate-later"}) {
        times.push_back(fs::last_write_time(neighbor() / name));
    }
    return times;
}

// Offsets in a file: the first byte, and the one behind the last.
using Range = std::pair<std::int32_t, std::int32_t>;
using Ranges = std::vector<Range>;

bool meets(const Ranges& ranges, std::size_t begin, std::size_t end) {
    return std::ranges::any_of(ranges, [&](const Range& range) {
        return range.first < static_cast<std::int32_t>(end) && static_cast<std::int32_t>(begin) < range.second;
    });
}

bool isHeaderMap(std::size_t at) {
    const auto offset = static_cast<std::int32_t>(at);
    return offset >= headerMap && offset < headerMap + 3;
}

// What a save has to write, and the bytes of the old file that it may change.
struct Waiting {
    explicit Waiting(Neighborhood& neighborhood);

    Bytes live = readFuzzFile(userData() / "neighborhood.iff");
    bool isDirty;
    std::size_t kept;               // number of bytes of the old file that the new one begins with
    std::vector<bool> newFamilies;  // whether each has the record of later editions
    std::int32_t highestFamilyNumber;
    std::vector<Sim*> sims;
    std::vector<Family*> families;
    Ranges records;
    Ranges familyRecords;
};

// What growing up may change: all of a record up to 2002; person values and age in later editions, whose other bytes
// stay, among them the mode.
Ranges changing(const Sim& sim) {
    const std::int32_t begin = sim.recordOffset();
    if (!sim.format().keepsUnknown) return {{begin, begin + 186}};
    return {{begin + 30, begin + 64}, {begin + 118, begin + 144}};
}

Waiting::Waiting(Neighborhood& neighborhood)
    : isDirty(neighborhood.isDirty()), kept(live.size()), highestFamilyNumber(neighborhood.highestFamilyNumber()) {
    for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
        Sim& sim = *neighborhood.sim(i);
        if (!sim.recordDirty()) continue;
        sims.push_back(&sim);
        std::ranges::copy(changing(sim), std::back_inserter(records));
    }
    for (std::int32_t i = 0; i < neighborhood.newFamilyCount(); ++i) {
        newFamilies.push_back(&neighborhood.newFamily(i)->format() == &recordFormats[1]);
    }
    if (!neighborhood.hasNewFamilies()) return;
    const std::int32_t place = neighborhood.xxxxOffset() > 0 ? neighborhood.xxxxOffset() : neighborhood.mapOffset();
    if (place > 0) kept = std::min(static_cast<std::size_t>(place), kept);
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        Family& family = *neighborhood.family(i);
        const std::int32_t table = family.memberTableOffset();
        if (!family.dirty()) continue;
        families.push_back(&family);
        familyRecords.emplace_back(table - 20, table + family.tableSize());
    }
}

// The record must be the template but for the fields of a new family.
void examineNewFamily(std::span<const std::uint8_t> record, const Bytes& blank, std::size_t offset,
                      std::int32_t number) {
    const auto end = static_cast<std::int32_t>(blank.size());
    const Ranges own = {{9, 11}, {92, 94}, {96, 98}, {116, 120}, {end - 99, end - 97}, {end - 27, end}};
    const std::size_t nameNumber = blank.size() - 99;
    for (std::size_t at = 0; at < record.size(); ++at) {
        const bool isHeader = isHeaderMap(offset + at);
        promise(isHeader || record[at] == blank[at] || meets(own, at, at + 1), "a template's byte");
        const std::size_t byte = at == 9 || at == 92 || at == nameNumber ? 0 : 1;
        const bool isNumber = at - byte == 9 || at - byte == 92 || at - byte == nameNumber;
        promise(isHeader || !isNumber || record[at] == (number >> 8 * byte & 0xFF), "a number one above the highest");
    }
}

// The new file must be the kept part of the old one, changed only where a save may patch it, and the new families.
void examineNewFile(const Waiting& waiting) {
    const Bytes file = readFuzzFile(userData() / "neighborhood.iff");
    static const Bytes blanks[] = {makeFamilyTemplate(), makeFamilyTemplate(Editions::later)};
    std::size_t size = waiting.kept;
    for (const bool isLater : waiting.newFamilies) {
        size += blanks[isLater ? 1 : 0].size();
    }
    promise(file.size() == size, "the size of the new file");
    for (std::size_t at = 0; at < file.size() && at < waiting.kept; ++at) {
        const bool isHeader = !waiting.newFamilies.empty() && isHeaderMap(at);
        const bool mayChange = meets(waiting.records, at, at + 1) || meets(waiting.familyRecords, at, at + 1);
        promise(isHeader || mayChange || file[at] == waiting.live[at], "a byte that had to stay");
        promise(!isHeader || file[at] == 0 || meets(waiting.familyRecords, at, at + 1), "no map in the header");
    }
    std::size_t offset = waiting.kept;
    std::int32_t number = waiting.highestFamilyNumber;
    for (const bool isLater : waiting.newFamilies) {
        const Bytes& blank = blanks[isLater ? 1 : 0];
        examineNewFamily(std::span(file).subspan(offset, blank.size()), blank, offset, ++number);
        offset += blank.size();
    }
}

void examineMarks(const Neighborhood& neighborhood, const Waiting& waiting, bool isSaved, bool areSimsSaved) {
    static const std::size_t newSize = makeFactTemplate().size();
    promise(neighborhood.hasNewFamilies() == (!isSaved && !waiting.newFamilies.empty()), "the mark of new families");
    promise(neighborhood.newFamilyCount() == (isSaved ? 0 : static_cast<int>(waiting.newFamilies.size())),
            "new families");
    for (const Family* family : waiting.families) {
        promise(family->dirty() != isSaved || family->memberTableOffset() == 0, "the mark of a family");
    }
    for (const Sim* sim : waiting.sims) {
        promise(sim->recordDirty() != areSimsSaved, "the mark of a Sim");
        if (!areSimsSaved) continue;
        const fs::path characters = userData() / "Characters";
        promise(fs::file_size(characters / (std::string(sim->recordName()) + ".iff")) == newSize, "a Sim's new file");
    }
}

// A save must leave no temporary file, and no name of its own but "Backups".
void examineNames() {
    for (const auto& entry : fs::recursive_directory_iterator(userData())) {
        promise(!entry.path().filename().string().starts_with("TMP"), "no temporary file");
    }
    promise(std::distance(fs::directory_iterator(userData()), {}) <= 3, "no more names than the live ones and Backups");
    promise(std::distance(fs::directory_iterator(fuzzDirectory()), {}) == 6, "no name beside the neighborhood's");
}

bool mustSucceed(const Waiting& waiting, Hindrance hindrance) {
    if (!waiting.isDirty || hindrance == Hindrance::noTempFile) return false;
    return hindrance != Hindrance::noTemplates || waiting.newFamilies.empty();
}

// Saves, and returns whether there is a new file. `isFileAsRead`: the live file is still the one that was read, so the
// save must succeed unless something hinders it.
bool saveAndExamine(Neighborhood& neighborhood, Hindrance hindrance, bool isFileAsRead) {
    static const std::vector<fs::file_time_type> outside = timesOutside();
    raise(hindrance);
    const Waiting waiting(neighborhood);
    std::error_code ignored;
    fs::remove(userData() / "Backups" / backupName, ignored);
    fs::current_path(neighbor());
    const fs::path tools = hindrance == Hindrance::noTemplates ? neighbor() : fuzzDirectory();

    neighborhood.save(tools.c_str());

    promise(timesOutside() == outside, "nothing written outside the neighborhood's directory");
    const bool hasBackup = fs::exists(userData() / "Backups" / backupName);
    const bool isSaved = hindrance == Hindrance::noBackups ? waiting.isDirty : hasBackup;
    if (isFileAsRead) {
        promise(isSaved == mustSucceed(waiting, hindrance), "a save that nothing hinders, and only that");
        examineMarks(neighborhood, waiting, isSaved, isSaved && hindrance != Hindrance::noTemplates);
    }
    promise(isFileAsRead || !isSaved, "the game's file stays");
    lift(hindrance);
    if (!isSaved) {
        promise(readFuzzFile(userData() / "neighborhood.iff") == waiting.live, "a live file that wasn't replaced");
        promise(neighborhood.isDirty() == waiting.isDirty, "what isn't saved stays marked");
        return false;
    }
    promise(!hasBackup || readFuzzFile(userData() / "Backups" / backupName) == waiting.live, "the backup");
    examineNewFile(waiting);
    if (hindrance == Hindrance::none) examineNames();
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    writeFiles({data + 1, size - 1});
    Neighborhood neighborhood;
    promise(neighborhood.load(userData().c_str(), "neighborhood.iff", allFormats) == 0, "a file that opens is read");
    change(neighborhood, data[0]);
    const Hindrance hindrance = hindranceOf(data[0]);
    const bool isAsRead = hindrance != Hindrance::gameSaved || size == 1;  // an empty file can't be changed
    if (saveAndExamine(neighborhood, hindrance, isAsRead)) change(neighborhood, data[0] >> 3);
    saveAndExamine(neighborhood, Hindrance::none, isAsRead);
    return 0;
}
