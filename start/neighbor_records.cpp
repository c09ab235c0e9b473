#include "start/neighbor_records.h"

#include <algorithm>

#include "world/neighborhood_layout.h"

namespace {

using namespace std::string_view_literals;

// Marker and the first letters of the name. In later editions there is one more word between the two, and all that
// follows is as much further behind.
constexpr auto baseBegin = "\x01\x00\x00\x00\x04\x00\x00\x00user"sv;
constexpr auto laterBegin = "\x01\x00\x00\x00\x0A\x00\x00\x00\x09\x00\x00\x00user"sv;
static_assert(baseBegin.starts_with(neighborRecord::marker) && baseBegin.ends_with(neighborRecord::namePrefix));

}  // namespace

std::size_t nextTag(const Bytes& file, std::string_view tag, std::size_t from) {
    const auto begin = file.begin() + static_cast<std::ptrdiff_t>(std::min(from, file.size()));
    return static_cast<std::size_t>(std::search(begin, file.end(), tag.begin(), tag.end()) - file.begin());
}

std::size_t countSims(const Bytes& file, Edition edition, std::size_t offset) {
    const std::string_view begin = edition == Edition::base ? baseBegin : laterBegin;
    const std::size_t size = neighborRecord::size + begin.size() - baseBegin.size();
    std::size_t count = 0;
    for (std::size_t at = nextTag(file, begin, 0); at < file.size(); at = nextTag(file, begin, at + 1)) {
        if (at + size > offset) ++count;
    }
    return count;
}
