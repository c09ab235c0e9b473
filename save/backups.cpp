// Moves the live file to its dated backup, and the temporary file to the live name. The live file's name is relative
// when it is backed up, and so is that of the backups' directory: the current directory is then the neighborhood's, or
// its "Characters" for a character file.
#include "platform/files.h"
#include "platform/win32.h"
#include "save/backup_names.h"
#include "save/save_attempt.h"

// Both copies are made before the old file is deleted, so that the live name is missing only for a few calls. The
// backup's copy is made first, so that the other one can't take its room on the disk.
void SaveAttempt::backUp(const char* live, const PathText& backup, const PathText& tempPath,
                         const char* liveAfterwards) {
    // Usually it exists already. A new one must reach the disk before the old file goes.
    if (CreateDirectoryA(backupsDirectory, nullptr) != FALSE) syncDirectory(".");
    Move move(live, backup.c_str());
    move.copyAhead();
    install_.emplace(tempPath.c_str(), liveAfterwards);
    install_->copyAhead();
    move.finish();
}

std::int32_t SaveAttempt::install(const char* tempPath, const char* live) {
    const bool isPrepared = install_ && install_->source() == tempPath;
    const std::int32_t error = isPrepared ? install_->finish() : moveByCopy(tempPath, live);
    install_.reset();
    return error;
}

void Neighborhood::backupLiveFile() {
    const SYSTEMTIME now = backupClock().now();
    const auto backup = joined<PathText>(directory_, '\\', backupsDirectory, "\\neighborhood.", dateText(now), '.',
                                         timeText(now), ".iff");
    saveAttempt().backUp(fileName_.c_str(), backup, tempNeighborhoodPath(directory_), fileName_.c_str());
}

void Neighborhood::installTempFile(const char* tempPath) {
    saveAttempt().install(tempPath, fileName_.c_str());
}

void Sim::backupCharacterFile(const char* directory) {
    const SYSTEMTIME now = backupClock().now();
    const auto backup = joined<PathText>(directory, '\\', charactersDirectory, '\\', backupsDirectory, '\\',
                                         recordName_, '.', dateText(now), ".iff");
    neighborhood_->saveAttempt().backUp(fileName_.c_str(), backup, tempCharacterPath(directory, fileName_),
                                        filePath_.c_str());
}

int Sim::installCharacterFile(const char* tempPath) {
    return neighborhood_->saveAttempt().install(tempPath, filePath_.c_str()) == copyError::none ? 1 : -1;
}
