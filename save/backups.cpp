// Live file to its dated backup, temporary file to the live name. The backups' sources and directories are relative
// names: a save makes the neighborhood's directory, and for a character file its "Characters", the current directory
// first.
#include "platform/win32.h"
#include "save/backup_names.h"
#include "save/file_copy.h"
#include "save/save_paths.h"
#include "world/neighborhood.h"

void Neighborhood::backupLiveFile() {
    CreateDirectoryA(backupsDirectory, nullptr);  // it exists already, as a rule
    const SYSTEMTIME now = backupClock().now();
    const SavePath backup = joinPath(directory_, "\\Backups\\neighborhood.", dateText(now), ".", timeText(now), ".iff");
    moveByCopy(fileName_.c_str(), backup.c_str());
}

void Neighborhood::installTempFile(const char* tempPath) {
    moveByCopy(tempPath, fileName_.c_str());
}

void Sim::backupCharacterFile(const char* directory) {
    CreateDirectoryA(backupsDirectory, nullptr);
    const SYSTEMTIME now = backupClock().now();
    const SavePath backup = joinPath(directory, "\\Characters\\Backups\\", recordName_, ".", dateText(now), ".iff");
    moveByCopy(fileName_.c_str(), backup.c_str());
}

int Sim::installCharacterFile(const char* tempPath) {
    return moveByCopy(tempPath, filePath_.c_str()) == copyError::none ? 1 : -1;
}
