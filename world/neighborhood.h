// One neighborhood: a `UserData` directory of the game with its "neighborhood.iff", read whole at start-up.
#ifndef WORLD_NEIGHBORHOOD_H
#define WORLD_NEIGHBORHOOD_H

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/fixed_text.h"
#include "world/family.h"
#include "world/paths.h"
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

    // Reads `fileName` in `directory` (no trailing backslash). 0, or -1 if the file can't be opened; a file that opens
    // gives 0 whatever it holds. What goes beyond the tables is read and not listed.
    int load(const char* directory, const char* fileName);

    // Null for an index out of range. Families and Sims stand in file order; families that a save has added come last.
    std::int32_t familyCount() const { return familyCount_; }
    Family* family(std::int32_t index) const;
    std::int32_t simCount() const { return simCount_; }
    Sim* sim(std::int32_t index) const;

    // The first Sim whose character file has the GUID; null if there is none.
    Sim* simWithGuid(const Guid& guid) const;

    // Where the program's own data files lie; empty before a good load.
    const char* toolDirectory() const { return toolDirectory_.c_str(); }
    void setToolDirectory(const char* directory) { toolDirectory_ = DirectoryText(directory); }  // may be its own text

    const char* directory() const { return directory_.c_str(); }

    // File offset of the resource map and of the first free chunk. -1 before the read; then 0 and negative where there
    // is none.
    std::int32_t mapOffset() const { return mapOffset_; }
    std::int32_t xxxxOffset() const { return xxxxOffset_; }

    // The highest number of a family record of the file, listed or not; 0 if there is none.
    std::int32_t highestFamilyNumber() const { return highestFamilyNumber_; }

    // Families that wait for the next save, in the order in which they came; null for an index out of range.
    std::int32_t newFamilyCount() const { return newFamilyCount_; }
    Family* newFamily(std::int32_t index) const;
    bool hasNewFamilies() const { return hasNewFamilies_; }

    // Takes a family that the file doesn't hold yet and marks the neighborhood as changed. 1, or -1 for a full table,
    // with nothing changed and the family gone.
    int addNewFamily(std::unique_ptr<Family> family);

    // Whether something must be saved. Once true it stays true until a save is through.
    bool isDirty();

    // Saves what has changed, with the templates of `toolDirectory` (save/neighborhood_save.cpp).
    void save(const char* toolDirectory);

    // The stages of a save (save/neighborhood_writer.cpp, save/backups.cpp), in this order.
    int writeTempFile(const char* tempPath);
    void backupLiveFile();
    void installTempFile(const char* tempPath);

    // The pass of writeTempFile over the Sims, in the temporary file's `stream`: each changed Sim's character file,
    // below this neighborhood's `directory`, and its record. One Sim's failure doesn't stop the pass. Always 1.
    int saveCharacterFiles(const char* toolDirectory, const char* directory, StreamView stream);

    // Its last two steps, with new families only: the records of families that have changed, always 1; the new
    // families' in the copies of the template, 1 or, on a stream in a bad state, -1.
    int writeChangedFamilies(StreamView stream);
    int writeNewFamilies(StreamView stream);

    // The save that is under way (save/save_attempt.h). Begins one if there is none.
    SaveAttempt& saveAttempt();

 private:
    friend class SaveAttempt;

    void readNeighbors(StreamView stream);
    int nextNeighbor(StreamView stream) const;
    int readNeighbor(StreamView stream);
    int familyAhead(StreamView stream) const;
    int readFamily(StreamView stream);
    void readPasses(StreamView stream);

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

    std::shared_ptr<SaveAttempt> saveAttempt_;  // null while nothing is being saved or owed

    // Every family and Sim ever made here, listed or not, so that no link dangles.
    std::vector<std::unique_ptr<Family>> ownedFamilies_;
    std::vector<std::unique_ptr<Sim>> ownedSims_;
};

#endif
