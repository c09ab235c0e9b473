// Fuzzes the reader of a character file: name, GUID and body strings. The body strings are then written as text and
// read back. The last bytes of the input choose the fields of the Sim's record and the room for the text.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>

#include "fuzz/fuzz_files.h"
#include "sample/neighborhood_file.h"
#include "world/neighborhood.h"

namespace {

constexpr std::int16_t longTextVersion = 7;
constexpr std::size_t roomForAll = 10'000;

// A neighborhood without Sims or families. The reader needs it for the directory of the character files.
Neighborhood& emptyNeighborhood() {
    static Neighborhood neighborhood;
    static const int loaded = [] {
        writeFuzzFile("neighborhood.iff", makeNeighborhoodFile({}).bytes);
        return neighborhood.load(fuzzDirectory().c_str(), "neighborhood.iff");
    }();
    promise(loaded == 0, "a neighborhood");
    return neighborhood;
}

std::string_view slotOf(const BodyStrings& body, std::size_t slot) {
    return body.slot(static_cast<bodySlot::Index>(slot));
}

struct Layout {
    std::int16_t version;
    bool allTexts;
};

Bytes textOf(const BodyStrings& body, std::size_t room, std::size_t limit, const Layout& layout) {
    Bytes text(room);
    const std::size_t size = body.serialise(text, limit, layout.version, layout.allTexts);
    promise(size <= room, "a text in its room");
    text.resize(size);
    return text;
}

// Number of slots in a text of this version: up to the outfits of the expansion packs, up to the winter outfit, or all.
// "ADDED" may stand for the winter outfit.
std::size_t carriedSlots(const BodyStrings& body, std::int16_t version) {
    if (version < longTextVersion) return bodySlot::f100Mesh;
    const bool hasWinter = slotOf(body, bodySlot::w100Mesh).size() >= 2 && slotOf(body, bodySlot::w100Skin).size() >= 2;
    return hasWinter ? bodySlot::count : bodySlot::w100Mesh;
}

// The reader gives up an entry of more than 149 characters, unless the bytes 01 00 end it, which a text that is written
// doesn't have. A mesh and its skin are an entry, with "=" in between.
bool hasTooLongEntry(const BodyStrings& body) {
    for (std::size_t slot = 0; slot < bodySlot::count; ++slot) {
        const std::size_t next = slot + 1 < bodySlot::count ? slotOf(body, slot + 1).size() : 0;
        if (slotOf(body, slot).size() + 1 + next > BodyStrings::slotCapacity) return true;
    }
    return false;
}

void readBack(const BodyStrings& body, const Layout& layout) {
    writeFuzzFile("text", textOf(body, roomForAll, roomForAll, layout));
    const std::int16_t version = layout.version;
    StreamFile file;
    promise(file.open((fuzzDirectory() / "text").c_str(), StreamFile::Access::read, roomForAll), "a text to read");
    BodyStrings again;
    again.parse(StreamView(file), version);
    promise(again.version() == std::min(version, longTextVersion), "the version of a text read back");
    const std::size_t carried = carriedSlots(body, version);
    for (std::size_t slot = 0; slot < bodySlot::count; ++slot) {
        const bool isAdded = layout.allTexts && slot == bodySlot::w100Mesh && carried <= slot;
        const std::string_view missing = isAdded ? BodyStrings::missingOutfit : "";
        promise(slotOf(again, slot) == (slot < carried ? slotOf(body, slot) : missing), "a slot read back");
    }
}

void examineText(const BodyStrings& body, std::size_t room, std::size_t limit, const Layout& layout) {
    const Bytes whole = textOf(body, roomForAll, limit, layout), cut = textOf(body, room, limit, layout);
    promise(whole.size() > limit, "a text filled up to its limit");
    promise(std::ranges::equal(cut, std::span(whole).first(std::min(room, whole.size()))), "a text cut at its end");
    if (!hasTooLongEntry(body)) readBack(body, layout);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider choices(data, size);
    const auto recordsVersion = choices.ConsumeIntegralInRange<std::int16_t>(4, 8);
    const bool isLater = choices.ConsumeBool();
    const auto age = choices.PickValueInArray({ageNumber::child, ageNumber::teen, ageNumber::adult, 0});
    const auto kind = choices.ConsumeIntegralInRange<std::int16_t>(genderNumber::male, genderNumber::pet);
    const auto room = choices.ConsumeIntegralInRange<std::size_t>(0, 3000);
    const auto limit = choices.ConsumeIntegralInRange<std::size_t>(0, 3000);
    writeFuzzFile("Characters/user00001.iff", choices.ConsumeRemainingBytes<std::uint8_t>());

    const Bytes record = sampleNeighborRecord({.version = recordsVersion, .age = age, .kind = kind});
    Sim sim(emptyNeighborhood(), recordFormats[isLater ? 1 : 0]);
    sim.readRecord(std::span(record).first<neighborRecord::size>(), 0);
    promise(std::strlen(sim.name()) <= 99, "the length of a name");
    sim.guid();
    promise(sim.stage() >= stageNumber::pet && sim.stage() <= stageNumber::adult, "a stage");
    const BodyStrings* body = sim.bodyStrings();
    promise((body != nullptr) == (sim.loadBodyStrings() == 1), "body strings that were loaded");
    if (body != nullptr) examineText(*body, room, limit, {sim.version(), sim.format().hasAllTexts});
    return 0;
}
