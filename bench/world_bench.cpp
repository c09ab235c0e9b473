// Reading: a neighborhood, all neighborhoods, a family with its character files.
#include <benchmark/benchmark.h>

#include "bench/installations.h"
#include "world/neighborhoods.h"

namespace {

std::string largeDirectory() {
    return std::string(largeSimsDirectory()) + "UserData";
}

// What reading a neighborhood can't do without: its file's bytes, and the size of a character file for each Sim.
void readNeighborhoodFileAndSizes(benchmark::State& state) {
    const auto path = largeNeighborhoodFile();
    const auto files = largeCharacterFiles();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(readWhole(path));
        benchmark::DoNotOptimize(sizesTogether(files));
    }
}
BENCHMARK(readNeighborhoodFileAndSizes)->Name("readNeighborhoodFileAndSizes");

void loadNeighborhood(benchmark::State& state) {
    const std::string directory = largeDirectory();
    for ([[maybe_unused]] auto _ : state) {
        Neighborhood neighborhood;
        neighborhood.load(directory.c_str(), "neighborhood.iff");
        if (neighborhood.simCount() != 216) state.SkipWithError("the Sims weren't read");
    }
}
BENCHMARK(loadNeighborhood)->Name("loadNeighborhood");

void readCharacterFiles(benchmark::State& state) {
    const auto files = largeCharacterFiles();
    for ([[maybe_unused]] auto _ : state) {
        for (const auto& file : files) {
            benchmark::DoNotOptimize(readWhole(file));
        }
    }
}
BENCHMARK(readCharacterFiles)->Name("readCharacterFiles");

// The members of the last family are the last Sims, so this takes the GUID of every Sim.
void resolveLastFamily(benchmark::State& state) {
    const std::string directory = largeDirectory();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        auto neighborhood = std::make_unique<Neighborhood>();
        neighborhood->load(directory.c_str(), "neighborhood.iff");
        Family& family = *neighborhood->family(neighborhood->familyCount() - 1);
        state.ResumeTiming();
        const std::int32_t members = family.memberCount();
        state.PauseTiming();
        if (members == 0 || family.member(members - 1) == nullptr) state.SkipWithError("a member wasn't resolved");
        neighborhood.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(resolveLastFamily)->Name("resolveLastFamily");

void loadAll(benchmark::State& state) {
    const char* directory = manySimsDirectory(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        loadNeighborhoods(directory, ".");
        if (listedNeighborhoodCount() != state.range(0)) state.SkipWithError("not every neighborhood was read");
    }
}
BENCHMARK(loadAll)->Name("loadNeighborhoods")->Arg(1)->Arg(10)->Arg(100);

}  // namespace
