// What is read of "neighborhood.iff", whole or damaged, and in which directories.
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"
#include "ui/status_line.h"
#include "world/neighborhoods.h"

namespace {

using namespace std::string_literals;

// The names of the listed families, each followed by "|".
std::string familiesOf(const TestNeighborhood& read) {
    std::string names;
    for (int i = 0; i < read->familyCount(); ++i)
        names += read.family(i).name() + "|"s;
    return names;
}

TEST(NeighborhoodReader, APlayersRecordOfAKnownKindGivesASimToTheProgramThatKnowsItsFormat) {
    const std::tuple<const char*, int, int, bool> records[] = {
        {"user0male", 0, 7, false}, {"npc_clown", 0, 0, false}, {"user1fema", 1, 7, false}, {"user2dogs", 2, -2, false},
        {"user-late", 1, 9, true},  {"user6none", 6, 7, false}, {"npc_clown", 0, 9, true},  {"user-none", 0, 0, true},
        {"user5late", 5, 5, true},  {"user5cats", 5, 0, false}, {"User00000", 0, 7, false}, {"user-1kin", -1, 7, false},
        {"user0male", 0, 7, false}};
    SampleNeighborhood content{.before = {{.type = "NBRS", .content = bytesFrom("\1\0\0\0\x0A\0\0\0\x09\0\0\0use"s)}}};
    for (const auto& [name, kind, version, later] : records)
        content.neighbors.push_back(
            {.later = later, .recordName = name, .version = version, .kind = kind, .gapByte = 0xEE});
    content.neighbors[1].hasPersonData = content.neighbors[7].hasPersonData = false;
    const TestNeighborhood files(content);
    for (const auto& [formats, late, laterPet] :
         {std::tuple(baseFormats, "", ""), {allFormats, "user-late 1 7|", "user5late 2 7|"}}) {
        Neighborhood read;
        EXPECT_EQ(read.load(files->directory(), "neighborhood.iff", formats), 0);
        std::string listed;
        for (int i = 0; i < read.simCount(); ++i)
            listed += read.sim(i)->recordName() + " "s + std::to_string(read.sim(i)->gender()) + " " +
                      std::to_string(read.sim(i)->version()) + "|";
        EXPECT_EQ(listed,
                  "user0male 0 7|user1fema 1 7|user2dogs 2 -2|"s + late + laterPet + "user5cats 2 0|user0male 0 7|");
        EXPECT_FALSE(read.sim(read.simCount()) || read.sim(-1));
    }
}

TEST(NeighborhoodReader, TheSearchGoesOnThirteenBytesBehindAFalseMarker) {
    for (const std::size_t distance : {12U, 13U}) {
        ByteWriter content = ByteWriter().u32Le(1).u32Le(4).fillTo(distance, 'x').bytes(sampleNeighborRecord({}));
        const TestNeighborhood read(SampleNeighborhood{.before = {{.type = "NBRS", .content = content.written()}}});
        EXPECT_EQ(read->simCount(), distance < 13 ? 0 : 1) << distance;
    }
}

TEST(NeighborhoodReader, AFamilysRecordIsReadFieldByField) {
    const TestNeighborhood read(
        SampleNeighborhood{.families = {{.number = 4465, .name = "Default"},
                                        {.number = 70000, .name = "Moth", .members = {1, 2, 3}},
                                        {.number = 7, .name = "Crowd", .members = std::vector<std::uint32_t>(9)},
                                        {.number = -4, .name = "Oats", .memberCount = -1, .hasHistory = true}}});
    EXPECT_EQ(familiesOf(read), "Moth|Oats|");
    EXPECT_EQ(read->highestFamilyNumber(), 4465) << "a family that isn't listed keeps its number";
    EXPECT_EQ(read.family(0).familyNumber(), 4464) << "the low 16 bits of 70000";
    EXPECT_EQ(read.family(0).memberCount(), 3);
    EXPECT_EQ(read.family(1).memberCount(), -1);
    EXPECT_FALSE(read->family(2) || read->family(-1));
}

TEST(NeighborhoodReader, AFamilysNameEndsAtAPairThatBeginsWithZero) {
    const std::pair<std::string, std::string> rows[] = {
        {"Cr\xE8me\0\0\xA3"s, "Cr\xE8me|Last|"},
        {"Moths\0\0"s, "Moths|"},  // the last pair takes the first letter of the last "FAMI"
        {"abc\0de\0\0"s, "abcde|Last|"},
        {std::string(5000, 'n') + "\0\0"s, std::string(99, 'n') + "|Last|"},
    };
    for (const auto& [bytes, listed] : rows) {
        const IffChunk family = sampleFamilyChunk({}), lastName = sampleFamilyNameChunk({.name = "Last"});
        const IffChunk name{.type = "FAMs", .content = bytesFrom("\xFD\xFF\1\0\1"s + bytes)};
        const TestNeighborhood read(SampleNeighborhood{.behind = {family, name, family, lastName}, .map = false});
        EXPECT_EQ(familiesOf(read), listed);
    }
}

TEST(NeighborhoodReader, WhatGoesBeyondTheTablesIsReadAndNotListed) {
    SampleNeighborhood content{.families = std::vector<SampleFamily>(101)};
    content.neighbors.resize(821);
    content.families[100].number = 101;
    const TestNeighborhood read(content);
    EXPECT_EQ(read->familyCount(), 100);
    EXPECT_EQ(read->highestFamilyNumber(), 101);
    EXPECT_EQ(read->simCount(), 820);
}

TEST(NeighborhoodReader, AFileCutAnywhereGivesWhatIsWholeBeforeTheCut) {
    TestNeighborhood read(SampleNeighborhood{
        .neighbors = {{}, {.later = true}}, .families = {{.number = 3}, {.number = 8}}, .freeRoom = true});
    const NeighborhoodFile& built = read.built();
    for (std::size_t size = built.bytes.size(); size-- > 0 && !HasFailure();) {
        SCOPED_TRACE(size);
        fs::resize_file(read.files().path(TestNeighborhood::neighborhoodFile), size);
        read.load();
        const auto whole = [size](std::size_t offset, std::size_t length) { return size >= offset + length ? 1 : 0; };
        const auto& [first, second] = std::pair(built.families[0], built.families[1]);
        EXPECT_EQ(read->simCount(), whole(built.neighborOffsets[0], 186) + whole(built.neighborOffsets[1], 190));
        EXPECT_EQ(read->familyCount(),
                  whole(first.name, sizeof "Meadows" + 2) + whole(second.name, sizeof "Meadows" + 2));
        EXPECT_EQ(read->highestFamilyNumber(), whole(first.record, 10) * 3 + whole(second.record, 10) * 5);
        EXPECT_TRUE(std::cmp_equal(read->mapOffset(), size < 64 ? 0 : built.mapOffset));
        EXPECT_EQ(read->xxxxOffset(), size < built.freeRoomOffset + 4 ? -5 : static_cast<int>(built.freeRoomOffset));
    }
}

TEST(Members, AFamilyFindsThemByGuidAndLosesThemByName) {
    std::vector<SampleCharacter> characters{{}, {.recordName = "user00002", .guid = 0x09004242, .slots = teenSlots()}};
    SampleNeighborhood content = householdOf(characters);
    content.neighbors.push_back({.recordName = "user00009"});  // without a character file
    content.neighbors.push_back({});                           // the first one's name and file once more
    // Bytes behind a zero byte don't count, and nothing in front of it is the GUID of a Sim without a file.
    content.families = {{.members = {0x01004242, 0x0F0F0F0F, sampleGuid, 0x77777700}}, {}};
    const TestNeighborhood read(content, characters);
    Family& family = read.family();
    EXPECT_EQ(family.member(2), nullptr) << "not resolved yet";
    EXPECT_EQ(family.memberCount(), 4);
    const std::array expected{&read.sim(1), static_cast<Sim*>(nullptr), &read.sim(0), &read.sim(2)};
    for (int i = -1; i < 5; ++i)
        EXPECT_EQ(family.member(i), i < 0 || i > 3 ? nullptr : expected.at(static_cast<std::size_t>(i))) << i;
    EXPECT_EQ(family.resolveMembers(), 1);
    EXPECT_EQ(family.adultCount(), 1) << "counted once";
    EXPECT_FALSE(family.dirty() || read->isDirty());
    EXPECT_EQ(read.sim(0).family(), &family);
    EXPECT_EQ(read.family(1).memberCount(), 1);
    EXPECT_EQ(read.sim(0).family(), &read.family(1)) << "resolved last";

    EXPECT_EQ(family.removeMember(read.sim(3)), 1);
    EXPECT_EQ(family.removeMember(read.sim(3)), -1);
    EXPECT_EQ(family.member(2), &read.sim(2));
    for (int count = 4; count <= 9; ++count)
        EXPECT_EQ(family.addMember(read.sim(0)), count <= 8 ? 1 : -1);
    EXPECT_EQ(family.adultCount(), 5);
}

TEST(Neighborhoods, OneThatCannotBeReadIsReportedAndHidesTheRest) {
    const TempDirectory files;
    for (int number = 1; number <= 101; ++number) {
        const std::string directory = "UserData" + (number == 1 ? "" : std::to_string(number));
        files.write(directory + (number == 2 ? "" : "/neighborhood.iff"), makeNeighborhoodFile({}).bytes);
    }
    const AnsweredBox box = answerNextBox(IDOK);
    loadNeighborhoods((files.path() + "\\").c_str(), "C:\\tools");
    EXPECT_EQ(box->title + ": " + box->text, "Loading Error: Error loading Neighborhood 2");
    EXPECT_EQ(listedNeighborhoodCount(), 1);
    EXPECT_TRUE(!neighborhoods[1] && neighborhoods[99]) << "read, but never shown";
    EXPECT_EQ(statusLine(), "Loading Neighborhood 100") << "the last";
    files.remove("UserData");
    setStatusLine("");
    loadNeighborhoods((files.path() + "\\").c_str(), "C:\\tools");
    EXPECT_EQ(statusLine(), "") << "a gap ends the walk";
    EXPECT_EQ(listedNeighborhoodCount(), 0) << "and its place is empty";
}

}  // namespace
