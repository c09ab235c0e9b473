// The next version of "neighborhood.iff", under its temporary name: a byte copy of the live file, or of its front when
// families were added, with the pieces that changed patched in place and the new families behind it.
#include <algorithm>
#include <limits>

#include "platform/files.h"
#include "platform/win32.h"
#include "save/file_copy.h"
#include "save/live_file.h"
#include "save/save_paths.h"
#include "save/template_layout.h"
#include "world/neighborhood.h"

namespace {

constexpr std::size_t patchWindow = 64;  // patching hardly reads

constexpr std::int32_t unknownSize = -1;

std::int32_t sizeOf(const char* path) {
    FileStatus status{};
    const bool isKnown = queryFileStatus(path, status) && status.size <= std::numeric_limits<std::int32_t>::max();
    return isKnown ? static_cast<std::int32_t>(status.size) : unknownSize;
}

}  // namespace

// What waited to be saved before the temporary file was patched.
struct Neighborhood::Unwritten {
    std::vector<Sim*> records;
    std::vector<Family*> families;
    std::array<Family*, highestNewFamilyCount> newFamilies;
    std::int32_t newFamilyCount;
    std::int32_t familyCount;
    std::int32_t highestFamilyNumber;
};

Neighborhood::Unwritten Neighborhood::unwritten() const {
    Unwritten state{{}, {}, newFamilies_, newFamilyCount_, familyCount_, highestFamilyNumber_};
    for (std::int32_t i = 0; i < simCount_; ++i) {
        if (sim(i)->recordDirty()) state.records.push_back(sim(i));
    }
    for (std::int32_t i = 0; i < familyCount_; ++i) {
        if (family(i)->dirty()) state.families.push_back(family(i));
    }
    return state;
}

// The temporary file is lost, and all that went into it waits again. Character files that were replaced by then stay.
void Neighborhood::restore(const Unwritten& state) {
    for (Sim* sim : state.records) {
        if (!sim->recordDirty()) sim->oweRecord();
    }
    for (Family* family : state.families) {
        family->markUnwritten();
    }
    newFamilies_ = state.newFamilies;
    newFamilyCount_ = state.newFamilyCount;
    for (std::int32_t i = 0; i < newFamilyCount_; ++i) {
        newFamily(i)->markUnwritten();
    }
    std::fill(families_.begin() + state.familyCount, families_.begin() + familyCount_, nullptr);
    familyCount_ = state.familyCount;
    highestFamilyNumber_ = state.highestFamilyNumber;
}

// Where new families cut the file, in bytes from its start; 0 for a file that has neither free room nor a map.
std::int32_t Neighborhood::cutForNewFamilies() const {
    if (xxxxOffset_ > 0) return xxxxOffset_;
    return mapOffset_ > 0 ? mapOffset_ : 0;
}

// 1, or the error of the copy, or -1 if the live file isn't the one that was read or the copy can't be patched to its
// last byte. Whatever the failure, all that waited to be saved still waits.
int Neighborhood::writeTempFile(const char* tempPath) {
    if (!standsAsRead(fileName_.c_str(), *this)) return -1;
    const std::int32_t cut = hasNewFamilies_ ? cutForNewFamilies() : 0;
    const std::int32_t copied = copyFileBytes(fileName_.c_str(), tempPath, cut, CopyMode::overwrite);
    if (copied != copyError::none) return copied;
    copiedSize_ = sizeOf(tempPath);
    if (copiedSize_ == unknownSize) return -1;  // new families would be written over the header
    if (hasNewFamilies_) {
        const std::int32_t appended = appendFamilyTemplates(tempPath);
        if (appended != copyError::none) return appended;
    }
    StreamFile file;
    if (!file.open(tempPath, StreamFile::Access::readAndPatch, patchWindow)) return -1;
    const Unwritten before = unwritten();
    const int result = patchTempFile(StreamView(file));
    // The pass over the Sims has left this directory and come back. The steps that follow go by relative names.
    if (file.closeOnDisk() && result == 1 && SetCurrentDirectoryA(directory_.c_str()) != FALSE) return 1;
    restore(before);
    return -1;
}

int Neighborhood::appendFamilyTemplates(const char* tempPath) const {
    const SavePath templatePath = joinPath(toolDirectory_, familyTemplateName);
    // A template of another size would put every record behind it in the wrong place. A missing one fails in the copy.
    FileStatus status{};
    if (queryFileStatus(templatePath.c_str(), status) && status.size != familyTemplate::size) {
        return copyError::shortWrite;
    }
    for (std::int32_t i = 0; i < newFamilyCount_; ++i) {
        const std::int32_t error = appendFile(templatePath.c_str(), tempPath);
        if (error != copyError::none) return error;
    }
    return copyError::none;
}

int Neighborhood::patchTempFile(StreamView stream) {
    saveCharacterFiles(toolDirectory_.c_str(), directory_.c_str(), stream);
    if (!hasNewFamilies_) return 1;
    stream.seek(iffHeader::mapOffset);
    stream.writeZeros(iffHeader::mapOffsetSize);
    writeChangedFamilies(stream);
    return writeNewFamilies(stream);
}

// Whether a piece that the live file held is also in the temporary one: what lay behind the cut is gone, and nothing is
// written in its stead.
bool Neighborhood::standsInCopy(std::int32_t offset, std::int32_t size) const {
    return offset >= 0 && copiedSize_ - offset >= size;
}

int Neighborhood::saveCharacterFiles(const char* toolDirectory, const char* directory, StreamView stream) {
    for (std::int32_t i = 0; i < simCount_; ++i) {
        Sim& sim = *sims_[static_cast<std::size_t>(i)];
        if (!sim.characterDirty() && !sim.recordOwed()) continue;
        if (sim.characterDirty() && sim.saveCharacterFile(toolDirectory, directory) != 1) continue;
        if (sim.recordOffset() < 0) sim.forgetRecord();  // an earlier save has cut it off
        if (!sim.recordDirty()) continue;
        sim.oweRecord();  // until it is written
        if (standsInCopy(sim.recordOffset(), neighborRecord::size)) sim.writeNeighborRecord(stream);
    }
    return 1;
}

// A family that has come since the file was read has no table in it. Always 1.
int Neighborhood::writeChangedFamilies(StreamView stream) {
    for (std::int32_t i = 0; i < familyCount_; ++i) {
        Family& family = *families_[static_cast<std::size_t>(i)];
        const std::int32_t table = family.memberTableOffset();
        if (family.dirty() && table > 0 && standsInCopy(table, family.tableSize())) family.rewriteRecord(stream);
    }
    return 1;
}

// 1, or -1 on a stream in a bad state. The families' templates stand behind the copied front, one for each.
int Neighborhood::writeNewFamilies(StreamView stream) {
    std::int32_t position = copiedSize_;
    for (std::int32_t i = 0; i < newFamilyCount_; ++i) {
        Family& family = *newFamilies_[static_cast<std::size_t>(i)];
        const auto number = static_cast<std::int16_t>(highestFamilyNumber_ + 1);
        if (family.writeNewRecord(stream, position, number) != 1) return -1;
        ++highestFamilyNumber_;
        if (familyCount_ < highestFamilyCount) {
            families_[static_cast<std::size_t>(familyCount_)] = &family;
            ++familyCount_;
        }
        position += familyTemplate::size;
    }
    newFamilies_.fill(nullptr);
    newFamilyCount_ = 0;
    return 1;
}
