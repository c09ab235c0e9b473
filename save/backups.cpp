// Live file to its dated backup, temporary file to the live name. The backups' sources and directories are relative
// names: a save makes the neighborhood's directory, and for a character file its "Characters", the current directory
// first.
//
// The copy that will take the live name is made before the old file gives it up, so that the time without a live file
// is that of a few calls. The backup's own copy is made even before that: it must not miss the room on the disk that
// the other takes.
#include <utility>

#include "platform/win32.h"
#include "save/backup_names.h"
#include "save/file_copy.h"
#include "save/save_paths.h"
#include "world/neighborhood.h"

namespace {

// Moves the live file to `backup`. Returns the move of the temporary file to the live name, prepared.
std::shared_ptr<Move> backUp(const char* live, const SavePath& backup, const SavePath& tempPath,
                             const char* liveAfterwards) {
    Move move(live, backup.c_str());
    move.copyAhead();
    auto install = std::make_shared<Move>(tempPath.c_str(), liveAfterwards);
    install->copyAhead();
    move.finish();
    return install;
}

std::int32_t install(const std::shared_ptr<Move>& prepared, const char* tempPath, const char* live) {
    return prepared && prepared->source() == tempPath ? prepared->finish() : moveByCopy(tempPath, live);
}

}  // namespace

void Neighborhood::backupLiveFile() {
    CreateDirectoryA(backupsDirectory, nullptr);  // it exists already, as a rule
    const SYSTEMTIME now = backupClock().now();
    const SavePath backup = joinPath(directory_, "\\Backups\\neighborhood.", dateText(now), ".", timeText(now), ".iff");
    install_ = backUp(fileName_.c_str(), backup, joinPath(directory_, tempNeighborhoodName), fileName_.c_str());
}

void Neighborhood::installTempFile(const char* tempPath) {
    install(std::exchange(install_, nullptr), tempPath, fileName_.c_str());
}

void Sim::backupCharacterFile(const char* directory) {
    CreateDirectoryA(backupsDirectory, nullptr);
    const SYSTEMTIME now = backupClock().now();
    const SavePath backup = joinPath(directory, "\\Characters\\Backups\\", recordName_, ".", dateText(now), ".iff");
    install_ =
        backUp(fileName_.c_str(), backup, joinPath(directory, tempCharacterPrefix, fileName_), filePath_.c_str());
}

int Sim::installCharacterFile(const char* tempPath) {
    return install(std::exchange(install_, nullptr), tempPath, filePath_.c_str()) == copyError::none ? 1 : -1;
}
