// Kills a save at each of its system calls in turn, then makes each call fail in turn.
#include <fcntl.h>
#include <sys/syscall.h>

#include <cerrno>
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
    SaveSweepTest() { start(); }

    // Saves twice in a child, from the same beginning each time. `decide` judges the calls of the first save.
    void saveTwice(const CallDecision& decide) {
        std::filesystem::remove_all(files().path("UserData"));
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
            return saves == 0 ? decide(call) : heldCall::carryOut;
        });
        if (saves == 0) noteFirst();
    }

    // Saves twice for each call from `begin` on, in steps of `step`: the first save gets `answer` for that call.
    void sweep(int answer, int begin, int step, bool hasNamelessFiles = true) {
        int point = begin;
        do {
            int calls = 0;
            answeredCall_ = -1;
            saveTwice([&](const seccomp_data& call) {
                const bool opensNameless = call.nr == SYS_openat && (call.args[2] & O_TMPFILE) == O_TMPFILE;
                if (++calls != point) return opensNameless && !hasNamelessFiles ? EOPNOTSUPP : heldCall::carryOut;
                answeredCall_ = static_cast<int>(call.nr);
                return answer;
            });
            SCOPED_TRACE(testing::Message() << "answered " << answer << " at call " << point << ", number "
                                            << answeredCall_ << ", nameless files: " << hasNamelessFiles);
            expectNothingLost(answer != heldCall::endProcess);
            if (answer != heldCall::endProcess) expectHomeOrMarked();
            point += step;
        } while (answeredCall_ >= 0 && !HasFailure());
        EXPECT_GT(point, 100);
        EXPECT_EQ(afterFirst_, allSaved) << "without an answer";
    }

 private:
    // Both versions of each file are somewhere whole. A failed backup doesn't stop the save; then only the new version
    // is left. But a directory that can't be entered does stop it.
    void expectNothingLost(bool backupsMayFail) const {
        const std::string withBackups =
            "old(, temporary (new|other bytes))?|(old|gone|new), temporary new, backup old|new, backup old";
        const bool needsBackups = !backupsMayFail || answeredCall_ == SYS_chdir;
        const std::string each = "(" + withBackups + (needsBackups ? ")" : "|new(, temporary new)?)");
        const std::string versions = std::regex_replace(afterFirst_, std::regex(" without (Ann|Bob|both)"), "");
        EXPECT_TRUE(std::regex_match(versions, std::regex(each + "; " + each + "; " + each))) << afterFirst_;
        // The record of a Sim that has its new file may be missing only together with all that the save wrote.
        const std::regex newWithoutRecord("new; .*(Ann|both)|.*; new; .*(Bob|both)");
        EXPECT_FALSE(std::regex_match(livesOf(afterFirst_), newWithoutRecord)) << afterFirst_;
    }

    // A file that couldn't take its live name waits under its temporary one; all else is home after the next save. Only
    // the neighborhood file may wait unmarked.
    void expectHomeOrMarked() const {
        const std::string first = livesOf(afterFirst_), home = "new; new; new";
        const bool waits = first.find("gone") != std::string::npos, isInstalled = !first.ends_with("gone");
        EXPECT_TRUE(first == home || isMarkedAfterFirst_ || !isInstalled) << afterFirst_;
        // Behind the third state are the backups of the second save.
        EXPECT_TRUE((livesOf(states()) + ";").starts_with(home + ";") || waits) << states();
        EXPECT_TRUE(!waits || isMarked_ || !isInstalled) << afterFirst_;
    }

    void noteFirst() {
        afterFirst_ = states();
        isMarkedAfterFirst_ = isMarked_;
    }

    std::string afterFirst_;
    bool isMarked_ = false, isMarkedAfterFirst_ = false;
    int answeredCall_ = -1;
};

TEST_F(SaveSweepTest, AKilledSaveLosesNothing) {
    sweep(heldCall::endProcess, 1, 1);
}

TEST_F(SaveSweepTest, AFailedCallLosesNothingAndLeavesTheRestMarked) {
    for (const bool hasNamelessFiles : {true, false}) {
        const int step = std::getenv("TIDEWRIGHT_ALL_POINTS") != nullptr ? 1 : hasNamelessFiles ? 4 : 12;
        int begin = 1;  // another one for each error: together they meet all calls, or with a step of 12 a third
        for (const int error : {ENOSPC, EIO, EACCES, EMFILE})
            sweep(error, step == 1 ? 1 : begin++, step, hasNamelessFiles);
    }
}

TEST_F(SaveSweepTest, EachVersionIsOnTheDiskBeforeAnOlderOneGoes) {
    std::string calls;
    saveTwice([&](const seccomp_data& call) {
        if (call.nr == SYS_fsync) calls += "sync ";
        if (call.nr == SYS_linkat) calls += "name ";
        if (call.nr == SYS_unlinkat) calls += "delete ";
        return heldCall::carryOut;
    });
    // The temporary file, the backup's copy and the live file's are synced; the first of these two is named before the
    // old file goes, the second before the temporary one does. Elsewhere than on ext4 each naming is synced as well.
    // In front are the syncs of the new directories of backups, the Sims' and the neighborhood's.
    const std::string ofEach = "sync sync sync name delete name delete ";
    EXPECT_EQ(std::regex_replace(calls, std::regex("name sync"), "name"),
              "sync " + ofEach + ofEach + "sync " + ofEach + "sync ");
}

}  // namespace
