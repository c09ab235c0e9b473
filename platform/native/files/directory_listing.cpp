#include "platform/native/files/directory_listing.h"

#include <sys/statvfs.h>

#include <utility>

#include "platform/letter_case.h"
#include "platform/native/base/text1252.h"

SpellingSearch::SpellingSearch(std::string_view written)
    : written_{std::string(written), ""}, utf8_{utf8From1252(written), ""} {}

void SpellingSearch::offer(std::string_view name) {
    offerTo(written_, name);
    offerTo(utf8_, name);
}

void SpellingSearch::offerTo(Form& form, std::string_view name) {
    if (!equalInAnyCase(name, form.name) || form.best == form.name) return;
    if (form.best.empty() || name == form.name || name < form.best) form.best = name;
}

std::string SpellingSearch::result() const {
    if (written_.best == written_.name) return written_.best;
    const bool isUtf8There = !utf8_.best.empty() && (written_.best.empty() || utf8_.best == utf8_.name);
    if (isUtf8There) return utf8_.best;
    if (!written_.best.empty()) return written_.best;
    return isUtf8(written_.name) ? written_.name : utf8_.name;
}

std::string spellIn(const std::string& path, const std::string& written) {
    const OpenDirectory directory(opendir(path.c_str()));
    if (directory == nullptr) return written;
    SpellingSearch search(written);
    while (const dirent* entry = readdir(directory.get())) {
        search.offer(entry->d_name);
    }
    return search.result();
}

std::optional<DirectoryListing> DirectoryListing::read(const std::string& path) {
    OpenDirectory directory(opendir(path.c_str()));
    if (directory == nullptr) return std::nullopt;
    return DirectoryListing(std::move(directory));
}

DirectoryListing::DirectoryListing(OpenDirectory directory) : directory_(std::move(directory)) {
    while (const dirent* entry = readdir(directory_.get())) {
        names_.emplace(lowered(entry->d_name), entry->d_name);
    }
    struct statvfs mount = {};
    mountedForWriting_ = fstatvfs(descriptor(), &mount) == 0 && (mount.f_flag & ST_RDONLY) == 0;
}

std::string DirectoryListing::spell(std::string_view written) const {
    SpellingSearch search(written);
    for (const std::string& form : {search.written(), search.utf8()}) {
        const auto [begin, end] = names_.equal_range(lowered(form));
        for (auto entry = begin; entry != end; ++entry) {
            search.offer(entry->second);
        }
    }
    return search.result();
}
