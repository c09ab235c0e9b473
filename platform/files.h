// Opening files and asking for their status: the C runtime's part of the platform, with one behavior on both systems.
// Paths are the program's own, with backslashes.
#ifndef PLATFORM_FILES_H
#define PLATFORM_FILES_H

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// Modes of a status query, as Windows' runtime reports them.
constexpr std::uint32_t writableDirectoryMode = 0x41FF;
constexpr std::uint32_t readOnlyDirectoryMode = 0x416D;
constexpr std::uint32_t writableFileMode = 0x81B6;
constexpr std::uint32_t readOnlyFileMode = 0x8124;

struct FileStatus {
    std::uint32_t mode;    // one of the modes above
    std::int64_t size;     // in bytes; 0 for a directory
    std::int64_t written;  // when it was last written, in seconds since 1970, UTC
};

// Opens `path` for raw bytes, with a mode of `fopen`. The stream has no buffer: each read and write is a call of the
// system, so callers that read or write small pieces keep a buffer of their own. Null on failure, with the reason in
// GetLastError; a directory can't be opened. The caller closes the stream and checks the result.
std::FILE* openFile(const char* path, const char* mode);

// The same, and DeleteFileA, but while another program has the file open in a way that excludes this, they wait: two
// seconds at most. Then they fail with ERROR_SHARING_VIOLATION.
std::FILE* openWhenFree(const char* path, const char* mode);
bool deleteWhenFree(const char* path);

// False, with `status` unchanged, if nothing of that name exists or the system refuses the query.
bool queryFileStatus(const char* path, FileStatus& status);

// How many bytes the user can still write on the disk of an existing directory; -1 if the system doesn't say.
std::int64_t freeRoomIn(const char* directory);

// The names of the files in a directory, without its subdirectories, sorted by their bytes. Empty if it can't be read.
std::vector<std::string> fileNamesIn(const char* directory);

// Whether both paths lead to the same existing file, through links too.
bool isSameFile(const char* first, const char* second);

// A promise that nothing changes in the directories asked about while an object of this class lives: no file is made,
// deleted or renamed there, and the working directory and the environment stay. Each directory is then read only once,
// which makes many queries in one directory cheap. A file's own status is queried each time.
class SteadyDirectories {
 public:
    SteadyDirectories();
    ~SteadyDirectories();
    SteadyDirectories(const SteadyDirectories&) = delete;
    SteadyDirectories& operator=(const SteadyDirectories&) = delete;
};

// Writes the file's data through to the disk, so that they survive a crash of the machine. False if the disk reports an
// error.
bool syncFile(std::FILE* file);

// Writes a directory's entries through to the disk. False if the disk reports an error; a file system that can't do
// this has its own way.
bool syncDirectory(const char* path);

// A lock on a directory, which one process at a time can have, or one with the program that it runs (runAndWait). The
// system releases it when the process ends, however that happens. It doesn't keep others from using the directory: it
// is an agreement between those who ask for it.
class DirectoryLock {
 public:
    // Waits up to two seconds for another process to release the lock.
    explicit DirectoryLock(const char* path);
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;
    ~DirectoryLock();

    // Neither is true where the directory can't be locked, as on some network drives.
    bool isHeld() const { return state_ == State::held; }
    bool isHeldByAnother() const { return state_ == State::heldByAnother; }

    // The platform's own: natively a file descriptor, on Windows a handle; -1 if there is none.
    std::intptr_t handle() const { return handle_; }

 private:
    enum class State { held, heldByAnother, unavailable };

    State state_ = State::unavailable;
    std::intptr_t handle_ = -1;
};

// A new version of a file. It is written as a part beside that file (platform/part_names.h) and takes the file's name
// when it is complete and on the disk, so a process or machine that stops half-way leaves no partial file under that
// name. Each step waits up to two seconds for another program that has the file open in a way that excludes the step;
// then it fails with ERROR_SHARING_VIOLATION.
class NewVersion {
 public:
    // Settles which file `path` means: a later change of the working directory makes no difference, and an existing
    // file keeps the spelling of its name.
    explicit NewVersion(const char* path);
    NewVersion(const NewVersion&) = delete;
    NewVersion& operator=(const NewVersion&) = delete;

    // Discards a version that has no name yet.
    ~NewVersion();

    // Opens the empty part to write, without a buffer. This object owns the stream. Where files have a mode and a
    // group, the part gets those of the file `model`, as far as that exists and the system allows it. Null on failure,
    // with the reason in GetLastError: ERROR_ACCESS_DENIED if the name belongs to a directory or a write-protected
    // file.
    std::FILE* open(const char* model);

    // Writes all data through to the disk and closes the part. On false the disk reported an error and the version is
    // discarded.
    bool complete();

    // Renames the older file, if there is one, to a name beside it, so that it can come back. What is in the directory
    // by then is on the disk first. On false, with the reason in GetLastError, the older file is where it was.
    bool setAside();

    // Gives the complete version its name: in one step over an older file where the system can do that, else the older
    // file is set aside first, and deleted afterwards. On false, with the reason in GetLastError, the version is
    // discarded, and the older file has its name, even if it was set aside.
    bool giveName();

    // Whether the new name has reached the disk. If not, what the new version replaces must not be deleted.
    bool isOnDisk() const;

    // Deletes the older file that `setAside` has set aside. Without this call it stays there.
    void deleteAside();

    // Discards a version that has no name yet.
    void discard();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

#endif
