// make_seeds DIRECTORY: writes the first inputs of each fuzzing target.
#include <cstdio>
#include <filesystem>

#include "gamefiles/file_writing.h"
#include "sample/neighborhood_file.h"

namespace {

std::filesystem::path root;
bool isWritten = true;

void seed(const char* target, const char* name, const Bytes& bytes) {
    std::filesystem::create_directories(root / target);
    isWritten = writeFile(root / target / name, bytes) && isWritten;
}

Bytes textOf(std::string_view text) {
    return ByteWriter().text(text).written();
}

void seedNeighborhoods() {
    for (const bool hasMap : {true, false}) {
        SampleNeighborhood content{
            .neighbors = {{.later = true, .recordName = "user00003", .version = 9, .gapByte = 9, .guid = 3},
                          {},
                          {.recordName = "robot"},
                          {.recordName = "user00002", .age = 9, .guid = 2}},
            .families = {{.members = {1, 2}}, {.number = 2, .name = "Oats", .members = {3, 2}, .hasHistory = true}},
            .freeRoom = hasMap,
            .map = hasMap};
        const Bytes file = makeNeighborhoodFile(content).bytes;
        const char* const name = hasMap ? "with_map" : "without_map";
        seed("neighborhood", name, file);
        // The first byte chooses what changes before the save.
        for (const int changes : {1, 2, 4, 7}) {
            const std::string changed = std::string(name) + std::to_string(changes);
            seed("save", changed.c_str(), ByteWriter().u8(static_cast<std::uint8_t>(changes)).bytes(file).written());
        }
    }
}

void seedCharacters() {
    for (const BodyEnding ending :
         {BodyEnding::atEntry29, BodyEnding::atEntry32, BodyEnding::atEntry33, BodyEnding::atEntry34}) {
        for (const bool hasMap : {true, false}) {
            const SampleCharacter character{.ending = ending, .hasPictures = false, .map = hasMap};
            const std::string name = std::to_string(static_cast<int>(ending)) + (hasMap ? "with_map" : "without_map");
            for (const char* const target : {"character", "template"}) {
                seed(target, name.c_str(), makeCharacterFile(character).bytes);
            }
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) return 2;
    root = arguments[1];
    seedNeighborhoods();
    seedCharacters();
    seed("skin_sets", "sets",
         textOf(
             "# heads\r\n[One]\r\nCHILD=c001fclgt_amanda01;c001fc_amanda,HEAD-HEAD\nTEENAGER=a;b\r\nADULT=c;d\n[Two]\n"
             "TEENAGER=C001FClgt_Amanda01;x\nADULT=e;f"));
    seed("registry", "game",
         textOf("WINE REGISTRY Version 2\n\n[Software\\\\Maxis\\\\The Sims] 1699\n#time=1d\n"
                "\"SIMS_DATA\"=\"C:\\\\Games\\\\\\xe9\"\n@=str(2):\"%x%\"\n[Other]\n\"a\"=dword:00000001\n"));
    return isWritten ? 0 : 1;
}
