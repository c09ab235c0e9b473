// The only ways in which a save copies and moves files. A move is a whole copy followed by a delete of the source,
// never a rename: no old file goes before its copy is known to be on the disk.
#ifndef SAVE_FILE_COPY_H
#define SAVE_FILE_COPY_H

#include <cstdint>
#include <string>

#include "platform/files.h"

namespace copyError {
constexpr std::int32_t none = 0;
constexpr std::int32_t shortWrite = -1;
constexpr std::int32_t destinationNotOpened = -2;  // and the platform gives no error code
constexpr std::int32_t sourceNotOpened = -3;       // the same
}  // namespace copyError

enum class CopyMode { overwrite, append };

// Copies `source` to `destination`, at most `limit` bytes of it (0: all). 0 on success; an error of the table above; or
// the platform's code of the open that failed, the destination's if both did. Every write and the closing must have
// succeeded. An existing destination keeps its bytes when the source can't be opened, and when it is the source, by
// whatever links: that is destinationNotOpened.
std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode);

std::int32_t appendFile(const char* source, const char* destination);

// A move that can be prepared: what takes time and can fail is the copy, and that needn't wait for the moment at which
// the destination may be replaced. The destination has its name only when the copy is complete and on the disk; where
// the file system can't do that, it is written under its name, and deleted if it breaks off.
class Move {
 public:
    // Fixes what `destination` means now (NewVersion). `source` is looked up at each step.
    Move(const char* source, const char* destination)
        : source_(source), destination_(destination), copy_(destination) {}

    const std::string& source() const { return source_; }

    // Makes the copy, without its name. If that fails, `finish` tries again.
    void copyAhead();

    // Names the copy, in place of an older file of that name, and deletes the source. 0, or the copy's error with the
    // source in place.
    std::int32_t finish();

 private:
    std::int32_t copy(NewVersion::Naming naming);

    std::string source_;
    std::string destination_;
    NewVersion copy_;
    bool isCopied_ = false;
};

// Both steps of a move.
std::int32_t moveByCopy(const char* source, const char* destination);

#endif
