// The lazy reading of character files, along the resource map and without one; and what damaged files give.
#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

using namespace std::string_literals;

// The default character's.
constexpr std::string_view wholeName = "Marigold";
constexpr std::string_view wholeGuid = "\x01\x11WT";

std::string guidText(Sim& sim) {
    const auto bytes = sim.guid().bytes();
    return std::string(bytes.begin(), bytes.end()).c_str();
}

class CharacterReader : public testing::Test {
 protected:
    // The Sim of a neighborhood that was read when its character file held these bytes.
    Sim& read(const Bytes& characterFile) {
        neighborhood_.files().write(file_, characterFile);
        neighborhood_.load();
        return neighborhood_.sim(0);
    }

    const std::string file_ = TestNeighborhood::characterFile("user00001");
    TestNeighborhood neighborhood_{SampleNeighborhood{.neighbors = {{}}}};
};

TEST_F(CharacterReader, BothRoadsLeadToTheSameParts) {
    const struct {
        const char* what;
        SampleCharacter character;
        int guidResult, bodyResult, bodyResultByMap;
        std::string name{wholeName};
    } rows[] = {
        {"a child", {.tag = "child"}, 1, 1, 1},
        {"tag in another case", {.tag = "Adult"}, 1, -1, -1},
        {"no name chunk", {.hasName = false}, 1, 1, 1, ""},
        {"name longer than its room", {.name = std::string(120, 'n')}, 1, 1, 1, std::string(99, 'n')},
        {"no object chunk", {.hasObject = false}, -4, 1, 1},
        {"no body strings", {.hasBodyStrings = false}, 1, -1, -1},
        {"longer label", {.bodyLabel = "bodystrings, old"}, 1, 1, 1},
        {"other label", {.bodyLabel = "bodystrinG"}, 1, -1, 1},
        {"end of the second form", {.ending = BodyEnding::atEntry33, .bodyTextSize = 0}, 1, 1, 1},
    };
    for (const bool map : {true, false}) {
        for (const auto& row : rows) {
            SCOPED_TRACE(row.what + (map ? ", with a map"s : ", without a map"s));
            SampleCharacter character = row.character;
            character.map = map;
            const CharacterFile built = makeCharacterFile(character);
            Sim& sim = read(built.bytes);
            EXPECT_EQ(sim.name(), row.name);
            EXPECT_EQ(sim.loadGuid(), row.guidResult);
            EXPECT_EQ(guidText(sim), row.guidResult == 1 ? wholeGuid : "");
            const int bodyResult = map ? row.bodyResultByMap : row.bodyResult;
            EXPECT_EQ(sim.loadBodyStrings(), bodyResult);
            EXPECT_EQ(sim.bodyStrings() != nullptr, bodyResult == 1);
            EXPECT_EQ(sim.tagOffset(), bodyResult == 1 ? static_cast<int>(built.bodyStringsOffset + 81) : 0);
            EXPECT_EQ(sim.characterTag(), character.tag != "child");
            EXPECT_TRUE(sim.fileUsable());
        }
    }
}

TEST_F(CharacterReader, BrokenFilesGiveWhatCanBeRead) {
    const auto file = [](std::string_view front, std::string_view mapOffset, std::string_view behind = {}) {
        return ByteWriter().field(front, 61).text(mapOffset).text(behind).written();
    };
    const struct {
        const char* what;
        Bytes bytes;
        int guidResult, bodyResult;
        bool usable;
    } rows[] = {
        {"too short for the map's offset, so without a map", file("iff OBJD", "\1\1"), 1, -1, true},
        {"map behind the end", file("iff OBJD", "\xFF\xFF\xFF"), -4, -1, true},
        {"name chunk in the first place", file("CTSS", "\0\0\0"s), -3, -3, false},
        {"map says 0", file("", "\0\0\x40"s, "DJBO1234\0\0\0"s), 1, -3, false},
        {"map entry in front of the file", file("i\0\xC8\0\x10"s, "\0\0\1"s), -4, -1, true},
        {"label breaks off", file("", "\0\0\0"s, "STR#12345678bodystr"), -4, -1, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Sim& sim = read(row.bytes);
        EXPECT_EQ(sim.loadName(), 1);
        EXPECT_STREQ(sim.name(), "");
        EXPECT_EQ(sim.loadGuid(), row.guidResult);
        EXPECT_EQ(guidText(sim), "");
        EXPECT_EQ(sim.loadBodyStrings(), row.bodyResult);
        EXPECT_EQ(sim.fileUsable(), row.usable);
    }
}

TEST_F(CharacterReader, WhatFailedToOpenIsTriedAgainAndWhatIsReadIsNot) {
    const Bytes file = makeCharacterFile({.hasPictures = false}).bytes;
    Sim& sim = read(file);
    const auto results = [&sim] { return std::array{sim.loadName(), sim.loadGuid(), sim.loadBodyStrings()}; };
    for (const int expected : {-1, 1}) {
        neighborhood_.files().remove(file_);
        EXPECT_EQ(results(), (std::array{expected, expected, expected}));
        neighborhood_.files().write(file_, file);
        EXPECT_EQ(results(), (std::array{1, 1, 1}));
    }
}

TEST_F(CharacterReader, AFileCutAnywhereGivesWhatStandsInFront) {
    const SampleCharacter character{.hasPictures = false, .map = false};
    const CharacterFile built = makeCharacterFile(character);
    const std::size_t textBegin = built.bodyStringsOffset + 86;
    const std::size_t textEnd = textBegin + sampleBodyText(character.slots, character.ending).size() + 5;
    read(built.bytes);
    for (std::size_t size = built.bytes.size(); size-- > built.objectOffset && !HasFailure();) {
        SCOPED_TRACE(size);
        std::filesystem::resize_file(neighborhood_.files().path(file_), size);
        neighborhood_.load();
        Sim& sim = neighborhood_.sim(0);
        const auto inFront = [size](std::string_view text, std::size_t begin) {
            return text.substr(0, size > begin ? size - begin : 0);
        };
        EXPECT_EQ(sim.name(), inFront(wholeName, built.nameOffset + 81));
        EXPECT_EQ(sim.loadGuid(), size < built.objectOffset + 4 ? -4 : 1);
        EXPECT_EQ(guidText(sim), inFront(wholeGuid, built.objectOffset + 104));
        // A text without an end is told in a box; one of these is enough.
        if (size >= textBegin && size < textEnd - 1) continue;
        const AnsweredBox box = answerNextBox(IDOK);
        EXPECT_EQ(sim.loadBodyStrings(), size < textEnd ? -1 : 1);
        ASSERT_EQ(box.shown(), size == textEnd - 1);
        if (!box.shown()) continue;
        EXPECT_EQ(box.title(), "Error reading body strings");
        EXPECT_EQ(box.text(),
                  "Cannot find the end of the meshes and skins.  This is an unknown user file body string format.");
        EXPECT_EQ(box.buttons(), std::vector<std::string>{"OK"});
        EXPECT_EQ(sim.bodyOffset(), static_cast<int>(textBegin));
        EXPECT_EQ(sim.stage(), 0);
        neighborhood_.files().write(file_, built.bytes);
        EXPECT_EQ(sim.loadBodyStrings(), -3) << "it isn't opened any more";
    }
}

}  // namespace
