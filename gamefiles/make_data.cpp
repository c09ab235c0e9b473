// Writes the files that ship beside the program.
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "gamefiles/file_writing.h"
#include "gamefiles/skin_file.h"
#include "gamefiles/templates.h"

int main(int count, char** arguments) {
    constexpr int badUsage = 2;
    const std::string_view what = count == 3 ? arguments[1] : "";
    if (what != "famtemplate" && what != "skin") {
        std::fputs(
            "make_data famtemplate DIR   write the template of new households into DIR\n"
            "make_data skin DIR          write the skin that the game's GameData/Skins must have into DIR\n",
            stderr);
        return badUsage;
    }
    const std::filesystem::path directory = arguments[2];
    const bool written = what == "skin" ? writeFile(directory / packageSkinName, packageSkin())
                                        : writeFile(directory / "famtemplate", makeFamilyTemplate());
    if (!written) std::fprintf(stderr, "make_data: can't write into %s\n", arguments[2]);
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
