#include "world/body_strings.h"

#include "world/body_text_layout.h"

BodyStrings::BodyStrings() {
    slots_[bodySlot::gender].assign("female");
}

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
    if (status != tokenStatus::read) return status;
    const std::string_view all = text.view();
    const std::size_t mark = all.find(bodyText::pairMark);
    first.assign(all.substr(0, mark));
    second.assign(mark == std::string_view::npos ? std::string_view() : all.substr(mark + 1));
    return status;
}

void BodyStrings::parsePair(StreamView& stream, bodySlot::Index first) {
    readPair(slots_[first], slots_[bodyText::secondOf(first)], stream);
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
    if (readPair(slots_[bodySlot::f100Mesh], slots_[bodySlot::f100Skin], stream) != tokenStatus::read) {
        // The text ends before entry 30: it comes from a game without the later expansions, whatever the record says.
        if (simVersion == bodyText::extendedVersion) version_ = bodyText::extendedVersion - 1;
        slots_[bodySlot::f100Mesh].clear();
        slots_[bodySlot::f100Skin].clear();
        return;
    }
    version_ = bodyText::extendedVersion;
    parsePair(stream, bodySlot::s100Mesh);
    parsePair(stream, bodySlot::l100Mesh);
    if (readPair(slots_[bodySlot::w100Mesh], slots_[bodySlot::w100Skin], stream) != tokenStatus::read) {
        slots_[bodySlot::w100Mesh].clear();
        slots_[bodySlot::w100Skin].clear();
    }
}
