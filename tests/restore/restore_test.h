// A game with two neighborhoods, in "game", and restore points of it, in "points". The files aren't the game's; only
// their names matter.
#ifndef TESTS_RESTORE_RESTORE_TEST_H
#define TESTS_RESTORE_RESTORE_TEST_H

#include "restore/going_back.h"
#include "tests/support/temp_directory.h"

namespace fs = std::filesystem;

class RestoreTest : public testing::Test {
 public:
    RestoreTest() {
        files_.write(live, "the neighborhood");
        files_.write(ann, "123456789");
        files_.write("game/UserData/Houses/House01.iff", "a house");
        files_.write("game/UserData2/neighborhood.iff", "another neighborhood");
        files_.write("game/GameData/Skins/skin.skn", "outside");
    }

    // A minute later each time.
    MadePoint make(PointReason reason = PointReason::evening) {
        return makeRestorePoint(points(), game(), reason, nextMinute());
    }
    GoneBack goBackTo(const std::string& name, int neighborhood = allNeighborhoods) {
        return goBack(points(), listed(name), game(), neighborhood, nextMinute());
    }
    SYSTEMTIME nextMinute() {
        ++minute_;
        return {2026, 11, 0, 25, static_cast<WORD>(18 + minute_ / 60), static_cast<WORD>(minute_ % 60), 3, 250};
    }

    // As it is listed; without a name if it isn't.
    RestorePoint listed(const std::string& name) const {
        const std::vector<RestorePoint> all = listRestorePoints(points());
        const auto found = std::ranges::find(all, name, &RestorePoint::name);
        return found != all.end() ? *found : RestorePoint{};
    }
    RestorePoint point(const std::string& name) const {
        RestorePoint checked = listed(name);
        isWhole(points(), checked);
        return checked;
    }

    std::string points() const { return files_.path("points"); }
    std::string game() const { return files_.path("game") + "\\"; }

    // Bytes, time and mode of each file of the game but for the backups, by path.
    struct Whole {
        Bytes bytes;
        fs::file_time_type time;
        fs::perms mode;
        auto operator<=>(const Whole&) const = default;
        friend void PrintTo(const Whole& file, std::ostream* out) {
            *out << std::string(file.bytes.begin(), file.bytes.end()).substr(0, 20) << ' '
                 << file.time.time_since_epoch().count() << ' ' << static_cast<unsigned>(file.mode);
        }
    };
    std::map<std::string, Whole> whole() const {
        std::map<std::string, Whole> all;
        for (const auto& [name, bytes] : treeOf(files_.path("game"))) {
            if (name.find("/Backups/") != std::string::npos) continue;
            const fs::path path = files_.path("game/" + name);
            all[name] = {bytes, fs::last_write_time(path), fs::status(path).permissions()};
        }
        return all;
    }

 protected:
    TempDirectory files_;
    static constexpr const char* live = "game/UserData/neighborhood.iff";
    static constexpr const char* ann = "game/UserData/Characters/User00001.iff";

 private:
    int minute_ = 0;
};

#endif
