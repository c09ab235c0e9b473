// The save of one neighborhood, step by step.
#include "platform/files.h"
#include "platform/part_names.h"
#include "platform/win32.h"
#include "save/save_attempt.h"

namespace {

// Looks in every directory that a save writes to: the save that was cut off may have got further than this one will.
void clearPartsOfEarlierSaves() {
    for (const std::string_view directory : {".", charactersDirectory}) {
        clearLeftOverParts(PathText(directory).c_str());
        clearLeftOverParts(joined<PathText>(directory, '\\', backupsDirectory).c_str());
    }
}

}  // namespace

// Live files are never edited in place. The temporary file is finished first, then the live file is backed up,
// then the temporary file takes its place.
void Neighborhood::save(const char* toolDirectory) {
    setToolDirectory(toolDirectory);
    // The names of the live file and of its backups' directory are relative. In any directory but this they would mean
    // another neighborhood's files.
    if (SetCurrentDirectoryA(directory_.c_str()) == FALSE) return;
    if (!isDirty()) return;
    const DirectoryLock lock(".");
    if (lock.isHeldByAnother()) return;
    if (lock.isHeld()) clearPartsOfEarlierSaves();
    const SaveAttempt attempt(*this);
    const PathText tempPath = tempNeighborhoodPath(directory_);
    if (writeTempFile(tempPath.c_str()) != 1) return;
    backupLiveFile();
    installTempFile(tempPath.c_str());
}
