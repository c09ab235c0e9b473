// Backs the live file up under a dated name, and puts the temporary file in its place. The live file's name is relative
// when it is backed up, and so is that of the backups' directory: the current directory is then the neighborhood's, or
// its "Characters" for a character file.
#include "platform/files.h"
#include "platform/win32.h"
#include "save/backup_names.h"
#include "save/save_attempt.h"

void Neighborhood::backupLiveFile() {
    const SYSTEMTIME& now = saveAttempt_->time();
    const auto backup = joined<PathText>(directory_, '\\', backupsDirectory, "\\neighborhood.", dateText(now), '.',
                                         timeText(now), ".iff");
    saveAttempt_->backUp(fileName_.c_str(), fileName_.c_str(), backup, tempNeighborhoodPath(directory_), sumAsRead_);
}

void Neighborhood::installTempFile(const char* tempPath) {
    if (saveAttempt_->install(tempPath, fileName_.c_str()) == copyError::none) {
        saveAttempt_->finish();
    } else {
        saveAttempt_->restoreWaiting();
    }
}

void Sim::backupCharacterFile(const char* directory) {
    SaveAttempt& attempt = *neighborhood_->saveAttempt();
    const auto backup = joined<PathText>(directory, '\\', charactersDirectory, '\\', backupsDirectory, '\\',
                                         recordName_, '.', dateText(attempt.time()), ".iff");
    attempt.backUp(fileName_.c_str(), filePath_.c_str(), backup, tempCharacterPath(directory, fileName_), std::nullopt);
}

int Sim::installCharacterFile(const char* tempPath) {
    return neighborhood_->saveAttempt()->install(tempPath, filePath_.c_str()) == copyError::none ? 1 : -1;
}
