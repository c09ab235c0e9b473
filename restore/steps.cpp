#include "restore/steps.h"

#include <algorithm>
#include <optional>
#include <set>

#include "platform/letter_case.h"

namespace {

// Walks along two lists sorted by path at once, and hands on each path with what the lists have for it.
template <typename First, typename Second, typename Take>
void walkBoth(const std::vector<First>& first, const std::vector<Second>& second, Take take) {
    auto one = first.begin();
    auto other = second.begin();
    while (one != first.end() || other != second.end()) {
        const bool hasOne = one != first.end() && (other == second.end() || one->path <= other->path);
        const bool hasOther = other != second.end() && (one == first.end() || other->path <= one->path);
        take(hasOne ? &*one : nullptr, hasOther ? &*other : nullptr);
        if (hasOne) ++one;
        if (hasOther) ++other;
    }
}

template <typename Now>
std::optional<FileStamp> stampOf(const Now* live) {
    return live != nullptr ? std::optional(live->stamp) : std::nullopt;
}

// What makes `live`, which may be null, the point's `file`; no value if it is that already.
template <typename Now, typename AreSame>
std::optional<Step::Kind> stepFrom(const Now* live, const PointFile& file, AreSame areSame) {
    if (live == nullptr) return Step::Kind::come;
    if (live->stamp.size != file.stamp.size || !areSame(*live, file)) return Step::Kind::replace;
    if (live->stamp != file.stamp) return Step::Kind::stamp;
    return std::nullopt;
}

// The way from the files of `now` to those of the point. `areSame` compares the bytes of two files of one size.
template <typename Now, typename AreSame>
Steps stepsBetween(const std::vector<Now>& now, const std::vector<PointFile>& point, int neighborhood,
                   AreSame areSame) {
    Steps steps;
    walkBoth(now, point, [&](const Now* live, const PointFile* file) {
        if (file != nullptr && isIn(neighborhood, file->path)) {
            const auto kind = stepFrom(live, *file, areSame);
            if (kind) steps.push_back({*kind, file->path, file, stampOf(live)});
        } else if (file == nullptr && live != nullptr && isIn(neighborhood, live->path)) {
            steps.push_back({Step::Kind::go, live->path, nullptr, stampOf(live)});
        }
    });
    return steps;
}

// Where the disk ignores case, a file can be there in another spelling. It is replaced, and must not go then.
void joinSpellings(const FileTree& live, Steps& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].kind != Step::Kind::come) continue;
        const auto id = live.idOf(steps[i].path);
        if (!id) continue;
        const auto other = std::ranges::find_if(
            steps, [&](const Step& step) { return step.kind == Step::Kind::go && live.idOf(step.path) == id; });
        if (other == steps.end()) continue;
        steps[i].kind = Step::Kind::replace;
        steps[i].found = other->found;
        if (static_cast<std::size_t>(other - steps.begin()) < i) --i;
        steps.erase(other);
    }
}

// A link to a file gives way to the point's file: what it leads to isn't the neighborhood's, nor are its time and mode.
void replaceLinks(const std::vector<LiveFile>& found, Steps& steps) {
    for (Step& step : steps) {
        if (step.kind != Step::Kind::stamp) continue;
        const auto file = std::ranges::lower_bound(found, step.path, {}, &LiveFile::path);
        if (file != found.end() && file->path == step.path && file->isLink) step.kind = Step::Kind::replace;
    }
}

}  // namespace

Steps stepsFromLive(GameComparison& comparison, const std::vector<LiveFile>& found, const RestorePoint& target,
                    int neighborhood) {
    Steps steps = stepsBetween(found, target.files, neighborhood, [&](const LiveFile& one, const PointFile& file) {
        return comparison.areSame(one, target.name + '/' + file.path);
    });
    joinSpellings(comparison.game(), steps);
    replaceLinks(found, steps);
    return steps;
}

Steps stepsFromPresent(const FileTree& points, const GameComparison& comparison, const std::vector<LiveFile>& found,
                       const RestorePoint& present, const RestorePoint& target, int neighborhood) {
    Steps steps =
        stepsBetween(present.files, target.files, neighborhood, [&](const PointFile& one, const PointFile& file) {
            const std::string path = present.name + '/' + one.path, targetPath = target.name + '/' + file.path;
            if (one.checksum != file.checksum) return false;
            return comparison.areKnownSame({one.path, one.stamp}, targetPath) ||
                   points.hasSameBytes(path, points, targetPath);
        });
    joinSpellings(comparison.game(), steps);
    replaceLinks(found, steps);
    return steps;
}

std::string swappedKind(const FileTree& live, const NeighborhoodFiles& found, const Steps& steps) {
    for (const Step& step : steps) {
        if (step.kind != Step::Kind::come) continue;
        if (live.idOf(step.path) && !live.stampOf(step.path)) {
            return "The game has a directory where the restore point has a file: " + FileTree::shown(step.path);
        }
        for (std::size_t slash = step.path.find('/'); slash != std::string::npos;
             slash = step.path.find('/', slash + 1)) {
            const std::string directory = step.path.substr(0, slash);
            const auto id = live.idOf(directory);
            if (!id) break;
            const bool isOwn = std::ranges::any_of(found.directories, [&](const std::string& one) {
                return one == directory || (equalInAnyCase(one, directory) && live.idOf(one) == id);
            });
            if (isOwn) continue;
            return "The game has a file or a link where the restore point has a directory: " +
                   FileTree::shown(directory);
        }
    }
    return {};
}

bool haveCommonPath(const Steps& one, const Steps& other) {
    std::set<std::string> paths;
    for (const Step& step : other) {
        paths.insert(lowered(step.path));
    }
    return std::ranges::any_of(one, [&](const Step& step) { return paths.contains(lowered(step.path)); });
}
