// The save of one neighborhood, step by step.
#include "platform/files.h"
#include "platform/win32.h"
#include "save/save_paths.h"
#include "world/neighborhood.h"
#include "world/tag_scan.h"

namespace {

// Looks in each directory that any save writes to: the one that was cut off may have got further than this one will.
void deletePartsOfEarlierSaves() {
    for (const char* directory : {".", "Backups", "Characters", "Characters\\Backups"})
        deleteLeftOverParts(directory);
}

}  // namespace

// Live files are never edited in place: the temporary file is finished first, then the live one goes to its backup,
// then the temporary one takes the live name.
void Neighborhood::save(const char* toolDirectory) {
    setToolDirectory(toolDirectory);
    // The names of the live file and of its backups' directory are relative. In any other directory than this they
    // would mean another neighborhood's.
    if (SetCurrentDirectoryA(directory_.c_str()) == FALSE) return;
    if (!isDirty()) return;
    deletePartsOfEarlierSaves();
    const SavePath tempPath = joinPath(directory_, tempNeighborhoodName);
    if (writeTempFile(tempPath.c_str()) != 1) return;
    backupLiveFile();
    installTempFile(tempPath.c_str());
    syncDirectory(directory_.c_str());
    forgetChanges();
}

// What was cut off to make room for new families isn't in the file any more, so a later save of this run copies all of
// it, and writes nothing where a piece was that went with it.
void Neighborhood::forgetChanges() {
    dirty_ = false;
    if (!hasNewFamilies_) return;
    hasNewFamilies_ = false;
    xxxxOffset_ = tagNotFound - 1;
    mapOffset_ = 0;
    for (std::int32_t i = 0; i < simCount_; ++i) {
        if (!standsInCopy(sim(i)->recordOffset(), neighborRecord::size)) sim(i)->forgetRecord();
    }
    for (std::int32_t i = 0; i < familyCount_; ++i) {
        if (!standsInCopy(family(i)->memberTableOffset(), family(i)->tableSize())) family(i)->forgetTable();
    }
}
