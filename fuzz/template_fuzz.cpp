// Fuzzes what `prepare/` does with a player's character file: its reader of chunks, its check, and the
// template that it makes of the file.
#include "fuzz/fuzz_files.h"
#include "gamefiles/iff_reader.h"
#include "prepare/character_check.h"
#include "prepare/template_maker.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const IffContents contents = readIff(FuzzInput(data, size));
    if (!contents.fault.empty()) return 0;
    for (const Editions editions : {Editions::base, Editions::later}) {
        if (!refusalOf(contents.chunks, editions).empty()) continue;
        const Bytes made = makeTemplate(contents.chunks, editions);
        promise(made.empty() || readIff(made).fault.empty(), "a template that its chunks fill");
    }
    return 0;
}
