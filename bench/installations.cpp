#include "bench/installations.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>

#include "gamefiles/file_writing.h"
#include "gamefiles/skin_file.h"
#include "sample/fact_template.h"
#include "sample/installation.h"

namespace fs = std::filesystem;

namespace {

class Installations {
 public:
    Installations() : path_(fs::temp_directory_path() / ("tidewright-bench-" + std::to_string(getpid()))) {
        writeLargeInstallation(large(), 1);
        writeInstallation(sample());
        fs::copy(game() / "UserData", saved(), fs::copy_options::recursive);
        fs::create_directory(tools());
        if (!writeTemplates(tools()) || !writeFile(tools() / "skinsets.cfg", "TEENAGER=\n")) std::abort();
        const fs::path skin = gameDirectory(sample()) / "GameData/Skins" / packageSkinName;
        if (!writeFile(skin, packageSkin())) std::abort();
        setenv("WINEPREFIX", large().c_str(), 1);
    }
    Installations(const Installations&) = delete;
    Installations& operator=(const Installations&) = delete;
    ~Installations() { fs::remove_all(path_); }

    fs::path large() const { return path_ / "one"; }
    fs::path sample() const { return path_ / "sample"; }
    fs::path tools() const { return path_ / "tools"; }
    fs::path game() const { return gameDirectory(large()); }
    fs::path saved() const { return path_ / "saved"; }
    fs::path many(int count) const { return path_ / std::to_string(count); }

 private:
    fs::path path_;
};

Installations& installations() {
    static Installations only;
    return only;
}

void linkNeighborhood(const fs::path& from, const fs::path& to) {
    fs::create_directories(to);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::create_hard_links);
}

}  // namespace

const char* largeSimsDirectory() {
    installations();
    return "C:\\Program Files (x86)\\Maxis\\The Sims\\";
}

fs::path largeNeighborhoodDirectory() {
    return installations().game() / "UserData";
}

fs::path savedNeighborhoodDirectory() {
    return installations().saved();
}

const char* manySimsDirectory(int count) {
    static std::map<int, std::string> made;
    std::string& directory = made[count];
    if (!directory.empty()) return directory.c_str();
    for (int number = 1; number <= count; ++number) {
        const std::string name = number == 1 ? "UserData" : "UserData" + std::to_string(number);
        linkNeighborhood(largeNeighborhoodDirectory(), installations().many(count) / name);
    }
    directory = installations().many(count).string() + "\\";
    return directory.c_str();
}

fs::path largeNeighborhoodFile() {
    return largeNeighborhoodDirectory() / "Neighborhood.iff";
}

fs::path largePrefix() {
    return installations().large();
}

fs::path samplePrefix() {
    return installations().sample();
}

fs::path toolDirectory() {
    return installations().tools();
}

std::vector<fs::path> largeCharacterFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(largeNeighborhoodDirectory() / "Characters")) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    return files;
}

std::size_t readWhole(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) std::abort();
    struct stat status {};
    fstat(file, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    const auto bytes = std::make_unique_for_overwrite<char[]>(size);
    const ssize_t got = read(file, bytes.get(), size);
    close(file);
    if (got != status.st_size) std::abort();
    return size;
}

std::int64_t sizesTogether(const std::vector<fs::path>& files) {
    const int directory = open(files.front().parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    std::int64_t sum = 0;
    for (const auto& file : files) {
        struct stat status {};
        const char* const name = file.c_str() + file.native().rfind('/') + 1;
        if (fstatat(directory, name, &status, 0) != 0) std::abort();
        sum += status.st_size;
    }
    close(directory);
    return sum;
}

void copyPlainly(const fs::path& from, const fs::path& to, bool durable) {
    const int source = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (source < 0) std::abort();
    const int target = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    static std::array<char, 16'000> buffer;
    for (ssize_t got = 0; (got = read(source, buffer.data(), buffer.size())) > 0;) {
        if (write(target, buffer.data(), static_cast<std::size_t>(got)) != got) std::abort();
    }
    if (durable) fsync(target);
    close(source);
    close(target);
}
