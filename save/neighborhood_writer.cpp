// Writes the next version of "neighborhood.iff" under its temporary name. It is a copy of the live file in which the
// changed pieces are patched. If families were added, only the front of the live file is copied, and their records
// follow it.
#include <algorithm>
#include <limits>

#include "platform/files.h"
#include "platform/win32.h"
#include "save/save_attempt.h"
#include "save/template_layout.h"

namespace {

constexpr std::size_t patchWindow = 64;  // bytes; patching hardly reads
constexpr std::int32_t unknownSize = -1;

std::int32_t sizeOf(const char* path) {
    FileStatus status{};
    const bool isKnown = queryFileStatus(path, status) && status.size <= std::numeric_limits<std::int32_t>::max();
    return isKnown ? static_cast<std::int32_t>(status.size) : unknownSize;
}

// How much of the live file to copy when new families follow, in bytes; 0 for all of a file without a free chunk and a
// map.
std::int32_t cutForNewFamilies(const Neighborhood& neighborhood) {
    if (neighborhood.xxxxOffset() > 0) return neighborhood.xxxxOffset();
    return std::max(neighborhood.mapOffset(), 0);
}

// Appends a template for each new family. 0, or the error of the copy.
std::int32_t appendFamilyTemplates(const Neighborhood& neighborhood, const char* tempPath) {
    for (std::int32_t i = 0; i < neighborhood.newFamilyCount(); ++i) {
        const RecordFormat& format = neighborhood.newFamily(i)->format();
        const auto templatePath = joined<PathText>(neighborhood.toolDirectory(), '\\', format.familyTemplate);
        // A template of another size would put the records behind it in the wrong place. A missing one fails in the
        // copy.
        FileStatus status{};
        if (queryFileStatus(templatePath.c_str(), status) && status.size != familyTemplate::sizeOf(format)) {
            return copyError::shortWrite;
        }
        const std::int32_t error = appendFile(templatePath.c_str(), tempPath);
        if (error != copyError::none) return error;
    }
    return copyError::none;
}

// A platform's code of 1 would read as success.
int failureOf(std::int32_t copyError) {
    return copyError == 1 ? -1 : copyError;
}

int patchTempFile(Neighborhood& neighborhood, StreamView stream) {
    neighborhood.saveCharacterFiles(neighborhood.toolDirectory(), neighborhood.directory(), stream);
    if (!neighborhood.hasNewFamilies()) return 1;
    stream.writeAt(iffHeader::mapOffset, std::array<std::uint8_t, iffHeader::mapOffsetSize>{});
    neighborhood.writeChangedFamilies(stream);
    return neighborhood.writeNewFamilies(stream);
}

}  // namespace

// Returns 1; the error of a copy; or -1 if the live file isn't the one that was read, or if the temporary file couldn't
// be patched to its last byte.
int Neighborhood::writeTempFile(const char* tempPath) {
    ContentSum live;
    if (!sumOfFile(fileName_.c_str(), live) || live != sumAsRead_) return -1;  // before anything is written
    const std::int32_t cut = hasNewFamilies_ ? cutForNewFamilies(*this) : 0;
    const std::int32_t copied = copyFileBytes(fileName_.c_str(), tempPath, cut, CopyMode::overwrite, &live);
    if (copied != copyError::none) return failureOf(copied);
    if (live != sumAsRead_) return -1;
    saveAttempt_->setCopiedSize(sizeOf(tempPath));
    if (saveAttempt_->copiedSize() == unknownSize) return -1;  // new families would be written over the header
    if (hasNewFamilies_) {
        const std::int32_t appended = appendFamilyTemplates(*this, tempPath);
        if (appended != copyError::none) return failureOf(appended);
    }
    StreamFile file;
    if (!file.open(tempPath, StreamFile::Access::readAndPatch, patchWindow)) return -1;
    saveAttempt_->noteWaiting();
    const int result = patchTempFile(*this, StreamView(file));
    // The next steps of the save go by relative names, and the pass over the Sims has changed the directory.
    if (file.closeOnDisk() && result == 1 && SetCurrentDirectoryA(directory_.c_str()) != FALSE) return 1;
    saveAttempt_->restoreWaiting();
    return -1;
}

int Neighborhood::saveCharacterFiles(const char* toolDirectory, const char* directory, StreamView stream) {
    SaveAttempt& attempt = *saveAttempt_;
    for (std::int32_t i = 0; i < simCount_; ++i) {
        Sim& sim = *this->sim(i);
        if (sim.characterDirty()) {
            attempt.settle(sim);  // a record that was owed waits for the newer character file
            if (sim.saveCharacterFile(toolDirectory, directory) != 1) continue;
        } else if (!attempt.owes(sim)) {
            continue;
        }
        if (sim.recordOffset() < 0) attempt.forgetRecord(sim);  // an earlier save cut it off
        if (!sim.recordDirty()) continue;
        attempt.owe(sim);
        const bool isCopied = attempt.isCopied(sim.recordOffset(), neighborRecord::size);
        if (isCopied && sim.writeNeighborRecord(stream) == 1) attempt.settle(sim);
    }
    return 1;
}

// A family that was added since the file was read has no member table and is passed over.
int Neighborhood::writeChangedFamilies(StreamView stream) {
    for (std::int32_t i = 0; i < familyCount_; ++i) {
        Family& family = *this->family(i);
        const std::int32_t table = family.memberTableOffset();
        const bool isCopied = table > 0 && saveAttempt_->isCopied(table, family.tableSize());
        if (family.dirty() && isCopied) family.rewriteRecord(stream);
    }
    return 1;
}

// The copies of the template, one for each family, are behind what was copied of the live file.
int Neighborhood::writeNewFamilies(StreamView stream) {
    std::int32_t position = saveAttempt_->copiedSize();
    for (std::int32_t i = 0; i < newFamilyCount_; ++i) {
        Family& family = *newFamily(i);
        if (family.writeNewRecord(stream, position) != 1) return -1;
        if (familyCount_ < highestFamilyCount) {
            families_[static_cast<std::size_t>(familyCount_)] = &family;
            ++familyCount_;
        }
        position += familyTemplate::sizeOf(family.format());
    }
    newFamilyCount_ = 0;
    return 1;
}
