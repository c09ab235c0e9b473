// When a file was last written, to be shown.
#ifndef PLATFORM_LAST_WRITTEN_H
#define PLATFORM_LAST_WRITTEN_H

#include <string>

// In local time, as "2026-11-25 20:12", which sorts as the times do. Empty if there is no such file.
std::string lastWritten(const char* path);

#endif
