// Moves the live file to its dated backup, and the temporary file to the live name. The live file's name is relative
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

// The temporary file is the one that `backupLiveFile` has prepared.
void Neighborhood::installTempFile(const char*) {
    if (saveAttempt_->install() == copyError::none) {
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

int Sim::installCharacterFile(const char*) {
    return neighborhood_->saveAttempt()->install() == copyError::none ? 1 : -1;
}
