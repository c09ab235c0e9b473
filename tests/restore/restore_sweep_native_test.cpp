// Kills a going back, and the making of a point, at each of their system calls, then makes each call fail.
#include <utility>

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

    // Makes the point, and what is gone back from.
    RestorePoint playAfterPoint() {
        RestorePoint target = point(make(PointReason::byHand).name);
        then_ = whole();
        files_.write(live, "played");
        files_.write("game/UserData/Houses/House02.iff", "built");
        files_.remove(ann);
        before_ = whole();
        return target;
    }

    // Each live file is that of one of the states, and the next finish leads to one.
    void expectFinished(Finish how) {
        auto files = whole();
        std::erase_if(files, [](const auto& file) { return file.first.find(".tidewright-") != std::string::npos; });
        for (const auto& [name, file] : files)
            EXPECT_TRUE((before_.contains(name) && file == before_[name]) || file == then_[name]) << name;
        if (unfinishedGoingBack(points())) {
            inChild([&] { finishGoingBack(points(), how, latest); });
            files = whole();
            EXPECT_EQ(files, how == Finish::undo ? before_ : then_);
        }
        EXPECT_FALSE(unfinishedGoingBack(points()));
        EXPECT_TRUE(files == before_ || files == then_);
    }

 protected:
    std::map<std::string, Whole> game_, then_, before_;
    bool syncFailed_ = false;
    static constexpr SYSTEMTIME later{2026, 11, 0, 26, 1, 0, 0, 0}, latest{2026, 11, 0, 26, 2, 0, 0, 0};

 private:
    void sweep(int answer, int begin, int step, const std::function<void()>& act, const std::function<void()>& expect) {
        int point = begin, answered = 0;
        do {
            for (const char* directory : {"game", "points"}) {
                fs::remove_all(files_.path(directory));
                fs::copy(kept_.path("all/" + std::string(directory)), files_.path(directory), copyAll);
            }
            setTimes();
            answered = -1;
            syncFailed_ = false;
            int calls = 0;
            runWithHeldCalls(act, [&](const seccomp_data& call) {
                if (++calls != point) return carryOut;
                answered = call.nr;
                syncFailed_ = answer > 0 && (answered == SYS_fsync || answered == SYS_syncfs);
                return answer;
            });
            SCOPED_TRACE(testing::Message()
                         << "answered " << answer << " at call " << point << ", number " << answered);
            expect();
            point += step;
        } while (answered >= 0 && !HasFailure());
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
    const auto act = [&] {
        std::ofstream(files_.path("said")) << goBack(points(), target, game(), allNeighborhoods, later).error;
    };
    sweep(act, [&] {
        EXPECT_TRUE(!syncFailed_ || files_.bytesOf("said") != Bytes()) << "overlooked";
        const bool isNeighborhoodBack = whole()["UserData/neighborhood.iff"] == then_["UserData/neighborhood.iff"];
        EXPECT_TRUE(!isNeighborhoodBack || files_.exists(ann)) << "the neighborhood file comes last";
        undoes = !undoes;
        expectFinished(undoes ? Finish::undo : Finish::complete);
        inChild([&] { goBack(points(), target, game(), allNeighborhoods, latest); });
        EXPECT_EQ(whole(), then_);
    });
}

TEST_F(RestoreSweepTest, AFinishThatIsStoppedIsDoneByTheNextOne) {
    const RestorePoint target = playAfterPoint();
    const auto inTheMiddle = [renames = 0](const seccomp_data& call) mutable {
        return call.nr == SYS_renameat && ++renames == 4 ? endProcess : carryOut;
    };
    runWithHeldCalls([&] { goBack(points(), target, game(), allNeighborhoods, later); }, inTheMiddle);
    ASSERT_TRUE(unfinishedGoingBack(points()) && whole() != before_);
    keep();
    for (const Finish how : {Finish::complete, Finish::undo})
        sweep([&] { finishGoingBack(points(), how, latest); },
              [&] {
                  expectFinished(how);
                  EXPECT_EQ(whole()["UserData/neighborhood.iff"],
                            (how == Finish::undo ? before_ : then_)["UserData/neighborhood.iff"]);
              });
}

TEST_F(RestoreSweepTest, WhatAnotherProgramWritesMeanwhileIsNotReplaced) {
    const RestorePoint target = playAfterPoint();
    bool isWritten = false;
    const auto write = [&](const seccomp_data& call) {
        if (call.nr == SYS_renameat && !std::exchange(isWritten, true)) files_.write(live, "by the game");
        return carryOut;
    };
    runWithHeldCalls([&] { goBack(points(), target, game(), allNeighborhoods, later); }, write);
    EXPECT_TRUE(unfinishedGoingBack(points()));
    EXPECT_EQ(files_.bytesOf(live), bytesFrom("by the game"));
}

}  // namespace
