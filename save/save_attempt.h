// What a save has to remember about its neighborhood. The object lives as long as the save.
#ifndef SAVE_SAVE_ATTEMPT_H
#define SAVE_SAVE_ATTEMPT_H

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/win32.h"
#include "save/replacement.h"
#include "save/save_paths.h"
#include "world/neighborhood.h"

class SaveAttempt {
 public:
    // Reads the clock, so that all backups of the save have one date. The neighborhood's steps find the object there.
    explicit SaveAttempt(Neighborhood& neighborhood);
    SaveAttempt(const SaveAttempt&) = delete;
    SaveAttempt& operator=(const SaveAttempt&) = delete;
    ~SaveAttempt();

    const SYSTEMTIME& time() const { return time_; }

    // How many bytes of the live file were copied to the temporary one. Nothing is written in the place of a piece that
    // wasn't copied.
    std::int32_t copiedSize() const { return copiedSize_; }
    void setCopiedSize(std::int32_t size) { copiedSize_ = size; }
    bool isCopied(std::int32_t offset, std::int32_t size) const { return offset >= 0 && copiedSize_ - offset >= size; }

    // Notes what waits to be written into the temporary file, and marks it all as waiting again if that file is lost or
    // can't be installed. The records of Sims whose character files were replaced in between are owed then.
    void noteWaiting();
    void restoreWaiting();

    // A record is owed if the Sim's character file is new, but the record isn't in the live neighborhood file yet. The
    // next save then writes the record without another character file.
    static void owe(Sim& sim) { sim.recordOwed_ = sim.recordDirty_ = true; }
    static void settle(Sim& sim) { sim.recordOwed_ = false; }
    static bool owes(const Sim& sim) { return sim.recordOwed_; }

    // Gives up a record that was cut off the file.
    static void forgetRecord(Sim& sim);

    // Begins the replacement of a live file, whose path for the new file is `target`: backs it up, unless another
    // program has it open, or its sum isn't the `expected` one.
    void backUp(const char* live, const char* target, const PathText& backup, const PathText& temporary,
                const std::optional<ContentSum>& expected);

    // Ends it, or moves the temporary file if there was no backup. 0, or an error as of copyFileBytes; the live file is
    // as it was then.
    std::int32_t install(const char* temporary, const char* live);

    // After the installation of the neighborhood file: notes the new file as the one that was read, clears the marks,
    // and gives up the pieces that were cut off.
    void finish();

 private:
    struct Waiting {
        std::vector<Sim*> records;
        std::vector<Family*> families;
        std::array<Family*, Neighborhood::highestNewFamilyCount> newFamilies{};
        std::int32_t newFamilyCount = 0;
        std::int32_t familyCount = 0;
        std::int32_t highestFamilyNumber = 0;
    };

    Neighborhood& neighborhood_;
    SYSTEMTIME time_;
    std::int32_t copiedSize_ = 0;
    Waiting waiting_;
    std::optional<Replacement> replacement_;
    ContentSum installed_;  // of the file that was installed last
};

#endif
