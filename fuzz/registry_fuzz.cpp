// Wine's registry file, read for the game's key.
#include "fuzz/fuzz_files.h"
#include "platform/native/registry_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    std::vector<RegistryValue> values;
    const bool isThere = readRegistryKey(file, "Software\\Maxis\\The Sims", values);
    promise(isThere || values.empty(), "values of a key that is there");
    for (const RegistryValue& value : values) {
        promise(value.name.size() + value.text.size() <= size, "a value no longer than the file");
    }
    return 0;
}
