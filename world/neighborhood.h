// One neighborhood: a "UserData" directory of the game and its "neighborhood.iff", which is read whole at start-up.
#ifndef WORLD_NEIGHBORHOOD_H
#define WORLD_NEIGHBORHOOD_H

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/fixed_text.h"
#include "world/content_sum.h"
#include "world/family.h"
#include "world/paths.h"
#include "world/record_format.h"
#include "world/sim.h"
#include "world/stream.h"
#include "world/tag_scan.h"

class SaveAttempt;

class Neighborhood {
 public:
    static constexpr std::int32_t highestFamilyCount = 100;
    static constexpr std::int32_t highestSimCount = 820;
    static constexpr std::int32_t highestNewFamilyCount = 10;

    // What `xxxxOffset` is in a file without a free chunk.
    static constexpr std::int32_t noFreeChunk = tagNotFound - 1;

    Neighborhood() = default;
    Neighborhood(const Neighborhood&) = delete;
    Neighborhood& operator=(const Neighborhood&) = delete;
    virtual ~Neighborhood() = default;

    // Reads `fileName` in `directory` (no trailing backslash). Returns 0 whatever the file holds, or -1 if it can't be
    // opened. Families and Sims for which the tables have no room are read but not listed. Records of other formats are
    // not found.
    int load(const char* directory, const char* fileName, RecordFormats formats = baseFormats);

    // Null for an index out of range. The order is the file's; families that a save has added come last.
    std::int32_t familyCount() const { return familyCount_; }
    Family* family(std::int32_t index) const;
    std::int32_t simCount() const { return simCount_; }
    Sim* sim(std::int32_t index) const;

    // The first Sim whose character file has the GUID; null if there is none.
    Sim* simWithGuid(const Guid& guid) const;

    // Where the program's own data files are. `directory` may be what toolDirectory() returns.
    const char* toolDirectory() const { return toolDirectory_.c_str(); }
    void setToolDirectory(const char* directory) { toolDirectory_ = DirectoryText(directory); }

    const char* directory() const { return directory_.c_str(); }

    // Where the resource map and the first free chunk begin in the file. Without a map `mapOffset` is 0, and without a
    // free chunk `xxxxOffset` is negative. Both are -1 before the read.
    std::int32_t mapOffset() const { return mapOffset_; }
    std::int32_t xxxxOffset() const { return xxxxOffset_; }

    // The highest family number in the file, of listed families and others; 0 if there is none.
    std::int32_t highestFamilyNumber() const { return highestFamilyNumber_; }

    // The number for a family that comes into the file: one above the highest, which it raises.
    std::int16_t takeFamilyNumber() { return static_cast<std::int16_t>(++highestFamilyNumber_); }

    // Families that aren't in the file yet, in the order in which they were added; null for an index out of range.
    std::int32_t newFamilyCount() const { return newFamilyCount_; }
    Family* newFamily(std::int32_t index) const;
    bool hasNewFamilies() const { return hasNewFamilies_; }

    // Adds a family that isn't in the file yet, and marks the neighborhood as changed. If the table is full, returns
    // -1, deletes the family and changes nothing; else returns 1.
    int addNewFamily(std::unique_ptr<Family> family);

    // Whether something must be saved. Once true, it stays true until a save has gone through.
    bool isDirty();

    // Saves what has changed, with the templates of `toolDirectory` (save/neighborhood_save.cpp).
    void save(const char* toolDirectory);

    // The stages of a save, in this order (save/neighborhood_writer.cpp, save/backups.cpp). writeTempFile returns 1, or
    // another number for a failure; everything then still waits to be saved.
    int writeTempFile(const char* tempPath);
    void backupLiveFile();
    void installTempFile(const char* tempPath);

    // Steps of writeTempFile, on the temporary file's `stream`. The first one replaces the character file of each
    // changed Sim, in this neighborhood's `directory`, and writes its record. A Sim that fails doesn't stop the others.
    // Always 1.
    int saveCharacterFiles(const char* toolDirectory, const char* directory, StreamView stream);

    // The other two are for a save with new families. They write the records of families that have changed, always 1,
    // and those of the new families: 1, or -1 on a stream in a bad state.
    int writeChangedFamilies(StreamView stream);
    int writeNewFamilies(StreamView stream);

    // The save that is under way (save/save_attempt.h); null if there is none.
    SaveAttempt* saveAttempt() const { return saveAttempt_; }

 private:
    friend class SaveAttempt;

    void readNeighbors(StreamView stream, RecordFormats formats);
    int nextNeighbor(StreamView stream, std::string_view marker) const;
    int readNeighbor(StreamView stream, const RecordFormat& format);
    int familyAhead(StreamView stream) const;
    int readFamily(StreamView stream);
    void readPasses(StreamView stream, RecordFormats formats);

    std::int32_t mapOffset_ = -1;
    std::int32_t xxxxOffset_ = -1;
    FixedText<99> fileName_;
    DirectoryText directory_;
    DirectoryText toolDirectory_;
    std::int32_t fileSize_ = 0;
    bool dirty_ = false;
    bool hasNewFamilies_ = false;
    std::int32_t familyCount_ = 0;
    std::array<Family*, highestFamilyCount> families_{};
    std::int32_t simCount_ = 0;
    std::array<Sim*, highestSimCount> sims_{};
    std::int32_t newFamilyCount_ = 0;
    std::array<Family*, highestNewFamilyCount> newFamilies_{};
    std::int32_t highestFamilyNumber_ = 0;

    ContentSum sumAsRead_;  // of the whole file; after a save, of the new one
    SaveAttempt* saveAttempt_ = nullptr;

    // All families and Sims created here, including those not listed. Links stay valid until exit.
    std::vector<std::unique_ptr<Family>> ownedFamilies_;
    std::vector<std::unique_ptr<Sim>> ownedSims_;
};

#endif
