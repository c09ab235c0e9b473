// Fuzzes the search in Wine's registry file for the game's directory.
#include <cstdlib>

#include "fuzz/fuzz_files.h"
#include "platform/letter_case.h"
#include "platform/native/registry/registry_file.h"
#include "world/sims_directory.h"

namespace {

constexpr std::size_t longestDirectory = 99;

// The directory in the file, or "" if it has none: the last value of that name. The section of the 32-bit programs
// takes precedence.
std::string directoryIn(std::string_view file) {
    std::string directory;
    for (const char* key : {"Software\\Maxis\\The Sims", "Software\\Wow6432Node\\Maxis\\The Sims"}) {
        std::vector<RegistryValue> values;
        const bool isThere = readRegistryKey(file, key, values);
        promise(isThere || values.empty(), "values of a key that is there");
        for (const RegistryValue& value : values) {
            promise(value.name.size() + value.text.size() <= file.size(), "a value no longer than the file");
            if (equalInAnyCase(value.name, "SIMS_DATA")) directory = value.text;
        }
    }
    return directory;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const int isSet = setenv("WINEPREFIX", fuzzDirectory().c_str(), 1);
    promise(isSet == 0, "a prefix");
    writeFuzzFile("system.reg", {data, size});
    const std::string expected = directoryIn({reinterpret_cast<const char*>(data), size});
    DirectoryText directory("before");
    if (findSimsDirectory(directory) == 0) {
        promise(expected.size() <= longestDirectory, "a longer directory refused");
        promise(directory == std::string_view(expected.c_str()), "the file's directory");
    } else {
        promise(directory == "before", "nothing touched without a directory");
        promise(expected.empty() || expected.size() > longestDirectory, "a directory found");
    }
    return 0;
}
