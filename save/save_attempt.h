// What a save has to remember about its neighborhood. The object is made when a save begins and deleted when it ends.
// It stays for the next save if a record is still owed.
#ifndef SAVE_SAVE_ATTEMPT_H
#define SAVE_SAVE_ATTEMPT_H

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

#include "save/file_copy.h"
#include "save/save_paths.h"
#include "world/neighborhood.h"

class SaveAttempt {
 public:
    explicit SaveAttempt(Neighborhood& neighborhood) : neighborhood_(neighborhood) {}

    // How many bytes of the live file were copied to the temporary one. Nothing is written in the place of a piece that
    // wasn't copied.
    std::int32_t copiedSize() const { return copiedSize_; }
    void setCopiedSize(std::int32_t size) { copiedSize_ = size; }
    bool isCopied(std::int32_t offset, std::int32_t size) const { return offset >= 0 && copiedSize_ - offset >= size; }

    // Notes what waits to be written into the temporary file, and marks it all as waiting again if that file is lost.
    // The records of Sims whose character files were replaced in between are owed then.
    void noteWaiting();
    void restoreWaiting();

    // A record is owed if the Sim's character file is new, but the record isn't in the live neighborhood file yet. The
    // next save then writes the record without another character file.
    void owe(Sim& sim);
    void settle(const Sim& sim) { owed_.erase(&sim); }
    bool owes(const Sim& sim) const { return owed_.contains(&sim); }
    bool owesNothing() const { return owed_.empty(); }

    // Gives up a record that was cut off the file.
    void forgetRecord(Sim& sim);

    // Moves the live file to `backup`, and prepares the move of the temporary file to `liveAfterwards`.
    void backUp(const char* live, const PathText& backup, const PathText& tempPath, const char* liveAfterwards);

    // Moves the temporary file to the live name. 0, or the error of the copy.
    std::int32_t install(const char* tempPath, const char* live);

    // Clears the neighborhood's marks when everything is in the live file, and gives up the pieces that were cut off.
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
    std::int32_t copiedSize_ = 0;
    Waiting waiting_;
    std::set<const Sim*> owed_;
    std::optional<Move> install_;  // prepared while the old file is backed up
};

#endif
