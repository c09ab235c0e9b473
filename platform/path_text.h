// Paths as texts for a box or a terminal.
#ifndef PLATFORM_PATH_TEXT_H
#define PLATFORM_PATH_TEXT_H

#include <string>

// A path whose bytes are the file system's own, in the program's code page. The result is for the eye: it need not lead
// to the file.
std::string shownPath(const std::string& path);

// `path` as an absolute path, seen from the working directory, without a separator at its end; natively "~/" is the
// home directory.
std::string absolutePath(const std::string& path);

// The absolute path of an existing file or directory of the program, links followed: natively also those of drives. On
// failure `path` itself.
std::string realPath(const std::string& path);

// Where a symbolic link leads, as it is written there. Empty for anything else, and always on Windows.
std::string linkTarget(const std::string& path);

#endif
