// What a save keeps in mind beside the objects that it saves. A neighborhood makes one of these when a save begins. It
// goes when the save ends, or stays for the next save while a record is owed.
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

    // How many bytes of the live file the temporary one took over. A piece of the live file beyond them is gone, and
    // nothing is written in its place.
    std::int32_t copiedSize() const { return copiedSize_; }
    void setCopiedSize(std::int32_t size) { copiedSize_ = size; }
    bool isCopied(std::int32_t offset, std::int32_t size) const { return offset >= 0 && copiedSize_ - offset >= size; }

    // Notes what waits to be written into the temporary file, and makes all of it wait again when that file is lost.
    // Character files that were replaced in between stay as they are: their Sims' records are owed.
    void noteWaiting();
    void restoreWaiting();

    // A record is owed when the Sim's character file is new but the live neighborhood file hasn't got the record yet.
    // The next save writes it without making the character file again.
    void owe(Sim& sim);
    void settle(const Sim& sim) { owed_.erase(&sim); }
    bool owes(const Sim& sim) const { return owed_.contains(&sim); }
    bool owesNothing() const { return owed_.empty(); }

    // The file no longer holds the Sim's record, so there is nothing to write.
    void forgetRecord(Sim& sim);

    // Moves the live file to `backup`, and prepares the move of the temporary file to `liveAfterwards`.
    void backUp(const char* live, const PathText& backup, const PathText& tempPath, const char* liveAfterwards);

    // Moves the temporary file to the live name. 0, or the error of the copy.
    std::int32_t install(const char* tempPath, const char* live);

    // Everything is in the live file: clears the neighborhood's marks, and forgets the pieces that were cut off.
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
