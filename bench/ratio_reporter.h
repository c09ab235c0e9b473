// Prints the usual table, and then the ratios of README.md: the program's time over that of the bare work, in one run.
#ifndef BENCH_RATIO_REPORTER_H
#define BENCH_RATIO_REPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>

class RatioReporter : public benchmark::ConsoleReporter {
 public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

 private:
    std::map<std::string, double> medians_;  // nanoseconds by the benchmark's name
};

#endif
