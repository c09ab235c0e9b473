// The replacement of one live file by its temporary one, with a backup of the old version. Both copies are complete
// before either gets its name, and the old file is set aside until the new one is in its place. So a failure changes
// nothing, and each version is whole somewhere at each moment.
//
// Other programs may write the live file meanwhile. One that isn't as it was when it was backed up stays.
#ifndef SAVE_REPLACEMENT_H
#define SAVE_REPLACEMENT_H

#include <cstdint>
#include <optional>
#include <string>

#include "save/file_copy.h"

class Replacement {
 public:
    // `live` may be relative to the current directory, in which the backups' directory is. `target` is its path for the
    // new file. If `expected` is given, a live file of another sum stays.
    Replacement(const char* live, const char* target, const char* backup, const char* temporary,
                const std::optional<ContentSum>& expected);

    // Makes the backup, and the copy that will be installed. A backup that fails is tried once more, and then done
    // without, unless another program has the file open.
    void backUp();

    // Puts the new file in the old one's place, and deletes the temporary one. 0, or an error as of copyFileBytes or of
    // an earlier step; the live file is as it was then.
    std::int32_t install();

    // Of the new file.
    const ContentSum& sum() const { return install_.sum(); }

 private:
    bool tryBackUp();
    bool prepareInstall(const ContentSum& live);
    bool isLiveAsSeen() const;
    bool succeeded(std::int32_t error);

    std::string live_;
    std::string backup_;
    StagedCopy install_;
    std::optional<ContentSum> seen_;  // of the live file: what is in the backup
    bool isPrepared_ = false;
    bool hasBackup_ = false;
    std::int32_t error_ = copyError::none;  // for which the live file stays
};

#endif
