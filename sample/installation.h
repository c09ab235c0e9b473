// The sample installation: a Wine prefix with a game directory whose neighborhoods a newcomer can browse, and a larger
// one for measuring. The same calls write the same bytes each time.
#ifndef SAMPLE_INSTALLATION_H
#define SAMPLE_INSTALLATION_H

#include <filesystem>

#include "gamefiles/character_file.h"
#include "gamefiles/neighborhood_file.h"
#include "sample/cast.h"
#include "sample/wine_prefix.h"

// Writes the prefix with the neighborhoods of sampleCast(). The directory is emptied first, on the terms of
// makeWinePrefix; false if it is refused or a file can't be written.
bool writeInstallation(const std::filesystem::path& prefix);

// The same with neighborhoods of a real size: neighborhood files of 566,000 bytes, 216 character files of 55,000 to
// 370,000 bytes beside each. One neighborhood takes some 46 million bytes.
bool writeLargeInstallation(const std::filesystem::path& prefix, int neighborhoods = 3);

// What stands in the files, for tests that change a piece of it.
SampleNeighborhood castNeighborhoodFile(int neighborhoodIndex, const CastNeighborhood& neighborhood);
SampleCharacter castCharacter(int neighborhoodIndex, const CastFamily& family, const CastSim& sim);

#endif
