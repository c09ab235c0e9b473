// Opening files and asking for their status: the C runtime's part of the platform, with one behaviour on both systems.
// Paths are the program's own, with backslashes.
#ifndef PLATFORM_FILES_H
#define PLATFORM_FILES_H

#include <cstdint>
#include <cstdio>

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

// While an object of this class lives, the directories that status queries come through are looked at once and then
// taken to stay as they are: for a run of many queries in one directory, between which nothing is opened, made or
// deleted. What others change there meanwhile shows or doesn't. A file's own status is always asked anew.
class SteadyDirectories {
 public:
    SteadyDirectories();
    ~SteadyDirectories();
    SteadyDirectories(const SteadyDirectories&) = delete;
    SteadyDirectories& operator=(const SteadyDirectories&) = delete;
};

// Hands what was written to the disk itself, so that it outlives a crash of the machine. False if the disk refused.
bool syncFile(std::FILE* file);

#endif
