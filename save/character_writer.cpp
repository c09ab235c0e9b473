// A changed Sim's new character file, made from "Template.iff", and its neighbor record in the temporary neighborhood
// file.
#include "platform/files.h"
#include "platform/win32.h"
#include "save/file_copy.h"
#include "save/save_paths.h"
#include "save/template_layout.h"
#include "world/character_layout.h"
#include "world/neighborhood.h"

namespace {

constexpr std::size_t patchWindow = 64;     // patching hardly reads
constexpr std::size_t bodyTextRoom = 3000;  // for a text that is longer than its place in the file, and cut there

// The room of the name always ends with a zero byte, so a name that fills it is cut.
void writeDisplayName(StreamView& stream, std::string_view name) {
    name = name.substr(0, characterTemplate::displayNameSize - 1);
    stream.write(name);
    stream.writeZeros(characterTemplate::displayNameSize - static_cast<std::int32_t>(name.size()));
}

void writeBodyText(StreamView& stream, const BodyStrings& bodyStrings, std::int16_t version) {
    std::array<std::uint8_t, bodyTextRoom> text{};
    bodyStrings.serialise(text, characterTemplate::bodyTextSize, version);
    stream.write(std::span(text).first<characterTemplate::bodyTextSize>());
}

}  // namespace

// 1 when the new file stands at the live path, 0 when the body strings were never found and nothing was done, -1 on
// failure.
int Sim::saveCharacterFile(const char* toolDirectory, const char* directory) {
    if (tagOffset_ == 0 || bodyOffset_ == 0 || !bodyStrings_) return 0;
    neighborhood_->setToolDirectory(toolDirectory);  // where buildCharacterFile finds the template
    // The backup goes by relative names. Anywhere else than there it would take nothing along, and the live file would
    // be replaced without one.
    if (SetCurrentDirectoryA(directory) == FALSE || SetCurrentDirectoryA(charactersDirectory) == FALSE) return -1;
    const PathText tempPath = tempCharacterPath(directory, fileName_);
    bool installed = false;
    if (buildCharacterFile(tempPath.c_str()) == 1) {
        backupCharacterFile(directory);
        installed = installCharacterFile(tempPath.c_str()) == 1;
    }
    // By its full name and not as "..": whatever became of the way down, the rest of the save relies on standing there.
    SetCurrentDirectoryA(directory);
    return installed ? 1 : -1;
}

int Sim::buildCharacterFile(const char* tempPath) {
    const auto templatePath = joined<PathText>(neighborhood_->toolDirectory(), '\\', characterTemplateName);
    // What is patched must lie inside the template: behind its end a patch would make up bytes.
    FileStatus status{};
    if (!queryFileStatus(templatePath.c_str(), status) || status.size < characterTemplate::smallestSize) return -1;
    // A temporary name that leads to the live file, by whatever link: writing there would spoil the only old version.
    if (isSameFile(tempPath, filePath_.c_str())) return -1;
    if (copyFileBytes(templatePath.c_str(), tempPath, 0, CopyMode::overwrite) != copyError::none) return -1;
    StreamFile file;
    if (!file.open(tempPath, StreamFile::Access::readAndPatch, patchWindow)) return -1;
    StreamView stream(file);
    stream.seek(characterTemplate::recordName);
    stream.write(fileName_.view().substr(0, neighborRecord::nameSize));
    stream.seek(characterTemplate::guid);
    stream.write(guid().bytes());
    stream.seek(characterTemplate::displayName);
    writeDisplayName(stream, name());
    stream.seek(characterTemplate::characterTag);
    stream.write(characterTag_ ? characterFile::adultTag : characterFile::childTag);
    stream.seek(characterTemplate::bodyText);
    writeBodyText(stream, *bodyStrings_, version_);
    if (!file.closeOnDisk()) return -1;
    characterDirty_ = false;
    return 1;
}

// 1, or -1 on a stream in a bad state, with the record still to be written.
int Sim::writeNeighborRecord(StreamView stream) {
    using namespace neighborRecord;
    if (!stream.good()) return -1;
    // Only a stage change makes a record wait, and a Sim is a teen or an adult after it: the file gets no other age.
    // The Sim takes the word as well, so that memory and file agree.
    if (age_ != ageNumber::adult) age_ = ageNumber::teen;
    const neighborRecord::Bytes record = recordBytes();
    const auto bytes = std::span(record);
    stream.seek(recordOffset_);
    if (gender_ == genderNumber::pet) {
        // Memory holds one pet for the kinds 2 to 5, so the file's own kind stays.
        stream.write(bytes.first<kind>());
        stream.readBytes<kindRoom>();
        stream.write(bytes.subspan<neighborRecord::tailWords>());
    } else {
        stream.write(bytes);
    }
    if (!stream.good()) return -1;
    recordDirty_ = false;
    return 1;
}
