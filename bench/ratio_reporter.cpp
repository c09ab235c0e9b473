#include "bench/ratio_reporter.h"

#include <cstdio>

namespace {

const struct {
    const char* what;
    const char* program;
    const char* bare;
} ratios[] = {
    {"reading a neighborhood / one read of its file and one fstatat for each Sim", "loadNeighborhood",
     "readNeighborhoodFileAndSizes"},
    {"resolving the last family / reading all character files whole", "resolveLastFamily", "readCharacterFiles"},
    {"a save with one changed Sim / copying the same bytes as often, as durably", "saveOneSim",
     "copySavedBytesDurably"},
    {"a save with one changed Sim / copying the same bytes as often", "saveOneSim", "copySavedBytes"},
    {"a restore point of an unchanged game / reading the same files", "makeUnchangedPoint", "readGame"},
    {"going back with one changed Sim / copying the files that differ, as durably", "goBackOneSim", "copyOneSimsFiles"},
    {"listing 30 restore points / reading their directories", "listPoints", "readDirectoriesOfPoints"},
    {"from the start to the main window / to a plain Qt program's with the same contents", "startProgram/manual_time",
     "startBareWindow/manual_time"},
    {"10 neighborhoods / 1", "loadNeighborhoods/10", "loadNeighborhoods/1"},
    {"100 neighborhoods / 1", "loadNeighborhoods/100", "loadNeighborhoods/1"},
};

}  // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.aggregate_name == "median") medians_[run.run_name.str()] = run.GetAdjustedRealTime();
    }
}

void RatioReporter::Finalize() {
    for (const auto& ratio : ratios) {
        const double bare = medians_[ratio.bare];
        if (bare > 0) std::printf("%-76s %8.2f\n", ratio.what, medians_[ratio.program] / bare);
    }
}
