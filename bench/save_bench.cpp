// Saving one changed Sim, against copying the same bytes as often: the neighborhood file and the character file each go
// to their temporary name, to their backup and to their live name.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/installations.h"
#include "world/neighborhoods.h"

namespace fs = std::filesystem;

namespace {

void saveOneSim(benchmark::State& state) {
    const fs::path tools = toolDirectory();
    Neighborhood neighborhood;
    neighborhood.load(savedNeighborhoodDirectory().c_str(), "neighborhood.iff");
    Sim& sim = *neighborhood.sim(0);
    sim.guid();
    sim.name();
    sim.bodyStrings();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        sim.setStage(stageNumber::adult, nullptr);
        state.ResumeTiming();
        neighborhood.save(tools.c_str());
        if (sim.recordDirty() || neighborhood.isDirty()) state.SkipWithError("the Sim wasn't saved");
    }
}
BENCHMARK(saveOneSim)->Name("saveOneSim");

void copySavedBytes(benchmark::State& state, bool durably) {
    const fs::path directory = largeNeighborhoodDirectory();
    const fs::path neighborhood = largeNeighborhoodFile(), character = toolDirectory() / "Template.iff";
    for ([[maybe_unused]] auto _ : state) {
        for (const auto& file : {neighborhood, character}) {
            copyPlainly(file, directory / "first", durably);
            copyPlainly(file, directory / "second", durably);
            copyPlainly(file, directory / "third", durably);
        }
    }
    for (const char* name : {"first", "second", "third"}) {
        fs::remove(directory / name);
    }
}
BENCHMARK_CAPTURE(copySavedBytes, plain, false)->Name("copySavedBytes");
BENCHMARK_CAPTURE(copySavedBytes, durable, true)->Name("copySavedBytesDurably");

}  // namespace
