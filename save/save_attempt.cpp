#include "save/save_attempt.h"

#include "save/backup_names.h"

SaveAttempt::SaveAttempt(Neighborhood& neighborhood) : neighborhood_(neighborhood), time_(backupClock().now()) {
    neighborhood_.saveAttempt_ = this;
}

SaveAttempt::~SaveAttempt() {
    neighborhood_.saveAttempt_ = nullptr;
}

void SaveAttempt::noteWaiting() {
    const Neighborhood& from = neighborhood_;
    waiting_ = {{}, {}, from.newFamilies_, from.newFamilyCount_, from.familyCount_, from.highestFamilyNumber_};
    for (std::int32_t i = 0; i < from.simCount(); ++i) {
        if (from.sim(i)->recordDirty()) waiting_.records.push_back(from.sim(i));
    }
    for (std::int32_t i = 0; i < from.familyCount(); ++i) {
        if (from.family(i)->dirty()) waiting_.families.push_back(from.family(i));
    }
    for (std::int32_t i = 0; i < from.newFamilyCount(); ++i) {
        waiting_.families.push_back(from.newFamily(i));
    }
}

void SaveAttempt::restoreWaiting() {
    for (Sim* sim : waiting_.records) {
        if (!sim->recordDirty()) owe(*sim);
    }
    for (Family* family : waiting_.families) {
        family->dirty_ = true;
    }
    neighborhood_.newFamilies_ = waiting_.newFamilies;
    neighborhood_.newFamilyCount_ = waiting_.newFamilyCount;
    neighborhood_.familyCount_ = waiting_.familyCount;
    neighborhood_.highestFamilyNumber_ = waiting_.highestFamilyNumber;
}

void SaveAttempt::forgetRecord(Sim& sim) {
    settle(sim);
    sim.recordOffset_ = -1;
    sim.recordDirty_ = false;
}

void SaveAttempt::backUp(const char* live, const char* target, const PathText& backup, const PathText& temporary,
                         const std::optional<ContentSum>& expected) {
    replacement_.emplace(live, target, backup.c_str(), temporary.c_str(), expected);
    replacement_->backUp();
}

std::int32_t SaveAttempt::install(const char* temporary, const char* live) {
    const std::int32_t error = replacement_ ? replacement_->install() : moveByCopy(temporary, live);
    if (replacement_) {
        installed_ = replacement_->sum();
    } else {
        sumOfFile(live, installed_);
    }
    replacement_.reset();
    return error;
}

// After a cut the offsets are those that a fresh read of the new file would give. So a later save of this run copies
// the whole file, and passes over the pieces that are gone.
void SaveAttempt::finish() {
    neighborhood_.sumAsRead_ = installed_;
    neighborhood_.dirty_ = false;
    if (!neighborhood_.hasNewFamilies_) return;
    neighborhood_.hasNewFamilies_ = false;
    neighborhood_.xxxxOffset_ = Neighborhood::noFreeChunk;
    neighborhood_.mapOffset_ = 0;
    for (std::int32_t i = 0; i < neighborhood_.simCount(); ++i) {
        Sim& sim = *neighborhood_.sim(i);
        if (isCopied(sim.recordOffset(), neighborRecord::size)) continue;
        // The Sim stays marked if its character file couldn't be made or installed.
        const bool waits = sim.recordDirty() && !owes(sim);
        forgetRecord(sim);
        sim.recordDirty_ = waits;
    }
    for (std::int32_t i = 0; i < neighborhood_.familyCount(); ++i) {
        Family& family = *neighborhood_.family(i);
        if (!isCopied(family.memberTableOffset(), family.tableSize())) {
            family.memberTableOffset_ = family.memberTableEnd_ = 0;
        }
    }
}
