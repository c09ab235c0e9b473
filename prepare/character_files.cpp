#include "prepare/character_files.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <string>

#include "gamefiles/iff_reader.h"
#include "platform/files.h"
#include "prepare/character_check.h"
#include "prepare/template_maker.h"
#include "prepare/whole_file.h"
#include "world/joined_text.h"
#include "world/paths.h"
#include "world/sims_directory.h"

namespace {

// "User00042.iff", in any case. Others are left from a save that broke off.
bool isCharacterName(std::string name) {
    std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return name.starts_with("user") && name.ends_with(".iff");
}

void addSource(const std::string& path, std::vector<TemplateSource>& sources) {
    const std::optional<Bytes> file = readWholeFile(path.c_str());
    if (!file) return;
    IffContents contents = readIff(*file);
    if (!contents.fault.empty() || !refusalOf(contents.chunks).empty() || makeTemplate(contents.chunks).empty()) return;
    sources.push_back({path, std::move(contents.chunks)});
}

}  // namespace

std::vector<TemplateSource> templateSources(const char* simsDirectory) {
    std::vector<TemplateSource> sources;
    FileStatus status{};
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        const NeighborhoodPath neighborhood = neighborhoodDirectory(simsDirectory, number);
        if (!queryFileStatus(neighborhood.c_str(), status)) break;
        const auto directory = joined<PathText>(neighborhood, '\\', charactersDirectory, '\\');
        for (const std::string& name : fileNamesIn(directory.c_str())) {
            if (isCharacterName(name)) addSource(directory.c_str() + name, sources);
        }
    }
    return sources;
}
