// The only ways in which a save copies and moves files. A move is a whole copy followed by a delete of the source,
// never a rename: nothing old goes before its copy is known to stand on the disk.
#ifndef SAVE_FILE_COPY_H
#define SAVE_FILE_COPY_H

#include <cstdint>

namespace copyError {
constexpr std::int32_t none = 0;
constexpr std::int32_t shortWrite = -1;
constexpr std::int32_t destinationNotOpened = -2;  // and the platform gives no error code
constexpr std::int32_t sourceNotOpened = -3;       // the same
}  // namespace copyError

enum class CopyMode { overwrite, append };

// Copies `source` to `destination`, at most `limit` bytes of it (0: all). 0 on success; an error of the table above; or
// the platform's code of the open that failed, the destination's if both did. Every write and the closing must have
// succeeded. An existing destination keeps its bytes when the source can't be opened.
std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode);

std::int32_t appendFile(const char* source, const char* destination);

// Deletes `source` only when all of it stands on the disk under the other name. 0, or the copy's error with the source
// in place; a copy that broke off is taken away again.
std::int32_t moveByCopy(const char* source, const char* destination);

#endif
