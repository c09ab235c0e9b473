// The reader of a character file: name, GUID and body strings, and the text that these are written as.
#include <cstring>

#include "fuzz/fuzz_files.h"
#include "sample/neighborhood_file.h"
#include "world/neighborhood.h"

namespace {

// A neighborhood without Sims or families, which only gives the directory of character files.
Neighborhood& emptyNeighborhood() {
    static Neighborhood neighborhood;
    static const int loaded = [] {
        writeFuzzFile("neighborhood.iff", makeNeighborhoodFile({}).bytes);
        return neighborhood.load(fuzzDirectory().c_str(), "neighborhood.iff");
    }();
    promise(loaded == 0, "a neighborhood");
    return neighborhood;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Bytes record = sampleNeighborRecord({});
    Sim sim(emptyNeighborhood());
    writeFuzzFile("Characters/user00001.iff", {data, size});
    sim.readRecord(std::span(record).first<neighborRecord::size>(), 0);
    promise(std::strlen(sim.name()) <= 99, "the length of a name");
    sim.guid();
    promise(sim.stage() >= stageNumber::pet && sim.stage() <= stageNumber::adult, "a stage");
    if (const BodyStrings* body = sim.bodyStrings()) {
        Bytes text(3000);
        for (const int version : {6, 7}) {
            promise(body->serialise(text, 1041, static_cast<std::int16_t>(version)) <= text.size(),
                    "the length of a text");
        }
    }
    return 0;
}
