// Reading character files on demand, with a resource map and without one, and what damaged files give; and the stage.
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

namespace {

using namespace std::string_literals;

std::string guidText(Sim& sim) {
    const auto bytes = sim.guid().bytes();
    return std::string(bytes.begin(), bytes.end()).c_str();
}

// Of reading the name, the GUID and the body strings.
std::array<int, 3> resultsOf(Sim& sim) {
    return {sim.loadName(), sim.loadGuid(), sim.loadBodyStrings()};
}

const std::string file = TestNeighborhood::characterFile("user00001");
const SampleNeighborhood oneSim = {.neighbors = {{}}};

TEST(CharacterReader, TheSamePartsAreFoundWithAMapAndWithoutOne) {
    const struct {
        const char* what;
        SampleCharacter character;
        int guidResult, bodyResult, bodyResultByMap;
        std::string name = "Marigold";
    } rows[] = {
        {"a child", {.tag = "child"}, 1, 1, 1},
        {"no name chunk", {.hasName = false}, 1, 1, 1, ""},
        {"name longer than its room", {.name = std::string(120, 'n')}, 1, 1, 1, std::string(99, 'n')},
        {"no object chunk", {.hasObject = false}, -4, 1, 1},
        {"other label", {.bodyLabel = "bodystrinG"}, 1, -1, 1},
        {"end of the second form", {.ending = BodyEnding::atEntry33, .bodyTextSize = 0}, 1, 1, 1},
    };
    for (const bool map : {true, false}) {
        for (auto row : rows) {
            SCOPED_TRACE(row.what + (map ? ", with a map"s : ", without a map"s));
            row.character.map = map;
            const CharacterFile built = makeCharacterFile(row.character);
            const TestNeighborhood read(oneSim, {row.character});
            Sim& sim = read.sim(0);
            const int bodyResult = map ? row.bodyResultByMap : row.bodyResult;
            EXPECT_EQ(resultsOf(sim), (std::array{1, row.guidResult, bodyResult}));
            EXPECT_EQ(sim.name(), row.name);
            EXPECT_EQ(guidText(sim), row.guidResult == 1 ? "\x01\x11WT" : "");
            EXPECT_EQ(sim.tagOffset(), bodyResult == 1 ? static_cast<int>(built.bodyStringsOffset + 81) : 0);
            EXPECT_EQ(sim.characterTag(), row.character.tag != "child");
            read.files().remove(file);
            EXPECT_EQ(sim.loadName(), 1) << "read once";
        }
    }
}

TEST(CharacterReader, BrokenFilesGiveWhatCanBeRead) {
    const CharacterFile built = makeCharacterFile({.hasPictures = false, .map = false});
    const std::size_t fill = built.bodyStringsOffset + 86 + bodyStringText(adultSlots(), BodyEnding::atEntry32).size();
    const auto cutAt = [&](std::size_t size) {
        return std::string(built.bytes.begin(), built.bytes.end()).substr(0, size);
    };
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

TEST(CharacterReader, WithoutAMapTheFirstCallAlsoScansTheHeader) {
    TestNeighborhood read(oneSim);
    const std::string chunk = "STR#12345678bodystring" + std::string(59, '\0') + "adult\xA3\xA3\xA3\xA3\xA3";
    read.files().write(file, std::string(30, ' ') + chunk);
    read.load();
    EXPECT_EQ(read.sim(0).loadBodyStrings(), 1);
}

TEST(Members, TheStageFollowsFromAgeKindAndBody) {
    const struct {
        const char* bodySkin;  // null without a character file
        int age, kind, stage;
    } rows[] = {{"b614maTNR", 27, 1, 5}, {"tnr", 27, 0, 5},  {"b614maTnr", 27, 1, 6},
                {nullptr, 27, 1, 0},     {"tnr", 27, 5, -1}, {nullptr, 27, 2, -1},
                {nullptr, 18, 2, 5},     {nullptr, 9, 1, 3}, {"tnr", 26, 1, 0}};
    for (const auto& row : rows) {
        SampleCharacter character;
        if (row.bodySkin != nullptr) character.slots[sampleSlot::bodySkin] = row.bodySkin;
        const TestNeighborhood read({.neighbors = {{.age = row.age, .kind = row.kind}}}, {character});
        if (row.bodySkin == nullptr) read.files().remove("UserData/Characters");
        EXPECT_EQ(read.sim(0).stage(), row.stage) << "age " << row.age << ", kind " << row.kind;
        for (const auto& [stage, result] : {std::pair(1, -2), {4, -2}, {0, -3}, {7, -3}})
            EXPECT_EQ(read.sim(0).setStage(stage, nullptr), result) << stage;
    }
}

}  // namespace
