// Kills a going back, and the making of a point, at each of their system calls, then makes each call fail.
#include "tests/restore/restore_test.h"
#include "tests/support/native/held_calls.h"
#include "tests/support/scoped_variable.h"

namespace {

// Thousands of small trees are made and deleted: on a disk that takes seven times as long.
struct InMemory {
    ScopedVariable place{"TMPDIR", "/dev/shm"};
};

class RestoreSweepTest : InMemory, public RestoreTest {
 public:
    // The game and its points as they are now are what each try begins with.
    void keep() {
        game_ = whole();
        fs::copy(files_.path(), kept_.path("all"), copyAll);
    }

    // Does `act` in a child for each of its calls that is killed, or for every fourth that fails, and then has `expect`
    // look at what it left.
    void sweep(const std::function<void()>& act, const std::function<void()>& expect) {
        int begin = 0;
        for (const int answer : {endProcess, ENOSPC, EIO, EPERM, EMFILE})
            sweep(answer, answer == endProcess ? 1 : ++begin, answer == endProcess ? 1 : 4, act, expect);
    }

    // Without waiting for the disk.
    static void inChild(const std::function<void()>& act) {
        runWithHeldCalls(act, [](const seccomp_data&) { return carryOut; });
    }

    // At least so many, and nothing that is left over.
    void expectWholePoints(std::size_t count) const {
        auto all = listRestorePoints(points());
        checkPoints(points(), all);
        EXPECT_GE(all.size(), count);
        for (const RestorePoint& one : all)
            EXPECT_EQ(one.damage, "") << one.name;
        for (const auto& entry : fs::directory_iterator(files_.path("points")))
            EXPECT_EQ(entry.path().string().find(".tidewright-"), std::string::npos) << entry.path();
    }

    // Each file but those on the way is as before or as it was in the point.
    void expectWholeFiles() const {
        for (const auto& [name, file] : withoutParts())
            EXPECT_TRUE((before_.contains(name) && file == before_.at(name)) ||
                        (then_.contains(name) && file == then_.at(name)))
                << name;
    }
    std::map<std::string, Whole> withoutParts() const {
        auto files = whole();
        std::erase_if(files, [](const auto& file) { return file.first.find(".tidewright-") != std::string::npos; });
        return files;
    }

    // Makes the point, and what is gone back from.
    RestorePoint playAfterPoint() {
        RestorePoint target = point(make().name);
        then_ = whole();
        files_.write(live, "played");
        files_.write("game/UserData/Houses/House02.iff", "built");
        files_.remove(ann);
        before_ = whole();
        return target;
    }

 protected:
    std::map<std::string, Whole> game_, then_, before_;
    int answered_ = -1;  // the number of the call that didn't go on; negative if all did
    bool wasKilled_ = false;
    static constexpr SYSTEMTIME later{2026, 11, 0, 26, 1, 0, 0, 0}, latest{2026, 11, 0, 26, 2, 0, 0, 0};

 private:
    void sweep(int answer, int begin, int step, const std::function<void()>& act, const std::function<void()>& expect) {
        int point = begin;
        wasKilled_ = answer == endProcess;
        do {
            for (const char* directory : {"game", "points"}) {
                fs::remove_all(files_.path(directory));
                fs::copy(kept_.path("all/" + std::string(directory)), files_.path(directory), copyAll);
            }
            setTimes();
            answered_ = -1;
            int calls = 0;
            runWithHeldCalls(act, [&](const seccomp_data& call) {
                if (++calls != point) return carryOut;
                answered_ = call.nr;
                return answer;
            });
            SCOPED_TRACE(testing::Message()
                         << "answered " << answer << " at call " << point << ", number " << answered_);
            expect();
            point += step;
        } while (answered_ >= 0 && !HasFailure());
        EXPECT_GT(point, 30);
    }

    void setTimes() const {
        for (const auto& [name, file] : game_)
            fs::last_write_time(files_.path("game/" + name), file.time);
    }

    static constexpr auto copyAll = fs::copy_options::recursive;
    TempDirectory kept_;
};

TEST_F(RestoreSweepTest, APointThatIsListedIsWhole) {
    make();
    files_.write(live, "played");
    keep();
    sweep([this] { makeRestorePoint(points(), game(), PointReason::byHand, later); },
          [this] {
              EXPECT_EQ(whole(), game_);
              inChild([this] { makeRestorePoint(points(), game(), PointReason::byHand, latest); });
              expectWholePoints(2);
          });
}

TEST_F(RestoreSweepTest, APointThatIsBeingDeletedIsWholeOrGone) {
    const std::string first = make().name;
    files_.write(live, "played");
    make();
    keep();
    sweep([&] { deleteRestorePoint(points(), first); },
          [this] {
              inChild([this] { makeRestorePoint(points(), game(), PointReason::byHand, latest); });
              expectWholePoints(2);
          });
}

TEST_F(RestoreSweepTest, AGoingBackThatIsStoppedIsCompletedOrUndone) {
    const RestorePoint target = playAfterPoint();
    keep();
    bool undoes = false;
    sweep(
        [&] { std::ofstream(files_.path("said")) << goBack(points(), target, game(), allNeighborhoods, later).error; },
        [&] {
            const bool isSync = answered_ == SYS_fsync || answered_ == SYS_syncfs;
            EXPECT_TRUE(wasKilled_ || !isSync || files_.bytesOf("said") != Bytes()) << "overlooked";
            expectWholeFiles();
            const bool isNeighborhoodBack =
                whole()["UserData/neighborhood.iff"] == then_.at("UserData/neighborhood.iff");
            EXPECT_TRUE(!isNeighborhoodBack || files_.exists(ann)) << "the neighborhood file comes last";
            if (unfinishedGoingBack(points())) {
                undoes = !undoes;
                inChild([&] { finishGoingBack(points(), undoes ? Finish::undo : Finish::complete, latest); });
                EXPECT_EQ(whole(), undoes ? before_ : then_);
            } else {
                EXPECT_TRUE(withoutParts() == before_ || withoutParts() == then_);
            }
            EXPECT_FALSE(unfinishedGoingBack(points()));
            inChild([&] { goBack(points(), target, game(), allNeighborhoods, latest); });
            EXPECT_EQ(whole(), then_);
        });
}

TEST_F(RestoreSweepTest, AFinishThatIsStoppedIsDoneByTheNextOne) {
    const RestorePoint target = playAfterPoint();
    int renames = 0;
    runWithHeldCalls([&] { goBack(points(), target, game(), allNeighborhoods, later); },
                     [&](const seccomp_data& call) {
                         const bool isInTheMiddle = call.nr == SYS_renameat && ++renames == 4;
                         return isInTheMiddle ? endProcess : carryOut;
                     });
    ASSERT_TRUE(withoutParts() != before_ && withoutParts() != then_);
    keep();
    for (const Finish how : {Finish::complete, Finish::undo})
        sweep([&] { finishGoingBack(points(), how, latest); },
              [&] {
                  expectWholeFiles();
                  if (unfinishedGoingBack(points())) inChild([&] { finishGoingBack(points(), how, latest); });
                  EXPECT_FALSE(unfinishedGoingBack(points()));
                  EXPECT_EQ(withoutParts(), how == Finish::undo ? before_ : then_);
              });
}

}  // namespace
