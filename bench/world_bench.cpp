// Reading: a neighborhood, all neighborhoods, a family with its character files.
#include <benchmark/benchmark.h>

#include "bench/large_installation.h"
#include "world/neighborhoods.h"

namespace {

std::string largeDirectory() {
    return std::string(largeSimsDirectory()) + "UserData";
}

void readNeighborhoodFile(benchmark::State& state) {
    const auto path = largeNeighborhoodFile();
    for (auto _ : state)
        benchmark::DoNotOptimize(readWhole(path));
}
BENCHMARK(readNeighborhoodFile)->Name("readNeighborhoodFile");

void loadNeighborhood(benchmark::State& state) {
    const std::string directory = largeDirectory();
    for (auto _ : state) {
        Neighborhood neighborhood;
        neighborhood.load(directory.c_str(), "neighborhood.iff");
        if (neighborhood.simCount() != 216) state.SkipWithError("the Sims weren't read");
    }
}
BENCHMARK(loadNeighborhood)->Name("loadNeighborhood");

void readCharacterFiles(benchmark::State& state) {
    const auto files = largeCharacterFiles();
    for (auto _ : state)
        for (const auto& file : files)
            benchmark::DoNotOptimize(readWhole(file));
}
BENCHMARK(readCharacterFiles)->Name("readCharacterFiles");

Family& largestFamily(Neighborhood& neighborhood) {
    Family* largest = neighborhood.family(0);
    for (std::int32_t i = 1; i < neighborhood.familyCount(); ++i)
        if (neighborhood.family(i)->tableSize() > largest->tableSize()) largest = neighborhood.family(i);
    return *largest;
}

void resolveLargestFamily(benchmark::State& state) {
    const std::string directory = largeDirectory();
    for (auto _ : state) {
        state.PauseTiming();
        auto neighborhood = std::make_unique<Neighborhood>();
        neighborhood->load(directory.c_str(), "neighborhood.iff");
        state.ResumeTiming();
        if (largestFamily(*neighborhood).memberCount() != 8) state.SkipWithError("the members weren't resolved");
        for (std::int32_t i = 0; i < neighborhood->simCount(); ++i)
            benchmark::DoNotOptimize(neighborhood->sim(i)->guid());
        state.PauseTiming();
        neighborhood.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(resolveLargestFamily)->Name("resolveLargestFamily");

void loadAll(benchmark::State& state) {
    const char* directory = manySimsDirectory(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        loadNeighborhoods(directory, ".");
        if (listedNeighborhoodCount() != state.range(0)) state.SkipWithError("not every neighborhood was read");
    }
}
BENCHMARK(loadAll)->Name("loadNeighborhoods")->Arg(1)->Arg(10)->Arg(100);

}  // namespace
