#include <string>
#include <utility>

#include "platform/file_place.h"
#include "platform/files.h"
#include "platform/part_names.h"
#include "platform/win32.h"

struct NewVersion::State {
    explicit State(const char* path) : place(path) {}

    FilePlace place;
    std::string part, aside;
    std::FILE* stream = nullptr;
    bool hasPart = false;
    bool hasAside = false;
    bool isOnDisk = false;
};

NewVersion::NewVersion(const char* path) : state_(std::make_unique<State>(path)) {}

NewVersion::~NewVersion() {
    discard();
}

std::FILE* NewVersion::open(const char* model) {
    const FilePlace& place = state_->place;
    if (!place.isReplaceable()) return nullptr;
    SetLastError(ERROR_ALREADY_EXISTS);
    for (int number = 0; !state_->hasPart && number < partNumbers; ++number) {
        state_->part = partName(place.name(), number);
        state_->aside = asideName(place.name(), number);
        if (!place.isFree(state_->aside)) continue;
        state_->stream = place.create(state_->part, model);
        state_->hasPart = state_->stream != nullptr;
    }
    return state_->stream;
}

bool NewVersion::complete() {
    bool isWhole = syncFile(state_->stream);
    isWhole = std::fclose(std::exchange(state_->stream, nullptr)) == 0 && isWhole;
    if (!isWhole) discard();
    return isWhole;
}

bool NewVersion::setAside() {
    const FilePlace& place = state_->place;
    if (!place.sync()) return false;
    state_->hasAside = place.rename(place.name(), state_->aside);
    return state_->hasAside || GetLastError() == ERROR_FILE_NOT_FOUND;
}

bool NewVersion::giveName() {
    const FilePlace& place = state_->place;
    const bool wasAside = state_->hasAside;
    bool isNamed = (wasAside || FilePlace::renameReplaces()) && place.rename(state_->part, place.name());
    if (!isNamed && !wasAside) isNamed = setAside() && place.rename(state_->part, place.name());
    if (!isNamed) {
        const DWORD error = GetLastError();
        const bool comesBack = state_->hasAside && place.isFree(place.name());
        if (comesBack) state_->hasAside = !place.rename(state_->aside, place.name());
        discard();
        SetLastError(error);
        return false;
    }
    state_->hasPart = false;
    state_->isOnDisk = place.sync();
    if (!wasAside && state_->isOnDisk) deleteAside();
    return true;
}

bool NewVersion::isOnDisk() const {
    return state_->isOnDisk;
}

void NewVersion::deleteAside() {
    if (std::exchange(state_->hasAside, false)) state_->place.remove(state_->aside);
}

void NewVersion::discard() {
    if (state_->stream != nullptr) std::fclose(std::exchange(state_->stream, nullptr));
    if (std::exchange(state_->hasPart, false)) state_->place.remove(state_->part);
}
