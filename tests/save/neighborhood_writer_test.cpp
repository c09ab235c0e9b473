#include <utility>

#include "tests/save/saved_files.h"

namespace {

// A household of eight, of whom one has no record, and one of two; a family that isn't listed has the highest number.
class NeighborhoodWriterTest : public SaveTest {
 public:
    NeighborhoodWriterTest() {
        content_.families = {{.number = 3, .name = "Mills", .members = {}},
                             {.number = 40, .name = "Default", .members = {}},
                             {.number = 7, .name = "Dale", .members = {}}};
        for (std::uint32_t i = 0; i < 9; ++i) {
            const std::string recordName = "user0000" + std::to_string(i);
            content_.neighbors.push_back({.recordName = recordName, .guid = sampleGuid + i});
            characters_.push_back({.recordName = recordName, .guid = sampleGuid + i, .hasPictures = false});
            content_.families[i < 7 ? 0 : 2].members.push_back(sampleGuid + i);
        }
        content_.families[0].members.push_back(strangersGuid);
    }

    static void append(Bytes& file, const Bytes& record) { file.insert(file.end(), record.begin(), record.end()); }

    // Money and members of a family of which one member is left.
    static void overwriteFamily(Bytes& file, const FamilyOffsets& family, int funds, std::uint32_t member) {
        overwrite(file, family.memberTable - 20, u32(funds));
        overwrite(file, family.memberTable - 4, u16(1));
        overwrite(file, family.memberTable, Bytes(family.memberTableEnd - family.memberTable));
        overwrite(file, family.memberTable, u32(member));
    }

    static constexpr std::uint32_t strangersGuid = 0x44434241;
    std::vector<SampleCharacter> characters_;
    SampleNeighborhood content_;
};

TEST_F(NeighborhoodWriterTest, NewFamiliesStandWhereTheFileIsCut) {
    const std::string names[] = {
        "", "Q", "Li", "Mills", std::string(21, 'x'), std::string(24, 'y'), std::string(99, 'z')};
    for (const auto& [freeRoom, map] : {std::pair{true, true}, {true, false}, {false, true}, {false, false}}) {
        SCOPED_TRACE(testing::Message() << "free room " << freeRoom << ", map " << map);
        minute_ = 7;
        content_.freeRoom = freeRoom;
        content_.map = map;
        TestNeighborhood test(content_, characters_);
        writeTemplates(test.files());

        Tree expected = treeOf(test.files());
        Bytes& file = expected[live];
        expected["UserData/Backups/"] = {};
        expected[firstBackup] = file;
        if (map) file.resize(test.built().mapOffset);
        if (freeRoom) file.resize(test.built().freeRoomOffset);
        overwrite(file, 61, Bytes(3));
        overwriteFamily(file, test.built().families[0], 70'000, strangersGuid);
        for (int i = 0; i < 7; ++i) {
            append(file, newFamilyRecord(41 + i, 20'000 - i, sampleGuid + static_cast<unsigned>(i), names[i]));
            moveOut(test, 0, i, names[i], 20'000 - i);
        }
        test.family(0).setFunds(70'000);
        test.family(1).setFunds(1);  // nobody left it, so it stays as the file has it
        save(test);
        EXPECT_EQ(differences(expected, treeOf(test.files())), "");
        EXPECT_FALSE(test->isDirty() || test->hasNewFamilies() || test.family(0).dirty());
        EXPECT_EQ(test->newFamilyCount(), 0);
        EXPECT_EQ(test->highestFamilyNumber(), 47);

        // A second save of the run goes on behind what the first one left.
        expected[secondBackup] = file;
        overwriteFamily(file, test.built().families[2], 5, sampleGuid + 8);
        append(file, newFamilyRecord(48, 10'000, sampleGuid + 7, "Late"));
        test.family(1).setFunds(5);
        moveOut(test, 1, 7, "Late", 10'000);
        save(test);
        EXPECT_EQ(differences(expected, treeOf(test.files())), "");
        for (int i = 0; i < test->familyCount(); ++i) {
            EXPECT_FALSE(test.family(i).dirty()) << i;
        }

        test.load();
        ASSERT_EQ(test->familyCount(), 10);
        EXPECT_EQ(test.family(0).memberCount(), 1);
        for (int i = 0; i < 7; ++i) {
            Family& family = test.family(2 + i);
            EXPECT_EQ(family.familyNumber(), 41 + i);
            EXPECT_EQ(family.funds(), 20'000 - i);
            EXPECT_EQ(family.name(), names[i].substr(0, 24));
            EXPECT_EQ(family.memberCount(), 1);
            EXPECT_EQ(family.member(0), &test.sim(i));
        }
    }
}

TEST_F(NeighborhoodWriterTest, WritesNothingWhereAPieceLayBehindTheCut) {
    const IffChunk freeRoom{.type = "XXXX", .content = Bytes(50, 0xDD)};
    const SampleFamily last = content_.families[2];
    for (const bool allBehind : {true, false}) {
        SCOPED_TRACE(allBehind ? "all of it" : "the last family");
        if (allBehind) content_.before = {freeRoom};
        if (!allBehind) content_.behind = {freeRoom, sampleFamilyChunk(last), sampleFamilyNameChunk(last)};
        if (!allBehind) content_.before.clear(), content_.families.pop_back();
        TestNeighborhood test(content_, characters_);
        writeTemplates(test.files());

        Bytes file = test.built().bytes;
        file.resize(static_cast<std::size_t>(test->xxxxOffset()));
        overwrite(file, 61, Bytes(3));
        if (!allBehind) overwrite(file, test.built().neighborOffsets[0], savedRecord(content_.neighbors[0], false));
        for (const int leaver : {7, 8}) {
            append(file, newFamilyRecord(34 + leaver, 500, sampleGuid + static_cast<unsigned>(leaver), "New"));
            change(test, 0, stageNumber::adult);
            moveOut(test, 1, leaver, "New", 500);
            save(test);
            EXPECT_FALSE(test->isDirty()) << "a record that is gone isn't waited for";
            EXPECT_EQ(test.files().bytesOf(live), file);
            EXPECT_EQ(test.files().bytesOf(test.characterFile("user00000")), savedCharacter(characters_[0]));
        }
    }
}

// The game doesn't run when the program starts; it may have run by the time of the save.
TEST_F(NeighborhoodWriterTest, TouchesNothingWhenTheFileIsNotTheOneThatWasRead) {
    using Content = SampleNeighborhood;
    const struct {
        const char* what;
        bool freeRoom, newFamily;
        void (*change)(Content& content);
    } rows[] = {
        {"a record has moved", false, false, [](Content& c) { c.before = {{.type = "STR#", .content = Bytes(9)}}; }},
        {"another Sim's is there", false, false, [](Content& c) { std::swap(c.neighbors[0], c.neighbors[1]); }},
        {"the file ends before it", false, false, [](Content& c) { c = {}; }},
        {"the free room has moved", true, true, [](Content& c) { c.families[2].members.push_back(1); }},
        {"the map has moved", false, true, [](Content& c) { c.families[2].members.push_back(1); }},
        {"another family is there", true, true, [](Content& c) { c.families[0].number = 4; }},
        {"it has another member", true, true, [](Content& c) { c.families[0].memberCount = 9; }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        content_.freeRoom = row.freeRoom;
        TestNeighborhood test(content_, characters_);
        writeTemplates(test.files());
        SampleNeighborhood content = content_;
        row.change(content);
        test.files().write(live, makeNeighborhoodFile(content).bytes);
        const Tree before = treeOf(test.files());
        if (row.newFamily) moveOut(test, 0, 1, "New", 500);
        if (!row.newFamily) change(test, 0, stageNumber::adult);
        save(test);
        EXPECT_EQ(differences(before, treeOf(test.files())), "");
        EXPECT_TRUE(test->isDirty());
        EXPECT_EQ(test->newFamilyCount(), row.newFamily ? 1 : 0);

        test.files().write(live, test.built().bytes);
        save(test);
        EXPECT_FALSE(test->isDirty());
    }
}

}  // namespace
