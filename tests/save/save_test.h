// A small neighborhood with all that a save can have to do: Ann has become a teen and Bob an adult, then Cleo and
// Bob have moved out. What a save is expected to leave of it is put together by the sample's own builders and from
// offsets counted in the formats.
#ifndef TESTS_SAVE_SAVE_TEST_H
#define TESTS_SAVE_SAVE_TEST_H

#include <numeric>

#include "gamefiles/templates.h"
#include "sample/fact_template.h"
#include "save/backup_names.h"
#include "tests/support/test_neighborhood.h"

constexpr char allSaved[] = "new, backup old; new, backup old; new, backup old";

class SaveTest : public testing::Test {
 public:
    SaveTest() {
        characters_[0].slots.fill(std::string(25, 'x'));  // together longer than their room
        for (SampleNeighbor& neighbor : neighbors_)
            std::iota(neighbor.personValues.begin(), neighbor.personValues.end(), 0x1000);
    }
    ~SaveTest() override { backupClock().followSystem(); }

    // Writes the files, reads them and makes the changes. The neighborhood has the chunks and the map of `shape`, and
    // its families behind those of the household. `ofLaterEditions` is true for each Sim whose record and file are.
    void start(SampleNeighborhood shape = {.freeRoom = true, .fileSize = 40'000},
               const std::array<bool, 3>& ofLaterEditions = {}) {
        later_ = ofLaterEditions;
        neighbors_[1].kind = bobsKind;
        for (std::size_t i = 0; i < neighbors_.size(); ++i) {
            const auto& [version, ending] = ofBaseGame.at(i);
            neighbors_[i].later = later_.at(i);
            neighbors_[i].version = later_.at(i) ? 9 : version;
            characters_[i].ending = later_.at(i) ? BodyEnding::atEntry34 : ending;
        }
        shape.neighbors = neighbors_;
        shape.families.insert(shape.families.begin(), {{.funds = 90'000, .members = {1, 2, 3, stranger}},
                                                       {.number = 3, .members = {}},
                                                       {.number = 40, .name = "Default"}});
        test_.reset();  // it takes the working directory back
        test_ = std::make_unique<TestNeighborhood>(shape, characters_);
        EXPECT_TRUE(writeTemplates(files().path()));
        Bytes familyTemplate = makeFamilyTemplate();
        overwrite(familyTemplate, 205, Bytes(24, 'x'));  // of a player's, whose name doesn't stay
        files().write("famtemplate", familyTemplate);
        original_ = treeOf(files().path());
        cut_ = !shape.before.empty() ? 64 : shape.freeRoom ? test_->built().freeRoomOffset : test_->built().mapOffset;
        versions_ = {{live, {{original_.at(live), "old"}}}};
        for (const std::size_t sim : {0U, 1U}) {
            const std::string file = TestNeighborhood::characterFile(characters_[sim].recordName);
            versions_[file] = {{original_.at(file), "old"}, {savedCharacter(sim), "new"}};
        }
        versions_[live].insert({{newNeighborhood(true, true), "new"},
                                {newNeighborhood(false, true), "new without Ann"},
                                {newNeighborhood(true, false), "new without Bob"},
                                {newNeighborhood(false, false), "new without both"}});
        change(test_->sim(0), stageNumber::teen);
        change(test_->sim(1), stageNumber::adult);
        moveOut(2, cleos, 40'000);
        moveOut(1, bobs, 700);
        test_->family(0).setFunds(70'000);
        test_->family(1).setFunds(1);  // no one moves out of it, so it stays as in the file
    }

    // On 5 March 2002, seven minutes past two in the afternoon or another minute.
    void save(WORD minute = 7) const {
        backupClock().stopAt({2002, 3, 0, 5, 14, minute, 0, 0});
        test()->save(test()->toolDirectory());
    }

    // Changes the stage as the window does: it has asked for the GUID, the name and the body before.
    static void change(Sim& sim, int stage) {
        sim.guid();
        sim.name();
        ASSERT_NE(sim.bodyStrings(), nullptr);
        EXPECT_EQ(sim.setStage(stage, nullptr), 1);
    }

    void moveOut(int sim, const std::string& name, int funds) const {
        auto moved = std::make_unique<Family>(*test());
        moved->setName(name.c_str());
        moved->setFunds(funds);
        ASSERT_GT(test().family().memberCount(), 0);
        EXPECT_EQ(test().family().removeMember(test().sim(sim)), 1);
        EXPECT_EQ(moved->addMember(test().sim(sim)), 1);
        EXPECT_EQ(test()->addNewFamily(std::move(moved)), 1);
    }

    TestNeighborhood& test() const { return *test_; }
    const TempDirectory& files() const { return test_->files(); }
    const Tree& original() const { return original_; }

    // Money and members of the family that was left, in a table that keeps its size.
    void overwriteFamily(Bytes& file, int funds, const std::vector<std::uint32_t>& members) const {
        const std::size_t table = test_->built().families[0].memberTable;
        ByteWriter guids;
        for (const std::uint32_t member : members)
            guids.u32Le(member);
        overwrite(file, table - 20, u32(funds));
        overwrite(file, table - 4, u16(static_cast<int>(members.size())));
        overwrite(file, table, guids.fillTo(16).written());
    }

    // A member of later editions takes a longer record.
    Bytes newFamilyRecord(int number, int funds, std::uint32_t member, const std::string& name) const {
        const bool isLater = later_.at(member - 1);
        Bytes record = makeFamilyTemplate(isLater ? Editions::later : Editions::base);
        for (const std::size_t offset : {9U, 92U, isLater ? 145U : 133U})
            overwrite(record, offset, u16(number));
        overwrite(record, 96, u16(funds));
        overwrite(record, 116, u32(member));
        overwrite(record, isLater ? 217 : 205,
                  ByteWriter().text(name.substr(0, 24)).u8(0).u8(0).u8(0xA3).fillTo(24).written());
        return record;
    }

    static Bytes u16(int value) { return ByteWriter().u16Le(value).written(); }
    static Bytes u32(std::int64_t value) { return ByteWriter().u32Le(value).written(); }

    // What a save at seven minutes past two has under its names: of Ann's file, of Bob's and of the
    // neighborhood's, such as "old, temporary new, backup old" each. A new neighborhood may lack a record, as "new
    // without Ann". A part is what is on its way to the live name or the backup's. Other files that have come, gone or
    // changed follow by name.
    std::string states() const {
        Tree before = original_, now = treeOf(files().path());
        std::string states;
        for (const auto& [file, versions] : versions_) {
            const std::string directory = file.substr(0, file.rfind('/') + 1), name = file.substr(directory.size());
            const std::string date = file == live ? ".200235.147" : ".200235";
            const std::string backup = directory + "Backups/" + name.substr(0, name.rfind('.')) + date + ".iff";
            states += (states.empty() ? "" : "; ") + std::string(now.contains(file) ? "" : "gone");
            for (const auto& [what, copy] : {std::pair("", file),
                                             {", temporary ", directory + "TMP" + name},
                                             {", backup ", backup},
                                             {", aside ", file + ".tidewright-old0"},
                                             {", part ", file + ".tidewright-new0"},
                                             {", backup's part ", backup + ".tidewright-new0"}}) {
                before.erase(copy);
                if (!now.contains(copy)) continue;
                const auto version = versions.find(now.extract(copy).mapped());
                states += what + (version != versions.end() ? version->second : "other bytes");
            }
        }
        const std::string others = differences(before, now);
        return others.empty() ? states : states + "; " + others;
    }

    int bobsKind = 0;
    static constexpr const char* live = TestNeighborhood::neighborhoodFile;
    static constexpr std::uint32_t stranger = 0x44434241;  // a member without a record

 private:
    Bytes savedCharacter(std::size_t index) const {
        const SampleCharacter& sim = characters_[index];
        const bool isLater = later_.at(index);
        const int version = neighbors_[index].version;
        using enum BodyEnding;
        const BodyEnding ending = isLater ? atEntry34 : version < 7 ? atEntry29 : atEntry33;
        Bytes text = filledBodyStringText(sim.slots, ending, 1041, sim.lastEntry);
        text.resize(1041);
        Bytes file = makeFactTemplate(isLater ? Editions::later : Editions::base);
        overwrite(file, 3988, bytesFrom(sim.recordName));
        overwrite(file, 4080, u32(sim.guid));
        overwrite(file, 4349, ByteWriter().field(sim.name.substr(0, 63), 64).written());
        overwrite(file, 54097, bytesFrom("adult"));
        overwrite(file, 54102, text);
        return file;
    }

    // The neighbor record of Ann or Bob.
    Bytes savedRecord(std::size_t index) const {
        SampleNeighbor sim = neighbors_[index];
        const bool teen = index == 0;
        sim.age = teen ? 18 : 27;
        sim.personValues[27] = teen ? 4 : 0;
        sim.personValues[28] = 0;
        for (const std::size_t value : {8U, 9U, 10U, 13U, 15U, 16U})
            if (teen) sim.personValues[value] = 0;
        if (sim.later) return sampleNeighborRecord(sim);  // all that has no field stays
        sim.gapByte = 0;
        Bytes record = sampleNeighborRecord(sim);
        record.resize(186);
        overwrite(record, 23, Bytes(3));  // the sample's version is wider than the one byte that is written
        if (sim.kind > 1) overwrite(record, 158, Bytes(2, neighbors_[index].gapByte));  // a pet's kind isn't written
        return record;
    }

    Bytes newNeighborhood(bool withAnn, bool withBob) const {
        Bytes file = test_->built().bytes;
        if (withAnn) overwrite(file, test_->built().neighborOffsets[0], savedRecord(0));
        if (withBob) overwrite(file, test_->built().neighborOffsets[1], savedRecord(1));
        overwriteFamily(file, 70'000, {1, stranger});
        overwrite(file, 61, Bytes(3));
        if (cut_ > 0) file.resize(cut_);
        const Bytes first = newFamilyRecord(41, 40'000, 3, cleos), second = newFamilyRecord(42, 700, 2, bobs);
        return ByteWriter().bytes(file).bytes(first).bytes(second).written();
    }

    static constexpr std::array<std::pair<int, BodyEnding>, 3> ofBaseGame = {
        {{8, BodyEnding::atEntry33}, {6, BodyEnding::atEntry32}, {7, BodyEnding::atEntry32}}};
    std::array<bool, 3> later_{};
    const std::string cleos = std::string(21, 'c'), bobs = std::string(99, 'b');
    std::vector<SampleCharacter> characters_ = {
        {.name = std::string(64, 'a'), .guid = 1, .tag = "child"},
        {.recordName = "user00002", .name = "Bob", .guid = 2, .lastEntry = "h5=h5", .hasPictures = false},
        {.recordName = "user00003", .name = "Cleo", .guid = 3, .hasPictures = false}};
    // Their bytes that have no field aren't written again.
    std::vector<SampleNeighbor> neighbors_ = {
        {.age = 9, .wordA = 0x1234, .wordB = -2, .tailWords = {0x0102, 0x0304, 0x0506, -1}, .gapByte = 9},
        {.recordName = "user00002", .skinTone = 3, .gapByte = 9},
        {.recordName = "user00003", .gapByte = 9}};
    std::unique_ptr<TestNeighborhood> test_;
    std::size_t cut_ = 0;  // where new families begin; 0 for the end of the file
    Tree original_;
    std::map<std::string, std::map<Bytes, std::string>> versions_;  // by the live file's name
};

#endif
