// The replacement of one live file by its temporary one, with a backup of the old version. Both copies are complete
// before either gets its name, and the old file is set aside until the new one is in its place. So a failure changes
// nothing, and each version is whole somewhere at each moment.
#ifndef SAVE_REPLACEMENT_H
#define SAVE_REPLACEMENT_H

#include <cstdint>
#include <optional>
#include <string>

#include "save/file_copy.h"

class Replacement {
 public:
    // `live` may be relative to the current directory, in which the backups' directory is. `target` is its path for the
    // new file.
    Replacement(const char* live, const char* target, const char* backup, const char* temporary)
        : live_(live), backup_(backup), install_(temporary, target, live) {}

    // Makes the backup and the copy that will be installed. A backup that fails is tried once more, and then done
    // without, unless another program has the file open. If `expected` is given, a live file of another sum stays.
    void backUp(const std::optional<ContentSum>& expected);

    // Puts the new file in the old one's place, and deletes the temporary one. 0, or an error as of copyFileBytes or of
    // an earlier step; the live file is as it was then.
    std::int32_t install();

    // Of the new file.
    const ContentSum& sum() const { return install_.sum(); }

 private:
    bool tryBackUp(const std::optional<ContentSum>& expected);
    bool prepareInstall(const ContentSum& live, const std::optional<ContentSum>& expected);
    bool succeeded(std::int32_t error);

    std::string live_;
    std::string backup_;
    StagedCopy install_;
    bool isPrepared_ = false;
    bool hasBackup_ = false;
    std::int32_t error_ = copyError::none;  // for which the live file stays
};

#endif
