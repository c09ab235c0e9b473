// What is read of character files, whole or damaged, with a resource map and without one.
#include <regex>

#include "tests/support/iff_walk.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"
#include "world/tag_scan.h"

namespace {

using namespace std::string_literals;
using enum BodyEnding;

// No two alike, and those from `end` on empty.
BodySlots numberedSlots(std::size_t end = 50) {
    BodySlots slots;
    for (std::size_t i = 0; i < end; ++i)
        slots[i] = "s" + std::to_string(i);
    return slots;
}

struct TestStream : StreamFile {
    // With a window of 64 bytes, the smallest, it takes few bytes to cross its edge.
    explicit TestStream(const Bytes& bytes) {
        files.write("file", bytes);
        EXPECT_TRUE(open(files.path("file").c_str(), Access::readAndPatch, 64));
    }
    TempDirectory files;
    StreamView view{*this};
};

TEST(Stream, WhatWasWrittenIsReadAgain) {
    TestStream file(bytesFrom("old"));
    EXPECT_EQ(file.view.peek(), 'o');
    file.view.writeAt(0, "new");
    EXPECT_EQ(textAt(file.bytesAt(0, 3)), "new");
}

TEST(TagScan, ATagIsFoundUpToTheNotedSize) {
    const std::tuple<const char*, std::string, int, int, int> rows[] = {
        {"over the edge of a window", std::string(61, '.') + "XXXX..", 67, 62, 0},
        {"begins behind the noted size", "....XXXX", 4, -4, 4},
        {"differs behind the noted size", "....XX..", 4, -4, 6},
        {"file shorter than noted", "....", 9, -4, 9},
    };
    for (const auto& [what, bytes, size, result, cursor] : rows) {
        TestStream file(bytesFrom(bytes));
        EXPECT_EQ(findTag(file.view, "XXXX", size), result) << what;
        EXPECT_EQ(file.view.tell(), cursor) << what;
    }
}

TEST(BodyStrings, AnEntryIsReadByteByByteAndSplitAtItsFirstEqualsSign) {
    const std::string x149(149, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {"\1ab=c=d\0\0\1e"s, "read to 8: ab, c=d"},
        {"\1\0\0\1c\0"s, "read to 1: , "},
        {x149 + "\0c"s, "read to 150: " + x149 + ", "},
        {x149 + "y\1\0"s, "read to 151: " + x149 + ", "},  // 150 characters that no zero byte had to close
        {x149 + "=\0"s, "broken off at 151: 1, 2"},
        {"a=b\xA3\0"s, "broken off at 4: 1, 2"},
        {"a=b\1", "broken off at 4: 1, 2"},
    };
    for (const auto& [bytes, expected] : rows) {
        TestStream file(bytesFrom(bytes));
        StreamView stream = file.view;
        BodyStrings::Slot first("1"), second("2");
        const std::string result = readPair(first, second, stream) == 1 ? "read to " : "broken off at ";
        EXPECT_EQ(result + std::to_string(stream.tell()) + ": " + first.c_str() + ", " + second.c_str(), expected);
    }
}

TEST(BodyStrings, ATextIsReadAndWrittenBackByteByByte) {
    BodySlots shortSkin = numberedSlots();
    shortSkin[sampleSlot::w100Skin] = "x";
    const std::tuple<const char*, BodySlots, BodyEnding, std::int16_t, std::int16_t, BodyEnding> rows[] = {
        {"base game", numberedSlots(42), atEntry29, 4, 4, atEntry29},
        {"base game's text under a later record", numberedSlots(42), atEntry29, 7, 6, atEntry32},
        {"expansion, under an old record", numberedSlots(48), atEntry32, 6, 7, atEntry29},
        {"later expansion", numberedSlots(), atEntry33, 8, 7, atEntry33},
        {"entry 33 with a skin of one letter", shortSkin, atEntry33, 7, 7, atEntry32},
    };
    for (const auto& [what, slots, ending, simVersion, version, written] : rows) {
        SCOPED_TRACE(what);
        BodyStrings body;
        body.parse(TestStream(filledBodyStringText(slots, ending, 1041)).view, simVersion);
        EXPECT_EQ(slotsOf(body), slots);
        EXPECT_EQ(body.version(), version);
        Bytes buffer(3000);
        buffer.resize(body.serialise(buffer, 1041, simVersion));
        EXPECT_EQ(buffer, filledBodyStringText(slots, written, 1042));
    }
}

TEST(BodyStrings, ATextOfLaterEditionsIsWrittenBackWithEachOfIts35Strings) {
    BodySlots slots = childSlots();
    slots[sampleSlot::f100Mesh] = "ADDED";
    const std::string child = textAt(bodyStringText(slots, atEntry34));
    const std::string noPairs = std::regex_replace(child, std::regex("\1=\0\0"s), "\1\0\0"s);
    const std::string adult = textAt(bodyStringText(adultSlots(), atEntry34, "h533fafit_a,BODY=h533fafitlgt_a"));
    const std::string none = std::regex_replace(child, std::regex("ADDED\0\0\1ADDED"s), "NONE\0\0\1ADDED"s);
    const std::string ofBaseGame = textAt(bodyStringText(childSlots(), atEntry32));
    const std::string completed = textAt(bodyStringText(childSlots(), atEntry34));
    for (const auto& [read, written] :
         {std::pair(adult, adult), {child, child}, {noPairs, noPairs}, {none, child}, {ofBaseGame, completed}}) {
        BodyStrings body;
        body.parse(TestStream(bytesFrom(read)).view, 7);
        EXPECT_EQ(body.version(), 7);
        Bytes buffer(3000);
        buffer.resize(body.serialise(buffer, 1041, 7, true));
        EXPECT_EQ(textAt(buffer), written + std::string(1042 - written.size(), '\xA3'));
    }
}

std::string guidText(Sim& sim) {
    return textAt(sim.guid().bytes()).c_str();
}

// Of reading the name, the GUID and the body strings.
std::array<int, 3> resultsOf(Sim& sim) {
    return {sim.loadName(), sim.loadGuid(), sim.loadBodyStrings()};
}

const std::string file = TestNeighborhood::characterFile("user00001");
const SampleNeighborhood oneSim = {.neighbors = {{}}};

TEST(CharacterReader, TheSamePartsAreFoundWithAMapAndWithoutOne) {
    const std::pair<const char*, SampleCharacter> rows[] = {
        {"a child", {.tag = "child"}},
        {"no name chunk", {.hasName = false}},
        {"name longer than its room", {.name = std::string(120, 'n')}},
        {"no object chunk", {.hasObject = false}},
        {"other label", {.bodyLabel = "bodystrinG"}},
        {"end of the second form", {.ending = atEntry33, .bodyTextSize = 0}},
    };
    for (const bool map : {true, false}) {
        for (auto [what, character] : rows) {
            SCOPED_TRACE(what + (map ? ", with a map"s : ", without a map"s));
            character.map = map;
            const CharacterFile built = makeCharacterFile(character);
            const TestNeighborhood read(oneSim, {character});
            Sim& sim = read.sim(0);
            const bool hasBody = map || character.bodyLabel == "bodystring";
            EXPECT_EQ(resultsOf(sim), (std::array{1, character.hasObject ? 1 : -4, hasBody ? 1 : -1}));
            EXPECT_EQ(sim.name(), character.hasName ? character.name.substr(0, 99) : "");
            EXPECT_EQ(guidText(sim), character.hasObject ? "\x01\x11WT" : "");
            EXPECT_EQ(sim.tagOffset(), hasBody ? static_cast<int>(built.bodyStringsOffset + 81) : 0);
            EXPECT_EQ(sim.characterTag(), character.tag != "child");
            read.files().remove(file);
            EXPECT_EQ(sim.loadName(), 1) << "read once";
        }
    }
}

TEST(CharacterReader, BrokenFilesGiveWhatCanBeRead) {
    const CharacterFile built = makeCharacterFile({.hasPictures = false, .map = false});
    const std::size_t fill = built.bodyStringsOffset + 86 + bodyStringText(adultSlots(), atEntry32).size();
    const auto cutAt = [&](std::size_t size) { return textAt(built.bytes, 0, size); };
    // Of a map only the entries that a row is about.
    const auto withMap = [](std::string front, const std::string& mapOffsetAndMap) {
        front.resize(61);
        return front + mapOffsetAndMap;
    };
    const struct {
        const char* what;
        std::string bytes, name, guid;
        int guidResult, bodyResult;
        bool box = false;
    } rows[] = {
        {"cut in the GUID", cutAt(built.objectOffset + 106), "", "\x01\x11", 1, -1},
        {"cut in the name", cutAt(built.nameOffset + 85), "Mari", "\x01\x11WT", 1, -1},
        {"one byte of the end's pattern missing", cutAt(fill + 4), "Marigold", "\x01\x11WT", 1, -1, true},
        {"cut behind the end's pattern", cutAt(fill + 5), "Marigold", "\x01\x11WT", 1, 1},
        {"too short for the map's offset, so without a map", withMap("iff OBJD", "\1\1"), "", "", 1, -1},
        {"name chunk in the first place", withMap("CTSS", "\0\0\0"s), "", "", -3, -3},
        {"name chunk that begins in the header", std::string(30, ' ') + "CTSS" + std::string(77, '\0') + "Ann", "Ann",
         "", -4, -1},
        {"map says 0", withMap("", "\0\0\x40"s + "DJBO1234\0\0\0"s), "", "", 1, -3},
        {"an entry cut in its offset", withMap("", "\0\0\x40"s + std::string(64, 'x') + "DJBO1234\1\0"s), "", "", 1,
         -1},
        {"map entry in front of the file", withMap("i\0\xC8\0\x10"s, "\0\0\1"s), "", "", -4, -1},
    };
    const std::string unknownForm =
        "Error reading body stringsCannot find the end of the meshes and skins.  This is an unknown user file body "
        "string format.";
    TestNeighborhood read(oneSim);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        read.files().write(file, row.bytes);
        read.load();
        Sim& sim = read.sim(0);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(resultsOf(sim), (std::array{1, row.guidResult, row.bodyResult}));
        EXPECT_EQ(sim.name(), row.name);
        EXPECT_EQ(guidText(sim), row.guid);
        EXPECT_EQ(box->title + box->text, row.box ? unknownForm : "");
        EXPECT_EQ(sim.fileUsable(), row.bodyResult != -3 && !row.box);
    }
}

TEST(CharacterReader, ATextOfLaterEditionsEndsByAPatternUnlessItCounts35Strings) {
    for (const auto& [count, fill, result] : {std::tuple(35, 0, 1), {20, 0, -1}, {20, 0xA3, 1}}) {
        const SampleCharacter character{.ending = atEntry34, .bodyFill = static_cast<std::uint8_t>(fill)};
        const TestNeighborhood read({.neighbors = {{.later = true, .version = 9}}}, {character});
        CharacterFile built = makeCharacterFile(character);
        built.bytes[built.bodyStringsOffset + 78] = static_cast<std::uint8_t>(count);
        read.files().write(file, built.bytes);
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(read.sim(0).loadBodyStrings(), result) << count << " strings, " << fill;
        EXPECT_EQ(box->shown, result < 0);
    }
}

TEST(Members, TheStageFollowsFromAgeKindAndBody) {
    // A Sim without a body's skin has no character file.
    const std::tuple<const char*, int, int, int> rows[] = {
        {"b614maTNR", 27, 1, 5}, {"tnr", 27, 0, 5},   {"b614maTnr", 27, 1, 6}, {nullptr, 27, 1, 0}, {"tnr", 27, 5, -1},
        {nullptr, 27, 2, -1},    {nullptr, 18, 2, 5}, {nullptr, 9, 1, 3},      {"tnr", 26, 1, 0}};
    for (const auto& [bodySkin, age, kind, stage] : rows) {
        SampleCharacter character;
        if (bodySkin != nullptr) character.slots[sampleSlot::bodySkin] = bodySkin;
        const TestNeighborhood read({.neighbors = {{.age = age, .kind = kind}}}, {character});
        if (bodySkin == nullptr) read.files().remove("UserData/Characters");
        EXPECT_EQ(read.sim(0).stage(), stage) << "age " << age << ", kind " << kind;
        for (const auto& [other, result] : {std::pair(1, -2), {4, -2}, {0, -3}, {7, -3}})
            EXPECT_EQ(read.sim(0).setStage(other, nullptr), result) << other;
    }
}

}  // namespace
