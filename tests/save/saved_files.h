// What a save is expected to leave: the files and records that it writes, put together by the sample's own builders and
// from offsets counted in the formats.
#ifndef TESTS_SAVE_SAVED_FILES_H
#define TESTS_SAVE_SAVED_FILES_H

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "data/data_files.h"
#include "save/backup_names.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/tree.h"

class SaveTest : public testing::Test {
 public:
    ~SaveTest() override { backupClock().followSystem(); }

    // On 5 March 2002, seven minutes past two in the afternoon or another minute.
    static void save(const TestNeighborhood& test, WORD minute = 7) {
        backupClock().stopAt({2002, 3, 0, 5, 14, minute, 0, 0});
        test->save(test->toolDirectory());
    }

    // Changes the stage as the window does: it has asked for the GUID, the name and the body before.
    static void change(Sim& sim, int stage) {
        sim.guid();
        sim.name();
        ASSERT_NE(sim.bodyStrings(), nullptr);
        EXPECT_EQ(sim.setStage(stage, nullptr), 1);
    }

    // Into a family of its own, out of `family`, if that is given.
    static void moveOut(const TestNeighborhood& test, int sim, const std::string& name, int funds, int family = -1) {
        auto moved = std::make_unique<Family>(*test);
        moved->setName(name.c_str());
        moved->setFunds(funds);
        test.sim(sim).guid();
        if (family >= 0) {
            ASSERT_GT(test.family(family).memberCount(), 0);
            EXPECT_EQ(test.family(family).removeMember(test.sim(sim)), 1);
        }
        EXPECT_EQ(moved->addMember(test.sim(sim)), 1);
        EXPECT_EQ(test->addNewFamily(std::move(moved)), 1);
    }

    static Bytes u16(int value) { return ByteWriter().u16Le(value).written(); }
    static Bytes u32(std::int64_t value) { return ByteWriter().u32Le(value).written(); }

    // The character file of a Sim that has become a teen or an adult.
    static Bytes savedCharacter(const SampleCharacter& sim, int version = 7) {
        Bytes text = filledSampleBodyText(sim.slots, sampleBodyEnding(sim.slots, version), 1041);
        text.resize(1041);
        Bytes file = makeCharacterTemplate();
        overwrite(file, 3988, bytesFrom(sim.recordName));
        overwrite(file, 4080, u32(sim.guid));
        overwrite(file, 4349, ByteWriter().field(sim.name.substr(0, 63), 64).written());
        overwrite(file, 54097, bytesFrom("adult"));
        overwrite(file, 54102, text);
        return file;
    }

    // The neighbor record of a Sim that has become a teen or else an adult.
    static Bytes savedRecord(SampleNeighbor sim, bool teen) {
        sim.age = teen ? 18 : 27;
        sim.personValues[27] = teen ? 4 : 0;
        sim.personValues[28] = 0;
        for (const std::size_t value : {8U, 9U, 10U, 13U, 15U, 16U})
            if (teen) sim.personValues[value] = 0;
        sim.gapByte = 0;
        Bytes record = sampleNeighborRecord(sim);
        record.resize(186);
        overwrite(record, 23, Bytes(3));  // the sample's version is wider than the one byte that is written
        return record;
    }

    static Bytes newFamilyRecord(int number, int funds, std::uint32_t member, const std::string& name) {
        Bytes record = makeFamilyTemplate();
        for (const std::size_t offset : {9U, 92U, 133U})
            overwrite(record, offset, u16(number));
        overwrite(record, 96, u16(funds));
        overwrite(record, 116, u32(member));
        overwrite(record, 205, ByteWriter().text(name.substr(0, 24)).u8(0).u8(0).u8(0xA3).fillTo(24).written());
        return record;
    }

    static constexpr const char* live = "UserData/neighborhood.iff";
    static constexpr const char* backup = "UserData/Backups/neighborhood.200235.147.iff";
};

#endif
