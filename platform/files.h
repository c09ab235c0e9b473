// Opening files and asking for their status: the C runtime's part of the platform, with one behaviour on both systems.
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
    std::uint32_t mode;  // one of the modes above
    std::int64_t size;   // in bytes; 0 for a directory
};

// Opens `path` for raw bytes, with a mode of `fopen`. The stream has no buffer: each read and write is a call of the
// system, so callers that read or write small pieces keep a buffer of their own. Null on failure, with the reason in
// GetLastError; a directory can't be opened. The caller closes the stream and checks the result.
std::FILE* openFile(const char* path, const char* mode);

// False, with `status` unchanged, if nothing of that name exists or the system refuses the query.
bool queryFileStatus(const char* path, FileStatus& status);

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

// Writes a directory's entries through to the disk, on systems where that takes a call of its own.
void syncDirectory(const char* path);

// A new version of a file, which takes the file's name only when it is complete: a process or machine that stops
// half-way leaves no partial file under that name. Natively it is a file without a name (O_TMPFILE). On Windows it is
// "~partN.tmp" in the same directory, with the process's number, and has "~partN-link.tmp" as a second name. FAT and
// some network and FUSE file systems can't do this; on those only `atOnce` works. A process may have one version at a
// time open in a directory.
class NewVersion {
 public:
    enum class Naming { whenComplete, atOnce };

    // Settles which file `path` means: a later change of the working directory, or a new file whose name differs in
    // case only, makes no difference. If that file is gone by the time the version gets its name, the name is spelled
    // as in `path`.
    explicit NewVersion(const char* path);
    NewVersion(const NewVersion&) = delete;
    NewVersion& operator=(const NewVersion&) = delete;

    // Discards a version that has no name yet.
    ~NewVersion();

    // Opens the empty file to write, without a buffer. This object owns the stream. `whenComplete` leaves the existing
    // file as it is; `atOnce` empties or creates it. Null on failure, with the reason in GetLastError:
    // ERROR_NOT_SUPPORTED if the file system can't name a file later, ERROR_ACCESS_DENIED if the name belongs to a
    // directory or a write-protected file.
    std::FILE* open(Naming naming);

    // Writes all data through to the disk. On false the disk reported an error and the version is discarded.
    bool complete();

    // Gives the complete file its name, replacing the older file. A file that is deleted afterwards, in any directory,
    // is not gone from the disk before this step has reached it. On false the version is discarded, the older file may
    // be gone, and GetLastError gives the reason as for `open`.
    bool giveName();

    // Discards the new version. A file that was opened `atOnce` is incomplete, so it is deleted.
    void discard();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

// Deletes the "~part*.tmp" files that processes left in `directory` when they ended half-way. Those of running
// processes stay. Does nothing natively, where such files do not exist.
void deleteLeftOverParts(const char* directory);

#endif
