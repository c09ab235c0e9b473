#include "prepare/character_files.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "gamefiles/iff_reader.h"
#include "platform/files.h"
#include "platform/fixed_text.h"
#include "platform/letter_case.h"
#include "prepare/character_check.h"
#include "prepare/source_choice.h"
#include "prepare/template_maker.h"
#include "prepare/whole_file.h"
#include "world/paths.h"
#include "world/sims_directory.h"

namespace {

struct Candidate {
    std::vector<IffChunk> chunks;
    Bytes madeTemplate;  // empty if the file doesn't serve
};

Candidate candidateOf(const Bytes& file, Editions editions) {
    IffContents contents = readIff(file);
    if (!contents.fault.empty() || !refusalOf(contents.chunks, editions).empty()) return {};
    Bytes made = makeTemplate(contents.chunks, editions);
    return {std::move(contents.chunks), std::move(made)};
}

void addIfServes(const std::string& path, Editions editions, TemplateSource& source, SourceChoice& choice) {
    ++source.found;
    const std::optional<Bytes> file = readWholeFile(path.c_str());
    if (!file) ++source.unreadable;
    const Candidate candidate = candidateOf(file.value_or(Bytes()), editions);
    if (!candidate.madeTemplate.empty()) choice.add(path, candidate.chunks);
}

}  // namespace

// A save that broke off leaves files of other names, which start with "TMP".
bool isCharacterName(const std::string& name) {
    return lowered(name).starts_with("user") && lowered(name).ends_with(".iff");
}

// A save may write a name in another case than the game.
std::vector<std::string> characterNamesIn(const char* directory) {
    std::vector<std::string> names = fileNamesIn(directory);
    std::erase_if(names, [](const std::string& name) { return !isCharacterName(name); });
    std::ranges::stable_sort(names, {}, lowered);
    return names;
}

TemplateSource findTemplateSource(const char* simsDirectory, Editions editions) {
    TemplateSource source;
    SourceChoice choice;
    FileStatus status{};
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        const NeighborhoodPath neighborhood = neighborhoodDirectory(simsDirectory, number);
        if (!queryFileStatus(neighborhood.c_str(), status)) break;
        const auto directory = joined<PathText>(neighborhood, '\\', charactersDirectory, '\\');
        for (const std::string& name : characterNamesIn(directory.c_str())) {
            addIfServes(directory.c_str() + name, editions, source, choice);
        }
    }
    // The files aren't kept, since there may be many large ones. This one may have changed since.
    source.path = choice.best();
    source.madeTemplate = candidateOf(readWholeFile(source.path.c_str()).value_or(Bytes()), editions).madeTemplate;
    return source;
}
