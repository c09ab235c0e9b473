#include "restore/point_words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iterator>

#include "platform/last_written.h"
#include "platform/letter_case.h"
#include "restore/going_back.h"
#include "restore/happenings.h"
#include "restore/point_files.h"
#include "ui/sentence_parts.h"

namespace {

constexpr std::array<const char*, 12> months = {"January", "February", "March",     "April",   "May",      "June",
                                                "July",    "August",   "September", "October", "November", "December"};

std::string monthWord(unsigned month) {
    return month >= 1 && month <= months.size() ? months[month - 1] : "";
}

SYSTEMTIME localTime(const SYSTEMTIME& utc) {
    SYSTEMTIME local = utc;
    SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    return local;
}

// Days since a day long ago, by the calendar.
long dayNumber(const SYSTEMTIME& time) {
    const long year = time.wMonth > 2 ? time.wYear : time.wYear - 1L;
    const long month = time.wMonth > 2 ? time.wMonth - 3L : time.wMonth + 9L;  // March is 0
    return 365 * year + year / 4 - year / 100 + year / 400 + (153 * month + 2) / 5 + time.wDay;
}

std::size_t housesIn(const std::vector<std::string>& paths) {
    return static_cast<std::size_t>(std::ranges::count_if(
        paths, [](const std::string& path) { return lowered(path).find("/houses/") != std::string::npos; }));
}

std::string filesLine(const PointComparison& comparison) {
    const std::size_t changed = comparison.changed.size() + comparison.stamped.size();
    std::string line = counted(changed, "file", "files") + " will change, " + std::to_string(comparison.toGo.size()) +
                       " will go and " + std::to_string(comparison.toCome.size()) + " will come";
    const std::size_t houses = housesIn(comparison.changed) + housesIn(comparison.toGo) + housesIn(comparison.toCome);
    if (houses > 0) line += ", among them " + counted(houses, "house", "houses");
    return line + '.';
}

// The last day on which the game wrote one of these files of the neighborhood; empty if it is unknown.
std::string lastDay(const std::string& simsDirectory, const std::vector<std::string>& paths, int neighborhood) {
    std::string last;
    for (std::string path : paths) {
        if (neighborhoodOf(path) != neighborhood) continue;
        std::ranges::replace(path, '/', '\\');
        last = std::max(last, lastWritten(path.insert(0, simsDirectory).c_str()));
    }
    return dayWords(last);
}

std::vector<std::string> playedLines(const std::string& simsDirectory, const std::vector<std::string>& differing) {
    std::vector<std::string> lines;
    for (const int number : playedNeighborhoods(differing)) {
        const std::string day = lastDay(simsDirectory, filesOfPlaying(differing), number);
        lines.push_back("Neighborhood " + std::to_string(number) + " was played after that" +
                        (day.empty() ? "" : ", on " + day) + ": this will be undone, too.");
    }
    return lines;
}

std::string nothingDiffers(const RestorePoint& point, int neighborhood) {
    const bool isMissing = neighborhood != allNeighborhoods && std::ranges::none_of(point.files, [&](const auto& file) {
                               return neighborhoodOf(file.path) == neighborhood;
                           });
    if (!isMissing) return "Nothing has changed since: there is nothing to go back to.";
    return "Neither the restore point nor the game has a Neighborhood " + std::to_string(neighborhood) + '.';
}

std::string titleOf(const RestorePoint& point, const SYSTEMTIME& now, bool withSeconds) {
    const std::string when = point.time.wYear != 0 ? whenWords(point.time, now, withSeconds) : point.name;
    const bool isPlain = !point.damage.empty() || point.reason == PointReason::evening;
    return isPlain ? when : when + " (" + std::string(reasonText(point.reason)) + ')';
}

}  // namespace

std::string whenWords(const SYSTEMTIME& time, const SYSTEMTIME& now, bool withSeconds) {
    const SYSTEMTIME local = localTime(time), today = localTime(now);
    std::array<char, 32> clock{};
    std::snprintf(clock.data(), clock.size(), withSeconds ? " %02u:%02u:%02u" : " %02u:%02u", local.wHour,
                  local.wMinute, local.wSecond);
    const long daysAgo = dayNumber(today) - dayNumber(local);
    if (daysAgo == 0) return std::string("today") + clock.data();
    if (daysAgo == 1) return std::string("yesterday") + clock.data();
    const std::string year = local.wYear != today.wYear ? ' ' + std::to_string(local.wYear) : std::string();
    return std::to_string(local.wDay) + ' ' + monthWord(local.wMonth) + year + clock.data();
}

std::string dayWords(std::string_view lastWritten) {
    unsigned month = 0, day = 0;
    if (lastWritten.size() < 10) return {};
    std::from_chars(lastWritten.data() + 5, lastWritten.data() + 7, month);
    std::from_chars(lastWritten.data() + 8, lastWritten.data() + 10, day);
    const std::string word = monthWord(month);
    return word.empty() || day == 0 ? std::string() : std::to_string(day) + ' ' + word;
}

std::string utcText(const SYSTEMTIME& time) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04u-%02u-%02u %02u:%02u:%02u", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    return text.data();
}

std::string_view reasonText(PointReason reason) {
    switch (reason) {
        case PointReason::byHand:
            return "made by hand";
        case PointReason::goingBack:
            return "made before going back";
        default:
            return "made before an evening";
    }
}

std::vector<std::string> pointTitles(const std::vector<RestorePoint>& points, const SYSTEMTIME& now) {
    std::vector<std::string> titles, exact;
    for (const RestorePoint& point : points) {
        titles.push_back(titleOf(point, now, false));
        exact.push_back(titleOf(point, now, true));
    }
    const std::vector<std::string> plain = titles;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (std::ranges::count(plain, plain[i]) > 1) titles[i] = exact[i];
        const auto older = std::count(exact.begin() + static_cast<std::ptrdiff_t>(i) + 1, exact.end(), exact[i]);
        if (older > 0) titles[i] += " (" + std::to_string(older + 1) + ')';
    }
    return titles;
}

std::vector<std::string> comparisonLines(const std::string& pointsDirectory, const RestorePoint& point,
                                         const std::string& simsDirectory, int neighborhood, bool* isSame) {
    std::string error;
    const auto comparison = compareWithPoint(pointsDirectory, point, simsDirectory, neighborhood, error);
    if (isSame != nullptr) *isSame = false;
    if (!comparison) return {error};
    std::vector<std::string> differing = comparison->changed;
    std::ranges::copy(comparison->toCome, std::back_inserter(differing));
    std::ranges::copy(comparison->toGo, std::back_inserter(differing));
    if (differing.empty() && comparison->stamped.empty()) {
        if (isSame != nullptr) *isSame = true;
        return {nothingDiffers(point, neighborhood)};
    }
    const NeighborhoodCounts then = countsIn(pointsDirectory + '\\' + point.name + '\\', neighborhood);
    const NeighborhoodCounts now = countsIn(simsDirectory, neighborhood);
    std::vector<std::string> lines = {"Families: " + std::to_string(then.families) + " then, " +
                                          std::to_string(now.families) + " now. Sims: " + std::to_string(then.sims) +
                                          " then, " + std::to_string(now.sims) + " now.",
                                      filesLine(*comparison)};
    std::ranges::copy(playedLines(simsDirectory, differing), std::back_inserter(lines));
    return lines;
}

std::vector<std::string> pointEntries(const std::string& pointsDirectory, const std::vector<RestorePoint>& points,
                                      const std::string& simsDirectory, const SYSTEMTIME& now) {
    std::vector<std::string> entries;
    const std::vector<std::string> titles = pointTitles(points, now);
    const RestorePoint* newer = nullptr;  // the next point of the game that is whole
    for (const RestorePoint& point : points) {
        std::string entry = titles[entries.size()];
        if (point.damage.empty() && isSameGame(point.simsDirectory, gameOf(simsDirectory))) {
            const std::string directory = pointsDirectory + '\\' + point.name + '\\';
            std::string error;
            if (newer != nullptr) {
                entry += " - " + happeningsBetween(directory, pointsDirectory + '\\' + newer->name + '\\',
                                                   differingFiles(point, *newer));
            } else if (const auto since =
                           compareWithPoint(pointsDirectory, point, simsDirectory, allNeighborhoods, error)) {
                std::vector<std::string> paths = since->changed;
                std::ranges::copy(since->toCome, std::back_inserter(paths));
                std::ranges::copy(since->toGo, std::back_inserter(paths));
                entry += " - " + happeningsBetween(directory, simsDirectory, paths);
            }
            newer = &point;
        } else {
            entry += point.damage.empty() ? " (of another game)" : " (not whole)";
        }
        entries.push_back(entry);
    }
    return entries;
}
