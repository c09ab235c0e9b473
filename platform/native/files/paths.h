// Maps the program's paths to native ones: all but those of file_tree.cpp and own_directory.cpp, which are native.
//
// "C:\x\y" is below `dosdevices/c:` of the Wine prefix (`$WINEPREFIX`, else `~/.wine`); so is any other drive, its
// letter in either case. Native paths, absolute and relative, stay as they are. Slashes and backslashes both separate
// components, and several count as one. Each component is looked up by a SpellingSearch; "." and ".." are
// left to the system.
//
// Nothing is kept between calls except while a SteadyDirectories (platform/files.h) exists. Use from one thread only.
#ifndef PLATFORM_NATIVE_FILES_PATHS_H
#define PLATFORM_NATIVE_FILES_PATHS_H

#include <string>

// A native path for the `...at` calls: `name` is relative to the open directory `directory`, or, if that is AT_FDCWD,
// absolute or relative to the working directory. A SteadyDirectories owns the open directory.
struct NativePath {
    int directory;
    std::string name;
    bool mountedForWriting;  // false if unknown
};

NativePath locate(const char* path);

// The same as one path.
std::string nativePath(const char* path);

// The Wine prefix, without a slash at its end; it may not exist.
std::string winePrefix();

#endif
