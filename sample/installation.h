// The sample installation: a Wine prefix with a game directory and its neighborhoods. A small one is for newcomers, a
// large one for measuring. Each call writes the same bytes.
#ifndef SAMPLE_INSTALLATION_H
#define SAMPLE_INSTALLATION_H

#include <filesystem>

#include "sample/cast.h"
#include "sample/neighborhood_file.h"
#include "sample/wine_prefix.h"

// Writes a prefix with the neighborhoods of sampleCast(), and `withLater` that of laterNeighborhood(). The directory is
// emptied or refused like that of makeWinePrefix. Returns false if it is refused or a file can't be written.
bool writeInstallation(const std::filesystem::path& prefix, bool withLater = false);

// The same with neighborhoods of a real size: a neighborhood file of 566,000 bytes and 216 character files of 55,000
// to 370,000 bytes in each. One neighborhood takes some 46 million bytes. The second one is as full as the program can
// show instead: 820 character files of 55,000 bytes. largeCast() has more.
bool writeLargeInstallation(const std::filesystem::path& prefix, int neighborhoods = 3);

#endif
