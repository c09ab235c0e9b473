// From the program's paths to native ones; every file operation of the layer goes through here.
//
// "C:\x\y" lies below `dosdevices/c:` of the Wine prefix (`$WINEPREFIX`, else `~/.wine`), for each drive letter in
// either case; native paths, absolute and relative, stay. A slash divides like a backslash, and several divide like
// one. Each component means the entry that DirectoryListing::spell finds; "." and ".." are left to the system.
//
// Nothing is remembered from one call to the next but while a SteadyDirectories (platform/files.h) lives. To be called
// by one thread at a time.
#ifndef PLATFORM_NATIVE_FILES_PATHS_H
#define PLATFORM_NATIVE_FILES_PATHS_H

#include <string>

// A native path for the `...at` calls: `name` is relative to the open directory `directory`, or absolute or relative to
// the working directory (AT_FDCWD). A SteadyDirectories owns the open directory.
struct NativePath {
    int directory;
    std::string name;
    bool mountedForWriting;  // known to be; false if it wasn't asked
};

NativePath locate(const char* path);

// The same in one piece.
std::string nativePath(const char* path);

// The Wine prefix, without a slash at its end; it may not exist.
std::string winePrefix();

#endif
