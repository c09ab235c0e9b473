// A game with one neighborhood, and an evening in which a child becomes a teenager and an adult moves out.
#ifndef TESTS_START_EVENING_GAME_H
#define TESTS_START_EVENING_GAME_H

#include <chrono>
#include <ctime>

#include "sample/fact_template.h"
#include "start/evening.h"
#include "tests/support/test_neighborhood.h"
#include "tests/support/user.h"

class EveningTest : public testing::Test {
 protected:
    // The neighborhood has the chunks and the map of `shape`, and its families behind the Thistlewoods. The copy from
    // before the evening is in "before".
    void start(SampleNeighborhood shape = {.freeRoom = true}, bool ofLaterEditions = false) {
        shape.neighbors = {{.age = 9, .guid = 1}, {.recordName = "user00002", .guid = 2}};
        shape.neighbors.push_back({.recordName = "user00003", .kind = 0, .guid = 3});
        for (std::size_t i = 0; ofLaterEditions && i < characters_.size(); ++i) {
            shape.neighbors[i].later = true;
            shape.neighbors[i].version = 9;
            characters_[i].ending = BodyEnding::atEntry34;
        }
        shape.families.insert(shape.families.begin(),
                              {.name = "Thistlewood", .funds = 62'500, .members = {1, 2, 3, 0x44434241}});
        test_.reset();  // it takes the working directory back
        test_ = std::make_unique<TestNeighborhood>(shape, characters_);
        EXPECT_TRUE(writeTemplates(files().path()));
        copyToBefore();
        for (const char* const tree : {"UserData", "before/UserData"})
            for (const auto& entry : fs::recursive_directory_iterator(files().path(tree)))
                if (entry.is_regular_file()) fs::last_write_time(entry.path(), hourAgo_);
        fs::current_path(files().path());
    }

    void copyToBefore() const {
        fs::create_directory(files().path("before"));
        fs::copy(files().path("UserData"), files().path("before/UserData"), fs::copy_options::recursive);
    }

    void save(bool childGrows = true, bool adultMovesOut = true) const {
        test_->load();
        Sim &clover = test_->sim(0), &bramble = test_->sim(1);
        clover.name(), clover.guid(), clover.bodyStrings();
        auto teen = std::make_unique<BodyStrings>(genderNumber::female, 1, 1, 7, 0);
        if (childGrows) clover.setStage(stageNumber::teen, std::move(teen));
        EXPECT_GT(test_->family().memberCount(), 0);
        if (adultMovesOut) bramble.splitToNewFamily("Thistlewood", 20'000);
        (*test_)->save((*test_)->toolDirectory());
        fs::current_path(files().path());  // a save changes it
    }

    const TempDirectory& files() const { return test_->files(); }
    std::string game() const { return files().path() + "\\"; }
    Evening evening() const { return {files().path("before") + "\\", game(), begin_}; }
    void write(const std::string& name, const Bytes& bytes) const { files().write("UserData/" + name, bytes); }
    void patch(const std::string& name, std::size_t offset, std::string_view text) const {
        Bytes file = bytesOf(name);
        overwrite(file, offset, bytesFrom(text));
        write(name, file);
    }
    // Of the file before the evening.
    void bringBack(const std::string& name, const std::string& as) const {
        write(as, files().bytesOf("before/UserData/" + name));
        fs::last_write_time(files().path("UserData/" + as), hourAgo_);
    }
    Bytes bytesOf(const std::string& name) const { return files().bytesOf("UserData/" + name); }

    std::vector<SampleCharacter> characters_ = {
        {.name = "Clover", .guid = 1, .tag = "child", .slots = childSlots(), .ending = BodyEnding::atEntry33},
        {.recordName = "user00002", .name = "Bramble", .guid = 2},
        {.recordName = "user00003", .name = "Rowan", .guid = 3, .slots = adultSlots(BodySex::male)}};
    std::unique_ptr<TestNeighborhood> test_;
    const fs::file_time_type hourAgo_ = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const std::time_t begin_ = std::time(nullptr);
    AnsweredBox box_ = answerNextBox(IDOK);  // a test with boxes of its own resets it
    ~EveningTest() override { EXPECT_TRUE(!box_ || !box_->shown) << box_->text; }
};

#endif
