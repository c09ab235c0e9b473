// Kills a save at each of its system calls in turn, then makes each call fail in turn.
#include <unistd.h>

#include <cstdlib>
#include <regex>

#include "tests/save/save_test.h"
#include "tests/support/native/held_calls.h"

namespace {

// The saving child reports the end of each save by duplicating one of these descriptors. It says whether closing the
// window would ask now.
constexpr int unmarked = -1, marked = -2;

// Of the live files alone, such as "old; new; gone".
std::string livesOf(const std::string& states) {
    return std::regex_replace(states, std::regex(",[^;]*"), "");
}

class SaveSweepTest : public SaveTest {
 public:
    SaveSweepTest() { start({.freeRoom = true, .fileSize = 40'000}, {true, false, true}); }

    // Saves twice in a child, from the same beginning each time. `decide` judges the calls of the first save.
    void saveTwice(const CallDecision& decide) {
        fs::remove_all(files().path("UserData"));
        for (const auto& [name, bytes] : original())
            files().write(name, bytes);
        int saves = 0;
        const auto act = [this] {
            for (const WORD minute : {WORD{7}, WORD{8}}) {
                save(minute);
                syscall(SYS_dup, test()->isDirty() ? marked : unmarked);
            }
        };
        runWithHeldCalls(act, [&](const seccomp_data& call) {
            const int descriptor = static_cast<int>(call.args[0]);
            if (call.nr == SYS_dup && descriptor < 0) {
                isMarked_ = descriptor == marked;
                if (++saves == 1) noteFirst();
            }
            return saves == 0 ? decide(call) : carryOut;
        });
        if (saves == 0) noteFirst();
    }

    // Saves twice for each call from `begin` on, in steps of `step`: the first save gets `answer` for that call.
    void sweep(int answer, int begin, int step) {
        int point = begin;
        do {
            int calls = 0;
            answeredCall_ = -1;
            saveTwice([&](const seccomp_data& call) {
                if (++calls != point) return carryOut;
                answeredCall_ = static_cast<int>(call.nr);
                return answer;
            });
            SCOPED_TRACE(testing::Message()
                         << "answered " << answer << " at call " << point << ", number " << answeredCall_);
            expectNothingLost(answer == endProcess);
            answer == endProcess ? expectThatTheNextSaveClearsUp() : expectHomeOrMarked();
            point += step;
        } while (answeredCall_ >= 0 && !HasFailure());
        EXPECT_GT(point, 100);
        EXPECT_EQ(afterFirst_, allSaved) << "without an answer";
    }

 protected:
    std::string afterFirst_;
    bool isMarked_ = false, isMarkedAfterFirst_ = false;

 private:
    // No file is partial but those on the way, and of each there is an old and a new version: an old one for as long as
    // there is no new one, and beside the new one at least under the name by which it was set aside.
    void expectNothingLost(bool hasBackup) const {
        const std::string before = "old(, temporary (new|other bytes))?(, backup old)?";
        const std::string between = "gone, temporary new, backup old, aside old, part new";
        const std::string withoutBackup = hasBackup ? ")" : "|, aside old)";
        const std::string after = "new(, temporary new)?(, backup old|, backup old, aside old" + withoutBackup;
        const std::string onTheWay = "(, part (new|other bytes))?(, backup's part (old|other bytes))?";
        const std::string each = "(" + before + "|" + between + "|" + after + ")" + onTheWay;
        const std::string versions = std::regex_replace(afterFirst_, std::regex(" without (Ann|Bob|both)"), "");
        EXPECT_TRUE(std::regex_match(versions, std::regex(each + "; " + each + "; " + each))) << afterFirst_;
        // The record of a Sim that has its new file may be missing only together with all that the save wrote.
        const std::regex newWithoutRecord("new; .*(Ann|both)|.*; new; .*(Bob|both)");
        EXPECT_FALSE(std::regex_match(livesOf(afterFirst_), newWithoutRecord)) << afterFirst_;
    }

    // The parts go, and what was set aside comes back.
    void expectThatTheNextSaveClearsUp() const {
        runWithHeldCalls([this] { save(8); }, [](const seccomp_data&) { return carryOut; });
        const std::string whole = "(old|new)(, temporary (new|other bytes))?(, backup [a-z ]+)?";
        const std::string secondBackup = "(; UserData/Backups/neighborhood.200235.148.iff\n)?";
        const std::regex clear(whole + "; " + whole + "; " + whole + secondBackup);
        EXPECT_TRUE(std::regex_match(states(), clear)) << afterFirst_ << " became " << states();
    }

    // All is home after the next save, and until then the window asks.
    void expectHomeOrMarked() const {
        EXPECT_TRUE(livesOf(afterFirst_) == "new; new; new" || isMarkedAfterFirst_) << afterFirst_;
        EXPECT_FALSE(livesOf(afterFirst_).find("gone") != std::string::npos) << afterFirst_;
        // Behind the third state are the backups of the second save.
        EXPECT_TRUE((livesOf(states()) + ";").starts_with("new; new; new;") && !isMarked_) << states();
    }

    void noteFirst() {
        afterFirst_ = states();
        isMarkedAfterFirst_ = isMarked_;
    }

    int answeredCall_ = -1;
};

TEST_F(SaveSweepTest, AKilledSaveLosesNothing) {
    sweep(endProcess, 1, 1);
}

TEST_F(SaveSweepTest, AFailedCallLosesNothingAndLeavesTheRestMarked) {
    const bool isWhole = std::getenv("TIDEWRIGHT_ALL_POINTS") != nullptr;
    int begin = 1;  // another one for each error, so that together they meet all calls
    for (const int error : {ENOSPC, EIO, EACCES, EMFILE})
        sweep(error, isWhole ? 1 : begin++, isWhole ? 1 : 4);
}

TEST_F(SaveSweepTest, ASyncThatFailsCostsNoVersion) {
    const std::string others = "; new, backup old; new without Ann, backup old";
    const std::tuple<const char*, int, std::string, bool> rows[] = {
        {"the temporary file", 1, "old, temporary new" + others, true},
        {"the backup, which is made again", 2, allSaved, false},
        {"the new file", 3, "old, temporary new" + others, true},
        {"the backup's name", 4, allSaved, false},
        {"the new file's name beside the old one", 5, "old, temporary new, backup old" + others, true},
        {"the new file's name", 6, "new, temporary new, backup old, aside old; new, backup old; new, backup old",
         false}};
    for (const auto& [notOnDisk, number, after, isMarked] : rows) {
        for (const int error : {EIO, EINVAL, ENOTSUP}) {
            SCOPED_TRACE(testing::Message() << notOnDisk << ", error " << error);
            int left = number;
            saveTwice([&](const seccomp_data& call) { return call.nr == SYS_fsync && --left == 0 ? error : carryOut; });
            EXPECT_EQ(afterFirst_, error == EIO ? after : allSaved);
            EXPECT_EQ(isMarkedAfterFirst_, error == EIO && isMarked);
        }
    }
    files().write("UserData/neighborhood.iff.tidewright-old0", "older");
    runWithHeldCalls([this] { save(); },
                     [](const seccomp_data& call) { return call.nr == SYS_fsync ? EIO : carryOut; });
    EXPECT_TRUE(files().exists("UserData/neighborhood.iff.tidewright-old0")) << "until the newer name is on the disk";
}

TEST_F(SaveSweepTest, WhatOthersWriteMeanwhileStaysAndIsNotSavedOver) {
    const std::string othersPart = "UserData/lost.iff.tidewright-new0";
    const struct {
        const char* what;
        int call, number;  // of all calls with that number
        std::string file;  // written in front of that call
        int answer;
        std::string after;
        bool isMarked;
    } rows[] = {{"Bob's file is in its place, and a backup of the neighborhood's isn't made yet", SYS_renameat, 4, live,
                 carryOut, "new, backup old; new, backup old; other bytes, temporary new", true},
                {"the neighborhood's backup is complete, and gets its name", SYS_renameat, 7, live, carryOut,
                 "new, backup old; new, backup old; other bytes, temporary new, backup old", true},
                {"the live file was compared, and isn't copied yet", SYS_ftruncate, 1, live, carryOut,
                 "old; old; other bytes, temporary other bytes", true},
                {"nothing can be locked, so another save may be making it", SYS_flock, 1, othersPart, ENOLCK,
                 std::string(allSaved) + "; " + othersPart + "\n", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        int calls = 0;
        saveTwice([&](const seccomp_data& call) {
            if (call.nr != row.call || ++calls != row.number) return carryOut;
            files().write(row.file, "of another program");
            return row.answer;
        });
        EXPECT_EQ(afterFirst_, row.after);
        EXPECT_EQ(isMarkedAfterFirst_, row.isMarked);
        EXPECT_EQ(isMarked_, row.isMarked) << "the second save leaves it alone, too";
    }
}

}  // namespace
