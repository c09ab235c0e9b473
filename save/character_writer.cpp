// Makes a changed Sim's new character file from its template, and writes the Sim's neighbor record into the temporary
// neighborhood file.
#include <algorithm>

#include "platform/files.h"
#include "platform/win32.h"
#include "save/file_copy.h"
#include "save/save_paths.h"
#include "save/template_layout.h"
#include "world/character_layout.h"
#include "world/neighborhood.h"

namespace {

constexpr std::size_t patchWindow = 64;  // bytes; patching hardly reads

// The field always ends with a zero byte, so a name that would fill it is cut.
std::array<std::uint8_t, characterTemplate::displayNameSize> displayNameField(std::string_view name) {
    std::array<std::uint8_t, characterTemplate::displayNameSize> field{};
    std::ranges::copy(name.substr(0, field.size() - 1), field.begin());
    return field;
}

// A text that is longer than its field is cut.
std::array<std::uint8_t, characterTemplate::bodyTextSize> bodyTextField(const Sim& sim,
                                                                        const BodyStrings& bodyStrings) {
    std::array<std::uint8_t, characterTemplate::bodyTextSize> field{};
    bodyStrings.serialise(field, field.size(), sim.version(), sim.format().hasAllTexts);
    return field;
}

}  // namespace

int Sim::saveCharacterFile(const char* toolDirectory, const char* directory) {
    if (tagOffset_ == 0 || bodyOffset_ == 0 || !bodyStrings_) return 0;
    neighborhood_->setToolDirectory(toolDirectory);  // where buildCharacterFile finds the template
    // The backup goes by relative names. In any other directory it would back nothing up, and the live file would be
    // replaced without a backup.
    if (SetCurrentDirectoryA(directory) == FALSE || SetCurrentDirectoryA(charactersDirectory) == FALSE) return -1;
    const PathText tempPath = tempCharacterPath(directory, fileName_);
    bool installed = false;
    if (buildCharacterFile(tempPath.c_str()) == 1) {
        backupCharacterFile(directory);
        installed = installCharacterFile(tempPath.c_str()) == 1;
        characterDirty_ = !installed;  // the next save makes the file again
    }
    // The rest of the save relies on this directory. ".." might lead elsewhere, if "Characters" was moved or is a link.
    SetCurrentDirectoryA(directory);
    return installed ? 1 : -1;
}

int Sim::buildCharacterFile(const char* tempPath) {
    namespace at = characterTemplate;
    const auto templatePath = joined<PathText>(neighborhood_->toolDirectory(), '\\', format_->characterTemplate);
    // Usually name and GUID were read when the Sim was picked. A file that couldn't be opened then may be there again.
    if (loadName() == -1 || loadGuid() == -1) return -1;
    // In a shorter template a patch would leave a gap of made-up bytes in front of it.
    FileStatus status{};
    if (!queryFileStatus(templatePath.c_str(), status) || status.size < at::smallestSize) return -1;
    // If the temporary name is a link to the live file, writing there would spoil the only old version.
    if (isSameFile(tempPath, filePath_.c_str())) return -1;
    if (copyFileBytes(templatePath.c_str(), tempPath, 0, CopyMode::overwrite) != copyError::none) return -1;
    StreamFile file;
    if (!file.open(tempPath, StreamFile::Access::readAndPatch, patchWindow)) return -1;
    StreamView stream(file);
    stream.writeAt(at::recordName, fileName_.view().substr(0, neighborRecord::nameSize));
    stream.writeAt(at::guid, guid().bytes());
    stream.writeAt(at::displayName, displayNameField(name()));
    stream.writeAt(at::characterTag, characterTag_ ? characterFile::adultTag : characterFile::childTag);
    stream.writeAt(at::bodyText, bodyTextField(*this, *bodyStrings_));
    if (!file.closeOnDisk()) return -1;
    characterDirty_ = false;
    return 1;
}

int Sim::writeNeighborRecord(StreamView stream) {
    namespace at = neighborRecord;
    if (!stream.good()) return -1;
    // A record is written only after a stage change, which leaves a teen or an adult. So the file never gets another
    // age than 18 and 27, and the Sim in memory keeps the age that the file has.
    if (age_ != ageNumber::adult) age_ = ageNumber::teen;
    const at::Bytes record = recordBytes(stream);
    const auto bytes = std::span(record);
    stream.seek(recordOffset_);
    if (gender_ == genderNumber::pet) {
        // The Sim doesn't know which of the kinds 2 to 5 the pet is, so the file keeps it.
        stream.write(bytes.first<at::kind>());
        stream.readBytes<at::kindRoom>();
        stream.write(bytes.subspan<at::tailWords>());
    } else {
        stream.write(bytes);
    }
    if (!stream.good()) return -1;
    recordDirty_ = false;
    return 1;
}
