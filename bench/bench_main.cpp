#include <benchmark/benchmark.h>

#include "bench/ratio_reporter.h"
#include "platform/win32.h"

// Each figure is the median of several repetitions, taken in turns, so that a change of the machine's speed meets all
// alike.
int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    std::vector<char*> arguments(__argv, __argv + __argc);
    char repetitions[] = "--benchmark_repetitions=9";
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    char aggregates[] = "--benchmark_report_aggregates_only=true";
    char shorter[] = "--benchmark_min_time=0.1";
    arguments.insert(arguments.begin() + 1, {repetitions, interleaved, aggregates, shorter});
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
