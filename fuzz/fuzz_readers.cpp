// Feeds the readers of the game's files with broken ones: valid samples, changed in a few random places and read as the
// program reads them. A fault shows as a sanitizer's report or as a broken promise of the readers.
//
// fuzz_readers [rounds [seed]]: the seed is printed, and the same one gives the same files again.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <random>

#include "platform/win32.h"
#include "sample/file_writing.h"
#include "sample/neighborhood_file.h"
#include "world/neighborhood.h"

namespace {

int shownBoxes = 0;
std::mt19937 generator;

std::size_t pick(std::size_t count) {
    return count == 0 ? 0 : generator() % count;
}

// One change: a cut, a run that is lost or doubled or all alike, a tag, or a number on the edge.
void change(Bytes& bytes) {
    constexpr std::string_view tags = "userXXXXFAMIIMAFFAMsSTR#CTSSOBJDSSTCDJBO";
    constexpr std::uint8_t edges[] = {0x00, 0x01, 0x04, 'n', 0x7F, 0x80, 0xA3, 0xFF};
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(pick(bytes.size()));
    const auto left = static_cast<std::size_t>(bytes.end() - at);
    const Bytes run(at, at + static_cast<std::ptrdiff_t>(pick(std::min<std::size_t>(left, 300))));
    const std::size_t kind = pick(12);
    if (kind <= 1) {
        bytes.erase(at, kind == 0 ? bytes.end() : at + static_cast<std::ptrdiff_t>(run.size()));
    } else if (kind == 2) {
        bytes.insert(at, run.begin(), run.end());
    } else if (kind <= 4) {
        std::copy_n(tags.begin() + 4 * pick(tags.size() / 4), std::min<std::size_t>(4, left), at);
    } else {
        const std::size_t count = kind == 5 ? run.size() : std::min(1 + pick(8), left);
        std::fill_n(at, count, edges[pick(std::size(edges))]);
    }
}

Bytes changed(Bytes bytes, std::size_t mostChanges) {
    for (std::size_t left = pick(mostChanges + 1); left > 0; --left) {
        change(bytes);
    }
    return bytes;
}

void promise(bool kept, const char* what) {
    if (kept) return;
    std::printf("Broken: %s\n", what);
    std::abort();
}

void readSim(Sim& sim) {
    promise(std::strlen(sim.name()) <= 99, "a name's length");
    promise(sim.stage() >= stageNumber::pet && sim.stage() <= stageNumber::adult, "a stage");
    const BodyStrings* body = sim.bodyStrings();
    if (body == nullptr) return;
    Bytes text(3000);
    promise(body->serialise(text, 1041, sim.version()) <= text.size(), "the length of a text");
}

void readAll(const std::string& directory) {
    Neighborhood neighborhood;
    promise(neighborhood.load(directory.c_str(), "neighborhood.iff") == 0, "a file that opens is read");
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        Family& family = *neighborhood.family(i);
        promise(std::strlen(family.name()) <= Family::nameCapacity, "the length of a family's name");
        promise(family.memberCount() <= 8, "the number of members");
        if (Sim* sim = family.member(family.memberCount() - 1)) promise(family.removeMember(*sim) == 1, "a member");
    }
    for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
        readSim(*neighborhood.sim(i));
    }
}

}  // namespace

// A box would wait for somebody to answer it.
int MessageBoxA(HWND, LPCSTR, LPCSTR, UINT) {
    ++shownBoxes;
    return IDOK;
}

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    const int rounds = __argc > 1 ? std::atoi(__argv[1]) : 2000;
    const unsigned seed =
        __argc > 2 ? static_cast<unsigned>(std::strtoul(__argv[2], nullptr, 10)) : std::random_device()();
    generator.seed(seed);
    std::printf("%d rounds, seed %u\n", rounds, seed);
    std::fflush(stdout);
    const auto directory = std::filesystem::temp_directory_path() / ("tidewright-fuzz-" + std::to_string(seed));
    std::filesystem::create_directories(directory / "Characters");
    const SampleNeighborhood content{
        .neighbors = {{}, {.recordName = "robot"}, {.recordName = "user00002", .age = 9}},
        .families = {{.members = {sampleGuid, 1}}, {.name = "Oats", .members = {2}, .hasHistory = true}},
        .freeRoom = true};
    const Bytes neighborhood = makeNeighborhoodFile(content).bytes;
    for (int round = 0; round < rounds; ++round) {
        writeFile(directory / "neighborhood.iff", changed(neighborhood, 8));
        for (const char* name : {"user00001.iff", "user00002.iff"}) {
            const auto ending = static_cast<BodyEnding>(pick(3));
            const SampleCharacter character{.ending = ending, .hasPictures = false, .map = pick(2) == 0};
            writeFile(directory / "Characters" / name, changed(makeCharacterFile(character).bytes, 5));
        }
        readAll(directory.string());
    }
    std::filesystem::remove_all(directory);
    std::printf("Nothing broke; %d boxes were shown\n", shownBoxes);
    return 0;
}
