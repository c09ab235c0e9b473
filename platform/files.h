// Opening files and asking for their status: the C runtime's part of the platform, with one behaviour on both systems.
// Paths are the program's own, with backslashes.
#ifndef PLATFORM_FILES_H
#define PLATFORM_FILES_H

#include <cstdint>
#include <cstdio>
#include <memory>

// Modes of a status query, as Windows' runtime reports them.
constexpr std::uint32_t writableDirectoryMode = 0x41FF;
constexpr std::uint32_t readOnlyDirectoryMode = 0x416D;
constexpr std::uint32_t writableFileMode = 0x81B6;
constexpr std::uint32_t readOnlyFileMode = 0x8124;

struct FileStatus {
    std::uint32_t mode;  // one of the modes above
    std::int64_t size;   // in bytes; 0 for a directory
};

// Opens `path` with a mode of `fopen`, for raw bytes, without a buffer: each read and write reaches the system as it is
// asked for, so whoever reads or writes small pieces keeps a buffer. Null on failure, with the reason in GetLastError;
// a directory can't be opened. The caller closes the stream and looks at the result.
std::FILE* openFile(const char* path, const char* mode);

// False, and `status` untouched, when nothing of that name exists or may be asked about.
bool queryFileStatus(const char* path, FileStatus& status);

// Whether both names lead to one existing file, by whatever links.
bool isSameFile(const char* first, const char* second);

// A promise that nothing changes in the directories asked about while an object of this class lives: no file is made,
// deleted or renamed there, and the working directory and the environment stay. Each directory is then read only once,
// which makes many queries in one directory cheap. A file's own status is always asked anew.
class SteadyDirectories {
 public:
    SteadyDirectories();
    ~SteadyDirectories();
    SteadyDirectories(const SteadyDirectories&) = delete;
    SteadyDirectories& operator=(const SteadyDirectories&) = delete;
};

// Hands what was written to the disk itself, so that it outlives a crash of the machine. False if the disk refused.
bool syncFile(std::FILE* file);

// Hands the names in a directory to the disk itself, where that is a step of its own.
void syncDirectory(const char* path);

// The new version of a file. It gets its name when it is complete, so that a process or a machine that stops half-way
// leaves no part of it under that name. Natively it is a file without a name (O_TMPFILE); on Windows it has a name of
// its own beside the other, "~partN.tmp" with the process's number. Not every file system can do this: FAT and some
// network and FUSE file systems can't. There only `atOnce` works. A process may have one version at a time open in a
// directory.
class NewVersion {
 public:
    enum class Naming { whenComplete, atOnce };

    // Fixes what `path` means now: another working directory, or a file whose name differs in case only, doesn't change
    // it later. If the file that is meant now has gone by the time the version gets its name, that is as `path` has it.
    explicit NewVersion(const char* path);
    NewVersion(const NewVersion&) = delete;
    NewVersion& operator=(const NewVersion&) = delete;

    // Discards what hasn't got its name.
    ~NewVersion();

    // The empty file to write, without a buffer; it belongs to this object. Null on failure, with the reason in
    // GetLastError: ERROR_NOT_SUPPORTED if the file system can't name a file later, ERROR_ACCESS_DENIED if the name is
    // a directory's or a write-protected file's. `whenComplete` leaves the file that has the name as it is; `atOnce`
    // empties it or makes it.
    std::FILE* open(Naming naming);

    // Hands all that was written to the disk itself. False if the disk refused; the version is discarded then.
    bool complete();

    // Gives the complete file its name, in place of the file that had it until now. What is deleted afterwards, in
    // whatever directory, doesn't go from the disk before this has reached it. False on failure, with the reason as
    // above; the version is discarded then, and the older file may be gone.
    bool giveName();

    // Drops the new version. A file that was opened `atOnce` is deleted: it is a part.
    void discard();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

// Deletes the "~partN.tmp" files that processes left in `directory` because they ended half-way. Those of running
// processes stay. Natively there are none.
void deleteLeftOverParts(const char* directory);

#endif
