// What a save is expected to leave: whole directories by their bytes, and the files and records that it writes, put
// together from the samples' own builders and from offsets counted in the formats.
#ifndef TESTS_SAVE_SAVED_FILES_H
#define TESTS_SAVE_SAVED_FILES_H

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>

#include "sample/data_files.h"
#include "save/backup_names.h"
#include "tests/support/test_neighborhood.h"

// Every file below a directory, by its name there; a directory ends with a slash and has no bytes.
using Tree = std::map<std::string, Bytes>;

inline Tree treeOf(const TempDirectory& files) {
    Tree tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(files.path())) {
        const std::string name = std::filesystem::relative(entry.path(), files.path()).generic_string();
        tree[entry.is_directory() ? name + "/" : name] = entry.is_directory() ? Bytes() : files.bytesOf(name);
    }
    return tree;
}

// The names of the files that differ, or are only in one of the trees; empty for equal trees.
inline std::string differences(const Tree& expected, const Tree& actual) {
    std::string names;
    Tree all = expected;
    all.insert(actual.begin(), actual.end());
    for (const auto& [name, bytes] : all) {
        if (!expected.contains(name) || !actual.contains(name) || expected.at(name) != actual.at(name)) {
            names += name + "\n";
        }
    }
    return names;
}

inline void overwrite(Bytes& bytes, std::size_t offset, const Bytes& patch) {
    ASSERT_LE(offset + patch.size(), bytes.size());
    std::copy(patch.begin(), patch.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

inline Bytes u16(int value) {
    return ByteWriter().u16Le(value).written();
}
inline Bytes u32(std::int64_t value) {
    return ByteWriter().u32Le(value).written();
}

// The character file of a Sim that has become a teen or an adult.
inline Bytes savedCharacter(SampleCharacter sim, int version = 7) {
    if (sim.ending != BodyEnding::atEntry33) sim.slots[sampleSlot::w100Mesh].clear();  // its old file had no such entry
    Bytes text = filledSampleBodyText(sim.slots, sampleBodyEnding(sim.slots, version), 1041);
    text.resize(1041);
    Bytes file = makeCharacterTemplate();
    overwrite(file, 3988, bytesFrom((sim.recordName + ".iff").substr(0, 9)));
    overwrite(file, 4080, u32(sim.guid));
    overwrite(file, 4349, ByteWriter().field(sim.name.substr(0, 63), 64).written());
    overwrite(file, 54097, bytesFrom("adult"));
    overwrite(file, 54102, text);
    return file;
}

// The neighbor record of a Sim that has become a teen or else an adult.
inline Bytes savedRecord(SampleNeighbor sim, bool teen) {
    sim.age = teen ? 18 : 27;
    sim.personValues[27] = teen ? 4 : 0;
    sim.personValues[28] = 0;
    for (const std::size_t value : {8, 9, 10, 13, 15, 16}) {
        if (teen) sim.personValues[value] = 0;
    }
    sim.gapByte = 0;
    Bytes record = sampleNeighborRecord(sim);
    record.resize(186);
    overwrite(record, 23, Bytes(3));  // the sample's version is wider than the one byte that is written
    return record;
}

// "famtemplate" with letters where the name goes, so that it shows what a name leaves of them.
inline Bytes familyTemplate() {
    Bytes record = makeFamilyTemplate();
    overwrite(record, 205, Bytes(27, 'T'));
    return record;
}

inline Bytes newFamilyRecord(int number, int funds, std::uint32_t member, const std::string& name) {
    Bytes record = familyTemplate();
    for (const std::size_t offset : {9, 92, 133}) {
        overwrite(record, offset, u16(number));
    }
    overwrite(record, 96, u16(funds));
    overwrite(record, 116, u32(member));
    overwrite(record, 205, ByteWriter().text(name.substr(0, 24)).u8(0).u8(0).u8(0xA3).fillTo(24).written());
    return record;
}

inline void writeTemplates(const TempDirectory& files) {
    files.write("Template.iff", makeCharacterTemplate());
    files.write("famtemplate", familyTemplate());
}

inline SYSTEMTIME timeOf(WORD year, WORD month, WORD day, WORD hour, WORD minute) {
    return {year, month, 0, day, hour, minute, 0, 0};
}

// Saves on 5 March 2002 at 14:07, and after that a minute later each time.
class SaveTest : public testing::Test {
 public:
    ~SaveTest() override { backupClock().followSystem(); }

    void save(const TestNeighborhood& test) {
        backupClock().stopAt(timeOf(2002, 3, 5, 14, minute_++));
        test->save();
    }

    static void change(const TestNeighborhood& test, int sim, int stage) {
        ASSERT_NE(test.sim(sim).bodyStrings(), nullptr);
        EXPECT_EQ(test.sim(sim).setStage(stage, nullptr), 1);
    }

    static void moveOut(const TestNeighborhood& test, int family, int sim, const std::string& name, int funds) {
        ASSERT_GT(test.family(family).memberCount(), 0);
        auto moved = std::make_unique<Family>(*test);
        moved->setName(name.c_str());
        moved->setFunds(funds);
        EXPECT_EQ(test.family(family).removeMember(test.sim(sim)), 1);
        EXPECT_EQ(moved->addMember(test.sim(sim)), 1);
        EXPECT_EQ(test->addNewFamily(std::move(moved)), 1);
    }

    static constexpr const char* live = "UserData/neighborhood.iff";
    static constexpr const char* firstBackup = "UserData/Backups/neighborhood.200235.147.iff";
    static constexpr const char* secondBackup = "UserData/Backups/neighborhood.200235.148.iff";
    WORD minute_ = 7;
};

#endif
