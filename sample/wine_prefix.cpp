#include "sample/wine_prefix.h"

#include <string_view>
#include <system_error>

#include "gamefiles/file_writing.h"

namespace {

namespace fs = std::filesystem;

constexpr std::string_view markerName = ".tidewright-sample";

constexpr std::string_view systemRegistry =
    "WINE REGISTRY Version 2\n"
    ";; All keys relative to REGISTRY\\\\Machine\n"
    "\n"
    "#arch=win64\n"
    "\n"
    "[Software\\\\Classes\\\\.iff] 1015804800\n"
    "#time=1c1c0a2a6cf0000\n"
    "@=\"ifffile\"\n"
    "\n"
    "[Software\\\\Wow6432Node\\\\Harbor Light\\\\Tide Table] 1015804800\n"
    "#time=1c1c0a2a6cf0000\n"
    "\"SIMS_DATA\"=\"C:\\\\nowhere\"\n"
    "\"Title\"=\"\\\"High\\\" and low\"\n"
    "\"Years\"=dword:00000002\n"
    "\n"
    "[Software\\\\Wow6432Node\\\\Maxis\\\\The Sims] 1015804800\n"
    "#time=1c1c0a2a6cf0000\n"
    "\"InstallPath\"=\"C:\\\\Program Files (x86)\\\\Maxis\\\\The Sims\"\n"
    "\"SIMS_DATA\"=\"C:\\\\Program Files (x86)\\\\Maxis\\\\The Sims\"\n"
    "\"Version\"=\"1.2\"\n"
    "\n"
    "[System\\\\CurrentControlSet\\\\Control\\\\ProductOptions] 1015804800\n"
    "#time=1c1c0a2a6cf0000\n"
    "\"ProductType\"=\"WinNT\"\n";

bool emptyOrRefuse(const fs::path& prefix) {
    if (fs::exists(prefix) && !fs::is_empty(prefix) && !fs::exists(prefix / markerName)) return false;
    fs::remove_all(prefix);
    fs::create_directories(prefix);
    return writeFile(prefix / markerName, "Made by make_sample, which empties this directory when it runs again.\n");
}

}  // namespace

fs::path gameDirectory(const fs::path& prefix) {
    return prefix / "drive_c" / "Program Files (x86)" / "Maxis" / "The Sims";
}

bool makeWinePrefix(const fs::path& prefix) {
    if (!emptyOrRefuse(prefix)) return false;
    const fs::path game = gameDirectory(prefix);
    fs::create_directories(game / "GameData" / "Skins");
    fs::create_directories(game / "ExpansionPack4");
    fs::create_directories(prefix / "dosdevices");
    // Fails on Windows, where the tests use the game's directory without a prefix.
    std::error_code ignored;
    fs::create_directory_symlink(fs::path("..") / "drive_c", prefix / "dosdevices" / "c:", ignored);
    return writeFile(prefix / "system.reg", systemRegistry);
}
