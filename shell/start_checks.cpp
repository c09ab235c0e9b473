#include "shell/start_checks.h"

#include "platform/fixed_text.h"
#include "world/game_check.h"
#include "world/program_files.h"

int checkStart(DirectoryText& simsDirectory, const char* toolDirectory) {
    if (const int refusal = checkGame(simsDirectory); refusal != 0) return refusal;
    if (!hasBytes(joined<PathText>(simsDirectory, installedSkin).c_str())) {
        const auto text = joined<FixedText<399>>(
            "Tidewright appears to have been installed incorrectly.  It must be unzipped to your Sims directory.\n\n"
            "Your Sims directory appears to be\n",
            simsDirectory);
        return refuseStart(text.c_str(), "Installation Problem", exitCode::badInstallation);
    }
    // If the path is too long, the program couldn't open its files later, and no save would reach the disk.
    if (*toolDirectory == '\0' || !hasBytes(skinSetsName)) {
        return refuseStart(
            "Tidewright cannot find its config files.  "
            "It must be in the same directory as its skin config file and template files.",
            "Missing Config Files", exitCode::missingSkinSets);
    }
    return 0;
}
