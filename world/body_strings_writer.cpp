// Writes BodyStrings as text. The text takes the same room whatever the strings are, so that nothing behind it in the
// file has to move.
#include <algorithm>

#include "world/body_strings.h"
#include "world/body_text_layout.h"

namespace {

// Appends to a buffer and stops at its end.
class TextWriter {
 public:
    explicit TextWriter(std::span<std::uint8_t> buffer) : buffer_(buffer) {}

    std::size_t position() const { return position_; }

    void append(std::string_view text) {
        const std::size_t count = std::min(text.size(), buffer_.size() - position_);
        std::copy_n(text.begin(), count, buffer_.begin() + static_cast<std::ptrdiff_t>(position_));
        position_ += count;
    }

    void append(std::uint8_t byte) {
        const char character = static_cast<char>(byte);
        append(std::string_view(&character, 1));
    }

    // Appends fill bytes up to, but not including, index `end`.
    void fillTo(std::size_t end) {
        while (position_ < std::min(end, buffer_.size())) {
            append(bodyText::fill);
        }
    }

 private:
    std::span<std::uint8_t> buffer_;
    std::size_t position_ = 0;
};

}  // namespace

std::size_t BodyStrings::serialise(std::span<std::uint8_t> buffer, std::size_t limit, std::int16_t simVersion,
                                   bool allTexts) const {
    TextWriter writer(buffer);
    const auto pair = [&](bodySlot::Index first) {
        const std::string_view second = slots_[bodyText::secondOf(first)];
        writer.append(slots_[first]);
        if (!allTexts || !unmarked_[first] || !second.empty()) writer.append(std::uint8_t{bodyText::pairMark});
        writer.append(second);
    };

    for (const auto& entry : bodyText::commonEntries) {
        writer.append(bodyText::separator);
        if (entry.pair) {
            pair(entry.slot);
        } else {
            writer.append(slots_[entry.slot]);
        }
    }
    writer.append(bodyText::halfSeparator);

    if (simVersion >= bodyText::extendedVersion) {
        writer.append(bodyText::entryMarker);
        pair(bodySlot::f100Mesh);
        writer.append(bodyText::separator);
        pair(bodySlot::s100Mesh);
        writer.append(bodyText::separator);
        pair(bodySlot::l100Mesh);
        writer.append(bodyText::separator);
        const bool hasWinterOutfit = slots_[bodySlot::w100Mesh].size() >= bodyText::shortestExpansionOutfit &&
                                     slots_[bodySlot::w100Skin].size() >= bodyText::shortestExpansionOutfit;
        if (hasWinterOutfit) pair(bodySlot::w100Mesh);
        if (allTexts) {
            if (!hasWinterOutfit) writer.append(missingOutfit);
            writer.append(bodyText::separator);
            writer.append(lastText_);
            writer.append(bodyText::halfSeparator);
        } else if (hasWinterOutfit) {
            writer.append(bodyText::halfSeparator);
            writer.append(bodyText::trailer);
        }
    }
    if (writer.position() <= limit) writer.fillTo(limit + 1);
    return writer.position();
}
