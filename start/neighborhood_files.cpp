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

std::vector<NeighborhoodPlace> neighborhoodsIn(const std::string& simsDirectory) {
    std::vector<NeighborhoodPlace> places;
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        const std::string directory = simsDirectory + neighborhoodDirectory("", number).c_str();
        FileStatus status{};
        if (!queryFileStatus(directory.c_str(), status)) break;
        places.push_back({number, directory});
    }
    return places;
}
