#include "start/neighborhood_files.h"

#include "platform/files.h"
#include "world/paths.h"
#include "world/sims_directory.h"

std::string NeighborhoodPlace::characters() const {
    return path(charactersDirectory);
}

std::string NeighborhoodPlace::liveFile() const {
    return path(neighborhoodFileName);
}

bool isThere(const std::string& path) {
    FileStatus status{};
    return queryFileStatus(path.c_str(), status);
}

std::vector<NeighborhoodPlace> neighborhoodsIn(const std::string& simsDirectory) {
    std::vector<NeighborhoodPlace> places;
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        const std::string directory = simsDirectory + neighborhoodDirectory("", number).c_str();
        if (!isThere(directory)) break;
        places.push_back({number, directory});
    }
    return places;
}
