// A save that is ended at each of its system calls in turn, and one in which each call fails in turn.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <new>
#include <optional>
#include <regex>

#include "tests/save/changed_household.h"
#include "tests/support/native/held_calls.h"

namespace {

using enum Holds;

constexpr Copies saved = {newFile, nothing, oldFile};
constexpr OnDisk allSaved = {saved, saved, saved};

// What the saving child lets the test know.
struct Progress {
    int saves = 0;
    bool isMarked = false;  // whether closing the window would ask, after the last of them
};

bool opensNamelessFile(const seccomp_data& call) {
    return call.nr == SYS_openat && (call.args[2] & O_TMPFILE) == O_TMPFILE;
}

class SaveSweepTest : public ChangedHousehold {
 public:
    using Decide = std::function<int(const seccomp_data& call)>;

    SaveSweepTest() { start(); }
    ~SaveSweepTest() override { munmap(progress_, sizeof *progress_); }

    // Saves twice in a child, from the same beginning each time. `decide` judges the calls of the first save.
    void saveTwice(const Decide& decide) {
        std::filesystem::remove_all(files().path("UserData"));
        for (const auto& [name, bytes] : original())
            files().write(name, bytes);
        *progress_ = {};
        afterFirst_.reset();
        const auto act = [this] {
            for (const WORD minute : {WORD{7}, WORD{8}}) {
                saveAt(minute);
                progress_->isMarked = neighborhood().isDirty();
                ++progress_->saves;
            }
        };
        const auto judge = [&](const seccomp_data& call) {
            if (progress_->saves == 0) return decide(call);
            if (!afterFirst_) noteFirst();
            return heldCall::carryOut;
        };
        runWithHeldCalls(act, judge);
        if (!afterFirst_) noteFirst();
        ++points_;
    }

    // The same with call number `point`, counted from 1, answered by `answer`. False if the save has fewer calls.
    bool saveTwiceWith(int point, int answer, bool hasNamelessFiles = true) {
        int calls = 0;
        bool isReached = false;
        saveTwice([&](const seccomp_data& call) {
            if (++calls == point) {
                isReached = true;
                answeredCall_ = call.nr;
                example_ = "call " + std::to_string(point) + ", number " + std::to_string(call.nr) + ", answer " +
                           std::to_string(answer);
                return answer;
            }
            return !hasNamelessFiles && opensNamelessFile(call) ? EOPNOTSUPP : heldCall::carryOut;
        });
        return isReached;
    }

    // No name that counts holds a part of a file, and both versions of each file are somewhere whole. A failed backup
    // doesn't stop the save; then only the new version is left. But a directory that can't be entered does.
    void expectNothingLost(bool backupsMayFail) {
        backupsMayFail = backupsMayFail && answeredCall_ != SYS_chdir;
        const OnDisk& disk = *afterFirst_;
        for (const auto& [whose, copies] :
             {std::pair{"the neighborhood", disk.neighborhood}, {"Ann", disk.ann}, {"Bob", disk.bob}}) {
            const bool isBackedUp = copies.backup == oldFile;
            const bool newIsTemporary = copies.temporary != nothing && copies.temporary != someOtherBytes;
            const bool isOldKept = copies.live == oldFile || isBackedUp;
            expect(copies.live != someOtherBytes, whose, "part of a file under the live name");
            expect(isBackedUp || copies.backup == nothing, whose, "part of a file under the backup's name");
            expect(copies.live != nothing || newIsTemporary, whose, "no new version");
            expect(isOldKept || (backupsMayFail && copies.live == newFile), whose, "no old version");
        }
        expect(otherChanges_.empty(), otherChanges_, "changed");
        // The record of a Sim that has its new file may be missing only together with all that the save wrote.
        const Holds record = disk.neighborhood.live;
        const bool lacksAnn = record == newFileWithoutAnn || record == newFileWithoutBoth;
        const bool lacksBob = record == newFileWithoutBob || record == newFileWithoutBoth;
        expect(!lacksAnn || disk.ann.live != newFile, "Ann", "no new record beside the new file");
        expect(!lacksBob || disk.bob.live != newFile, "Bob", "no new record beside the new file");
    }

    // A file that couldn't take its live name waits under its temporary one; all else is home after the next save. Only
    // the neighborhood file may wait unmarked.
    void expectHomeOrMarked() {
        const auto lives = [](const OnDisk& disk) {
            return std::array{disk.neighborhood.live, disk.ann.live, disk.bob.live};
        };
        const auto first = lives(*afterFirst_);
        const bool isHome = first == lives(allSaved), isInstalled = first[0] != nothing;
        expect(isHome || isMarkedAfterFirst_ || !isInstalled, "the first save", "not marked");
        const bool waits = std::ranges::find(first, nothing) != first.end();
        expect(lives(onDisk()) == lives(allSaved) || waits, "the second save", "not home");
        expect(!waits || progress_->isMarked || !isInstalled, "the second save", "not marked");
    }

    void expectNoComplaints() {
        for (const auto& [complaint, seen] : complaints_)
            ADD_FAILURE() << complaint << ", at " << seen.first << " points, first " << seen.second;
        std::cout << points_ << " points tried\n";
    }

    const OnDisk& afterFirst() const { return *afterFirst_; }

 private:
    void noteFirst() {
        afterFirst_ = onDisk();
        otherChanges_ = otherChanges();
        isMarkedAfterFirst_ = progress_->isMarked;
    }

    void expect(bool holds, const std::string& whose, const std::string& complaint) {
        if (holds) return;
        auto& [count, example] = complaints_[complaint + ": " + whose];
        if (count++ == 0) example = example_;
    }

    Progress* progress_ =
        new (mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Progress;
    std::optional<OnDisk> afterFirst_;
    bool isMarkedAfterFirst_ = false;
    int answeredCall_ = 0;
    std::string otherChanges_, example_;
    int points_ = 0;
    std::map<std::string, std::pair<int, std::string>> complaints_;
};

// How far the next point is: usually some are left out.
int stride(int usual) {
    return std::getenv("TIDEWRIGHT_ALL_POINTS") != nullptr ? 1 : usual;
}

TEST_F(SaveSweepTest, AKilledSaveLosesNothing) {
    for (int point = 1; saveTwiceWith(point, heldCall::endProcess); point += stride(1))
        expectNothingLost(false);
    EXPECT_EQ(afterFirst(), allSaved);
    expectNoComplaints();
}

TEST_F(SaveSweepTest, AFailedCallLosesNothingAndLeavesTheRestMarked) {
    for (const bool hasNamelessFiles : {true, false}) {
        int begin = 1;  // another one for each error, so that together they come to all calls
        for (const int error : {ENOSPC, EIO, EACCES, EMFILE}) {
            for (int point = begin++; saveTwiceWith(point, error, hasNamelessFiles);
                 point += stride(hasNamelessFiles ? 4 : 12)) {
                expectNothingLost(true);
                expectHomeOrMarked();
            }
            EXPECT_EQ(afterFirst(), allSaved);
        }
    }
    expectNoComplaints();
}

// Only one of the two is read: the one in small letters, or else the first in the order of bytes.
TEST_F(SaveSweepTest, OfTwoNamesThatDifferInCaseOnlyTheOneReadIsBackedUpAndReplaced) {
    for (const std::string read : {"UserData/neighborhood.iff", "UserData/NEIGHBORHOOD.iff"}) {
        SCOPED_TRACE(read);
        start();
        std::filesystem::rename(files().path(live), files().path(read));
        files().write("UserData/Neighborhood.iff", "another file");
        saveAt(7);
        EXPECT_EQ(onDisk(), allSaved);
        EXPECT_EQ(otherChanges(), "UserData/Neighborhood.iff\n");
        EXPECT_EQ(files().bytesOf("UserData/Neighborhood.iff"), bytesFrom("another file"));
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
    const std::string ofEach = "sync sync sync name delete name delete ";
    const auto withoutNameSyncs = std::regex_replace(calls, std::regex("name sync"), "name");
    EXPECT_EQ(withoutNameSyncs, ofEach + ofEach + ofEach + "sync ");
}

}  // namespace
