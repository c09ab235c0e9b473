// The directories of the game's neighborhoods, and the names of the files in them.
#ifndef START_NEIGHBORHOOD_FILES_H
#define START_NEIGHBORHOOD_FILES_H

#include <string>
#include <string_view>
#include <vector>

struct NeighborhoodPlace {
    int number = 0;         // 1 for "UserData"
    std::string directory;  // without a trailing backslash; a longer path than the editor can use isn't cut

    std::string name() const { return "Neighborhood " + std::to_string(number); }
    std::string path(std::string_view file) const { return directory + '\\' + std::string(file); }
    std::string characters() const;
    std::string character(std::string_view file) const { return characters() + '\\' + std::string(file); }
    std::string liveFile() const;
};

// Whether something of that name exists.
bool isThere(const std::string& path);

// The neighborhoods that the editor looks for: up to the first number without a directory.
std::vector<NeighborhoodPlace> neighborhoodsIn(const std::string& simsDirectory);

#endif
