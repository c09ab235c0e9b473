// Fuzzes the search in "skinsets.cfg" for a head of the next stage.
#include "fuzz/fuzz_files.h"
#include "lifestage/skin_sets.h"
#include "world/sim.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    writeFuzzFile("skinsets.cfg", {data, size});
    for (const std::int32_t stage : {stageNumber::teen, stageNumber::adult}) {
        HeadText skin("before"), mesh("before");
        const int result = findNextStageHead(stage, "C001FClgt_amanda01", fuzzDirectory().c_str(), skin, mesh);
        promise(result == 0 || (skin == "before" && mesh == "before"), "nothing touched without a head");
        const bool isOfFile = file.find(skin) != file.npos && file.find(mesh) != file.npos;
        promise(result == -1 || (result == 0 && isOfFile), "a skin and a mesh of the file");
        promise(skin.size() <= 99 && mesh.size() <= 99, "the length of a field");
    }
    return 0;
}
