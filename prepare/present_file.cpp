#include "prepare/present_file.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "prepare/whole_file.h"
#include "world/character_layout.h"
#include "world/program_files.h"

namespace {

using namespace std::string_view_literals;

// A link that leads nowhere has a name but no status.
bool isDeadLink(const std::string& path) {
    FileStatus status{};
    if (queryFileStatus(path.c_str(), status)) return false;
    const std::size_t name = path.find_last_of('\\') + 1;
    const std::string directory = name == 0 ? "." : path.substr(0, name - 1);
    return std::ranges::count(fileNamesIn(directory.c_str()), lowered(path.substr(name)), lowered) != 0;
}

// `judge` takes the whole file as text.
template <typename Judge>
Present judged(const std::string& path, Judge judge) {
    const Present present = presentFile(path);
    if (present != Present::usable) return present;
    const std::optional<Bytes> file = readWholeFile(path.c_str());
    if (!file) return Present::unusable;
    return judge({reinterpret_cast<const char*>(file->data()), file->size()});
}

bool isTemplate(std::string_view file) {
    return file.size() >= smallestTemplateSize && file.substr(templateObject).starts_with("OBJD") &&
           file.substr(templateName).starts_with("CTSS") && file.substr(templateBodyStrings).starts_with("STR#") &&
           file.substr(templateBodyStrings + iffChunkHeader::id).starts_with("\x00\xC8"sv);
}

// Whether this is the template of the program's earlier packages, by its label and by a text. The text alone isn't
// enough: a Sim saved from that template has it too, and so has a template made of such a Sim, but both have another
// label.
bool isOfEarlierVersion(std::string_view file) {
    return file.substr(templateObject + iffChunkHeader::label).starts_with("user00000 - Sim\0"sv) &&
           file.substr(0, templateObject).find("a Sim of the Tidewright sample household") != std::string_view::npos;
}

// Whether the game would read all strings of a text that a save writes there.
bool countsEnough(std::string_view file, Editions editions) {
    constexpr std::size_t count = templateBodyStrings + characterFile::stringCount;
    constexpr char enough[] = {characterFile::allStrings, 0};  // little-endian
    return editions == Editions::base || file.substr(count).starts_with(std::string_view(enough, sizeof enough));
}

Present judgeTemplate(std::string_view file, Editions editions) {
    if (!isTemplate(file) || !countsEnough(file, editions)) return Present::unusable;
    return isOfEarlierVersion(file) ? Present::ofEarlierVersion : Present::usable;
}

}  // namespace

Present presentFile(const std::string& path) {
    if (isDeadLink(path)) return Present::deadLink;
    return hasBytes(path.c_str()) ? Present::usable : Present::nothing;
}

Present presentTemplate(const std::string& path, Editions editions) {
    return judged(path, [editions](std::string_view file) { return judgeTemplate(file, editions); });
}

Present presentFamilyTemplate(const std::string& path, Editions editions) {
    const std::size_t size = makeFamilyTemplate(editions).size();
    return judged(path,
                  [size](std::string_view file) { return file.size() == size ? Present::usable : Present::unusable; });
}
