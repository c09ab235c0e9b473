// Restore points of the large neighborhood, against reading and copying the same files.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "bench/installations.h"
#include "restore/going_back.h"

namespace fs = std::filesystem;

namespace {

constexpr SYSTEMTIME firstEvening{2026, 11, 0, 1, 12, 0, 0, 0};

SYSTEMTIME evening(int number) {
    SYSTEMTIME time = firstEvening;
    time.wDay = static_cast<WORD>(number);
    return time;
}

// A game of its own, and the points of it.
class Points {
 public:
    explicit Points(const char* name)
        : path_(largeNeighborhoodDirectory().parent_path().parent_path() / name),
          points((path_ / "points").string()),
          game((path_ / "game").string() + "\\") {
        fs::create_directories(path_ / "game");
        fs::copy(largeNeighborhoodDirectory(), path_ / "game/UserData", fs::copy_options::recursive);
        make(1);
    }
    Points(const Points&) = delete;
    Points& operator=(const Points&) = delete;
    ~Points() { fs::remove_all(path_); }

    std::string make(int number) const {
        return makeRestorePoint(points, game, PointReason::evening, evening(number)).name;
    }

    // As after a save of one Sim.
    void changeOneSim() const {
        for (const fs::path& file : {path_ / "game/UserData/Neighborhood.iff", characterFile()}) {
            std::FILE* const stream = std::fopen(file.c_str(), "r+b");
            std::fputc('x', stream);
            std::fclose(stream);
        }
    }

    fs::path characterFile() const {
        return path_ / "game/UserData/Characters" / largeCharacterFiles().front().filename();
    }

 private:
    fs::path path_;

 public:
    const std::string points, game;
};

std::vector<fs::path> allFiles(const fs::path& directory) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    return files;
}

void readGame(benchmark::State& state) {
    const auto files = allFiles(largeNeighborhoodDirectory());
    for ([[maybe_unused]] auto _ : state) {
        for (const fs::path& file : files) {
            benchmark::DoNotOptimize(readWhole(file));
        }
    }
}
BENCHMARK(readGame)->Name("readGame");

void makeUnchangedPoint(benchmark::State& state) {
    const Points points("unchanged");
    for ([[maybe_unused]] auto _ : state) {
        const std::string name = points.make(2);
        state.PauseTiming();
        if (name.empty() || !deleteRestorePoint(points.points, name)) state.SkipWithError("no point was made");
        state.ResumeTiming();
    }
}
BENCHMARK(makeUnchangedPoint)->Name("makeUnchangedPoint");

void copyOneSimsFiles(benchmark::State& state) {
    const fs::path to = largeNeighborhoodDirectory().parent_path();
    const fs::path character = largeCharacterFiles().front();
    for ([[maybe_unused]] auto _ : state) {
        copyPlainly(largeNeighborhoodFile(), to / "copy1", true);
        copyPlainly(character, to / "copy2", true);
    }
    fs::remove(to / "copy1");
    fs::remove(to / "copy2");
}
BENCHMARK(copyOneSimsFiles)->Name("copyOneSimsFiles");

void goBackOneSim(benchmark::State& state) {
    const Points points("back");
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        points.changeOneSim();
        const RestorePoint point = listRestorePoints(points.points).back();
        state.ResumeTiming();
        const GoneBack gone = goBack(points.points, point, points.game, allNeighborhoods, evening(3));
        state.PauseTiming();
        if (!gone.error.empty()) state.SkipWithError(gone.error.c_str());
        deleteRestorePoint(points.points, gone.present.name);
        state.ResumeTiming();
    }
}
BENCHMARK(goBackOneSim)->Name("goBackOneSim");

const Points& monthOfPoints() {
    static const Points& points = *[] {
        auto* const made = new Points("month");
        for (int number = 2; number <= 30; ++number) {
            made->changeOneSim();
            made->make(number);
        }
        return made;
    }();
    return points;
}

void readDirectoriesOfPoints(benchmark::State& state) {
    const Points& points = monthOfPoints();
    std::vector<std::string> directories;
    for (const auto& entry : fs::recursive_directory_iterator(points.points)) {
        if (entry.is_directory()) directories.push_back(entry.path().string());
    }
    for ([[maybe_unused]] auto _ : state) {
        for (const std::string& directory : directories) {
            DIR* const opened = opendir(directory.c_str());
            while (readdir(opened) != nullptr) {
            }
            closedir(opened);
        }
    }
}
BENCHMARK(readDirectoriesOfPoints)->Name("readDirectoriesOfPoints");

// The room that they take goes with it, as multiples of one point's.
void listPoints(benchmark::State& state) {
    const Points& points = monthOfPoints();
    for ([[maybe_unused]] auto _ : state) {
        auto all = listRestorePoints(points.points);
        checkPoints(points.points, all);
        if (all.size() != 30 || !all.front().damage.empty()) state.SkipWithError("not every point is whole");
    }
    std::set<ino_t> counted;
    double bytes = 0, onePoint = 0;
    for (const fs::path& file : allFiles(points.points)) {
        struct stat status {};
        stat(file.c_str(), &status);
        if (counted.insert(status.st_ino).second) bytes += static_cast<double>(status.st_blocks) * 512;
    }
    for (const fs::path& file : allFiles(fs::path(points.game.substr(0, points.game.size() - 1)))) {
        struct stat status {};
        stat(file.c_str(), &status);
        onePoint += static_cast<double>(status.st_blocks) * 512;
    }
    state.counters["points' room / one point's"] = bytes / onePoint;
}
BENCHMARK(listPoints)->Name("listPoints");

}  // namespace
