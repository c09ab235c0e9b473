#include "restore/way.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "platform/letter_case.h"
#include "platform/part_names.h"
#include "restore/point_files.h"
#include "world/paths.h"

namespace {

bool isNeighborhoodFile(const Step& step) {
    return equalInAnyCase(step.path.substr(step.path.find('/') + 1), neighborhoodFileName);
}

}  // namespace

Way::Way(const FileTree& points, const FileTree& live, const RestorePoint& target, Steps steps)
    : points_(points), live_(live), target_(target), steps_(std::move(steps)) {
    std::stable_partition(steps_.begin(), steps_.end(), [](const Step& step) { return step.kind != Step::Kind::go; });
    const auto goes = std::ranges::find(steps_, Step::Kind::go, &Step::kind);
    std::stable_partition(steps_.begin(), goes, [](const Step& step) { return !isNeighborhoodFile(step); });
    parts_.resize(steps_.size());
}

Way::~Way() {
    for (const std::string& part : parts_) {
        if (!part.empty()) live_.removeFile(part);
    }
}

bool Way::prepare(std::string& error) {
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        const Step& step = steps_[i];
        const bool needsPart = step.kind == Step::Kind::replace || step.kind == Step::Kind::come;
        if (needsPart && !makePart(*step.file, parts_[i], error)) return false;
    }
    if (areFew() || syncDisks()) return true;
    error = failureOf("The disk doesn't take the files of", target_.name);
    return false;
}

bool Way::take(std::string& error) {
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        const Step& step = steps_[i];
        // Nothing is lost by a time or mode of its own.
        if (step.kind != Step::Kind::stamp && live_.stampOf(step.path) != step.found) {
            error = "Another program has changed the file: " + FileTree::shown(step.path) + '.';
            return false;
        }
        if (takeStep(step, parts_[i])) continue;
        error = failureOf("The file can't be replaced or deleted", step.path);
        return false;
    }
    if (areNamesAlone() ? syncDirectories() : syncDisks()) return true;
    error = failureOf("The disk doesn't take the files of", target_.name);
    return false;
}

// Whether all that is left to sync are the names in the files' directories.
bool Way::areNamesAlone() const {
    return areFew() && !hasNewDirectory_ && std::ranges::find(steps_, Step::Kind::stamp, &Step::kind) == steps_.end();
}

bool Way::syncDirectories() const {
    std::set<std::string> directories;
    for (const Step& step : steps_) {
        directories.insert(step.path.substr(0, step.path.rfind('/')));
    }
    return std::ranges::all_of(directories, [&](const std::string& one) { return live_.sync(one); });
}

// Each neighborhood can be a link to another disk.
bool Way::syncDisks() const {
    std::set<std::string> directories;
    for (const Step& step : steps_) {
        directories.insert(step.path.substr(0, step.path.find('/')));
    }
    return std::ranges::all_of(directories, [&](const std::string& one) { return live_.syncAll(one); });
}

bool Way::makePart(const PointFile& file, std::string& part, std::string& error) {
    const std::string directory = file.path.substr(0, file.path.rfind('/'));
    hasNewDirectory_ = hasNewDirectory_ || !live_.idOf(directory);
    if (!live_.makeDirectories(directory)) {
        error = failureOf("The directory can't be made", directory);
        return false;
    }
    std::optional<std::uint32_t> checksum;
    const std::string from = target_.name + '/' + file.path;
    // A part may be there that couldn't be cleared away.
    for (int number = 0; number < partNumbers && !checksum; ++number) {
        const std::string name = partName(file.path, number);
        if (live_.stampOf(name)) continue;
        checksum = copyFile(points_, from, live_, name, file.stamp,
                            areFew() ? FileTree::Sync::now : FileTree::Sync::later, error);
        if (!checksum) return false;
        part = name;
    }
    if (checksum == file.checksum) return true;
    error = "The restore point isn't whole: " + FileTree::shown(file.path);
    return false;
}

bool Way::takeStep(const Step& step, std::string& part) const {
    switch (step.kind) {
        case Step::Kind::stamp:
            return live_.setTimeAndMode(step.path, step.file->stamp);
        case Step::Kind::go:
            return live_.removeFile(step.path);
        default:
            break;
    }
    if (!live_.replace(part, step.path)) return false;
    part.clear();
    return true;
}
