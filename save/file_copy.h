// How a save copies and moves files. The source of a move is read, and deleted when its copy is known to be on the
// disk; only the copy is renamed.
#ifndef SAVE_FILE_COPY_H
#define SAVE_FILE_COPY_H

#include <cstdint>
#include <string>

#include "platform/files.h"
#include "world/content_sum.h"

namespace copyError {
constexpr std::int32_t none = 0;
constexpr std::int32_t shortWrite = -1;
constexpr std::int32_t destinationNotOpened = -2;  // without an error code of the platform
constexpr std::int32_t sourceNotOpened = -3;       // likewise
}  // namespace copyError

// Whether a step failed because another program has the file open. The step has waited for it before.
bool isHeldByAnother(std::int32_t error);

enum class CopyMode { overwrite, append };

// Copies at most `limit` bytes of `source` to `destination`, or all of it if `limit` is 0. Returns 0 if every write and
// the closing succeeded, an error of the list above, or the platform's code of the open that failed; the destination's
// if both did. If the source can't be opened, an existing destination keeps its bytes. So does one that is the source
// itself, by whatever links, with the result destinationNotOpened. `whole` gets the sum of the whole source, also of
// what is behind the limit; it is undefined after a failure.
std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode,
                           ContentSum* whole = nullptr);

std::int32_t appendFile(const char* source, const char* destination);

// False if the file can't be read to its end.
bool sumOfFile(const char* path, ContentSum& sum);

// A copy that takes its destination's name when it is complete (NewVersion).
class StagedCopy {
 public:
    // `destination` means what it means now, even if the working directory changes. The copy gets mode and group of the
    // file `model`.
    StagedCopy(const char* source, const char* destination, const char* model)
        : source_(source), destination_(destination), model_(model), version_(destination) {}

    // Makes the copy, without its name. 0, or an error as of copyFileBytes.
    std::int32_t make();

    // What was copied.
    const ContentSum& sum() const { return sum_; }

    // The steps of NewVersion, with 0 or the platform's error.
    std::int32_t setAside();
    std::int32_t giveName();
    bool isOnDisk() const { return version_.isOnDisk(); }
    void deleteAside() { version_.deleteAside(); }

    // The end of a move: the source has done its duty once the copy is on the disk.
    void deleteSource();

 private:
    std::string source_;
    std::string destination_;
    std::string model_;
    NewVersion version_;
    ContentSum sum_;
};

// Copies the whole source, and deletes it when the copy is on the disk. 0, or the error of the copy; the source and an
// existing destination are kept then.
std::int32_t moveByCopy(const char* source, const char* destination);

#endif
