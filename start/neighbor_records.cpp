#include "start/neighbor_records.h"

#include <algorithm>
#include <string>

std::size_t nextTag(const Bytes& file, std::string_view tag, std::size_t from) {
    const auto begin = file.begin() + static_cast<std::ptrdiff_t>(std::min(from, file.size()));
    return static_cast<std::size_t>(std::search(begin, file.end(), tag.begin(), tag.end()) - file.begin());
}

std::size_t countSims(const Bytes& file, RecordFormats formats, std::size_t offset) {
    std::size_t count = 0;
    for (const RecordFormat& format : formats) {
        const std::string begin = std::string(format.marker).append(neighborRecord::namePrefix);
        const std::size_t longer = format.marker.size() - neighborRecord::marker.size();
        for (std::size_t at = nextTag(file, begin, 0); at < file.size(); at = nextTag(file, begin, at + 1)) {
            const std::size_t mode = at + longer + neighborRecord::version;
            const bool isSim = !format.version || (mode < file.size() && file[mode] != 0);
            if (isSim && at + longer + neighborRecord::size > offset) ++count;
        }
    }
    return count;
}
