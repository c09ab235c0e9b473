// How a save copies and moves files. A move is a copy and then a delete of the source, never a rename: no old file is
// deleted before its copy is known to be on the disk.
#ifndef SAVE_FILE_COPY_H
#define SAVE_FILE_COPY_H

#include <cstdint>
#include <string>

#include "platform/files.h"

namespace copyError {
constexpr std::int32_t none = 0;
constexpr std::int32_t shortWrite = -1;
constexpr std::int32_t destinationNotOpened = -2;  // without an error code of the platform
constexpr std::int32_t sourceNotOpened = -3;       // likewise
}  // namespace copyError

enum class CopyMode { overwrite, append };

// Copies at most `limit` bytes of `source` to `destination`, or all of it if `limit` is 0. Returns 0 if every write and
// the closing succeeded, an error of the list above, or the platform's code of the open that failed; the destination's
// if both did. If the source can't be opened, an existing destination keeps its bytes. So does one that is the source
// itself, by whatever links, with the result destinationNotOpened.
std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode);

std::int32_t appendFile(const char* source, const char* destination);

// A move in two steps. The copy, which takes time and can fail, is made before the destination may be replaced. It gets
// the destination's name when it is complete and on the disk. Where the file system can't do that, it is written under
// that name and deleted if it fails.
class Move {
 public:
    // `destination` means what it means now, even if the working directory changes (NewVersion). `source` is looked up
    // at each step.
    Move(const char* source, const char* destination)
        : source_(source), destination_(destination), copy_(destination) {}

    const std::string& source() const { return source_; }

    // Makes the copy, without its name. If that fails, `finish` tries again.
    void copyAhead();

    // Gives the copy its name, in place of an older file, and deletes the source. Returns 0, or the error of the copy;
    // the source is kept then.
    std::int32_t finish();

 private:
    std::int32_t copy(NewVersion::Naming naming);

    std::string source_;
    std::string destination_;
    NewVersion copy_;
    bool isCopied_ = false;
};

// A move in one step.
std::int32_t moveByCopy(const char* source, const char* destination);

#endif
