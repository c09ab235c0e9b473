// Fuzzes the reader of "neighborhood.iff", with the records of all editions of the game, and the look-up of a family's
// members.
#include <cstring>

#include "fuzz/fuzz_files.h"
#include "world/neighborhood.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeFuzzFile("neighborhood.iff", {data, size});
    Neighborhood neighborhood;
    promise(neighborhood.load(fuzzDirectory().c_str(), "neighborhood.iff", allFormats) == 0,
            "a file that opens is read");
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        Family& family = *neighborhood.family(i);
        promise(std::strlen(family.name()) <= Family::nameCapacity, "the length of a family's name");
        promise(family.memberTableOffset() + family.tableSize() <= static_cast<std::int32_t>(size),
                "a table in the file");
    }
    // Asks each Sim for its GUID, which comes from its character file, and there are none.
    if (Family* family = neighborhood.family(0)) promise(family->memberCount() <= 8, "the number of members");
    std::int32_t last = -1;
    for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
        const std::int32_t record = neighborhood.sim(i)->recordOffset();
        promise(record > last, "records in the order of the file");
        last = record;
        promise(record >= 0 && record + neighborRecord::size <= static_cast<std::int32_t>(size),
                "a record in the file");
    }
    return 0;
}
