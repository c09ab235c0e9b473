#include "world/neighborhoods.h"

#include <string>

#include "platform/win32.h"
#include "ui/status_line.h"
#include "world/sims_directory.h"

// Never destroyed, because the process ends without freeing its objects.
NeighborhoodTable& neighborhoods = *new NeighborhoodTable;

namespace {

bool exists(const char* path) {
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA(path, &found);
    if (search == INVALID_HANDLE_VALUE) return false;
    FindClose(search);
    return true;
}

void showProgress(int number) {
    setStatusLine("Loading Neighborhood " + std::to_string(number));
    showStatusLine();
}

void reportFailure(int number) {
    const std::string text = "Error loading Neighborhood " + std::to_string(number);
    MessageBoxA(nullptr, text.c_str(), "Loading Error", MB_OK);
}

}  // namespace

int listedNeighborhoodCount() {
    int count = 0;
    while (count < highestNeighborhoodCount && neighborhoods[static_cast<std::size_t>(count)]) {
        ++count;
    }
    return count;
}

void loadNeighborhoods(const char* simsDirectory, const char* toolDirectory, RecordFormats formats) {
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        auto& slot = neighborhoods[static_cast<std::size_t>(number - 1)];
        slot.reset();
        const NeighborhoodPath directory = neighborhoodDirectory(simsDirectory, number);
        if (!exists(directory.c_str())) return;
        showProgress(number);
        auto neighborhood = std::make_unique<Neighborhood>();
        if (neighborhood->load(directory.c_str(), neighborhoodFileName, formats) == 0) {
            neighborhood->setToolDirectory(toolDirectory);
            slot = std::move(neighborhood);
        } else {
            reportFailure(number);
        }
    }
}
