#include "world/body_strings.h"

#include "world/body_text_layout.h"

BodyStrings::BodyStrings() {
    slots_[bodySlot::gender].assign("female");
}

namespace {

// Returns whether the text has an "=".
bool splitPair(std::string_view text, BodyStrings::Slot& first, BodyStrings::Slot& second) {
    const std::size_t mark = text.find(bodyText::pairMark);
    first.assign(text.substr(0, mark));
    second.assign(mark == std::string_view::npos ? std::string_view() : text.substr(mark + 1));
    return mark != std::string_view::npos;
}

}  // namespace

int readToken(TokenText& text, StreamView& stream) {
    text.clear();
    for (;;) {
        const std::uint8_t byte = stream.readBytes<1>()[0];
        if (stream.failed() || byte == bodyText::fill) return tokenStatus::endMark;
        if (byte == bodyText::entryMarker) {
            // The next byte decides whether this is an empty entry or just the beginning of one.
            if (stream.peek() == 0) return tokenStatus::read;
            continue;
        }
        if (text.size() == TokenText::capacity()) return tokenStatus::tooLong;
        if (byte != 0) text.append(static_cast<char>(byte));
        if (byte == 0 && !text.empty()) return tokenStatus::read;
    }
}

int readPair(BodyStrings::Slot& first, BodyStrings::Slot& second, StreamView& stream) {
    TokenText text;
    const int status = readToken(text, stream);
    if (status == tokenStatus::read) splitPair(text, first, second);
    return status;
}

int BodyStrings::parsePair(StreamView& stream, bodySlot::Index first) {
    TokenText text;
    const int status = readToken(text, stream);
    if (status == tokenStatus::read) {
        unmarked_[first] = !splitPair(text, slots_[first], slots_[bodyText::secondOf(first)]);
    }
    return status;
}

void BodyStrings::parseSingle(StreamView& stream, bodySlot::Index slot) {
    TokenText text;
    readToken(text, stream);
    slots_[slot].assign(text);
}

void BodyStrings::parse(StreamView stream, std::int16_t simVersion) {
    for (const auto& entry : bodyText::commonEntries) {
        if (entry.pair) {
            parsePair(stream, entry.slot);
        } else {
            parseSingle(stream, entry.slot);
        }
    }
    version_ = simVersion;
    if (parsePair(stream, bodySlot::f100Mesh) != tokenStatus::read) {
        // The text ends before entry 30: it comes from a game without the later expansions, whatever the record says.
        if (simVersion == bodyText::extendedVersion) version_ = bodyText::extendedVersion - 1;
        slots_[bodySlot::f100Mesh].clear();
        slots_[bodySlot::f100Skin].clear();
        return;
    }
    version_ = bodyText::extendedVersion;
    parsePair(stream, bodySlot::s100Mesh);
    parsePair(stream, bodySlot::l100Mesh);
    if (parsePair(stream, bodySlot::w100Mesh) != tokenStatus::read) {
        slots_[bodySlot::w100Mesh].clear();
        slots_[bodySlot::w100Skin].clear();
        return;
    }
    if (TokenText last; readToken(last, stream) == tokenStatus::read) lastText_.assign(last);
}
