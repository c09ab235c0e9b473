#include "restore/point_files.h"

#include <algorithm>
#include <memory>
#include <span>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "platform/part_names.h"
#include "platform/win32.h"
#include "world/content_sum.h"
#include "world/paths.h"

namespace {

constexpr std::string_view neighborhoodPrefix = "userdata";
constexpr std::string_view temporary = temporaryPrefix;

constexpr std::size_t blockSize = 256'000;

// Of a text file: thousands of files have less.
constexpr std::int64_t mostTextBytes = 64'000'000;

// Of a directory with this name; 0 for another one.
int neighborhoodNumber(std::string_view name) {
    if (!equalInAnyCase(name.substr(0, neighborhoodPrefix.size()), neighborhoodPrefix)) return 0;
    const std::string_view digits = name.substr(neighborhoodPrefix.size());
    if (digits.empty()) return 1;
    constexpr std::size_t mostDigits = 4;
    if (digits.size() > mostDigits || digits.front() == '0') return 0;
    int number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return 0;
        number = number * 10 + (c - '0');
    }
    return number > 1 ? number : 0;
}

bool isLeftOut(std::string_view fileName) {
    return equalInAnyCase(fileName.substr(0, temporary.size()), temporary) || !fileBehind(fileName).empty();
}

class Walk {
 public:
    Walk(const FileTree& tree, std::string& error) : tree_(tree), error_(error) {}

    bool walk(const std::string& directory) {
        const auto entries = tree_.entriesOf(directory);
        if (!entries) {
            error_ = failureOf("The directory can't be read", directory);
            return false;
        }
        if (!directory.empty()) found_.directories.push_back(directory);
        for (const TreeEntry& entry : *entries) {
            const std::string path = directory.empty() ? entry.name : directory + '/' + entry.name;
            if (entry.kind == TreeEntry::Kind::file && !directory.empty()) addFile(directory, path, entry);
            if (entry.kind == TreeEntry::Kind::directory && isEntered(directory, entry) && !walk(path)) {
                return false;
            }
        }
        return true;
    }

    NeighborhoodFiles takeFound() {
        std::ranges::sort(found_.files, {}, &LiveFile::path);
        return std::move(found_);
    }

 private:
    void addFile(const std::string& directory, const std::string& path, const TreeEntry& entry) {
        if (!fileBehind(entry.name).empty()) {
            found_.withParts.push_back(directory);
        } else if (!isLeftOut(entry.name)) {
            found_.files.push_back({path, entry.stamp, entry.isLink});
        }
    }

    static bool isEntered(const std::string& directory, const TreeEntry& entry) {
        if (directory.empty()) return neighborhoodNumber(entry.name) != 0;
        // What a link leads to isn't the neighborhood's own, and nothing there may be deleted.
        return !entry.isLink && !equalInAnyCase(entry.name, backupsDirectory);
    }

    const FileTree& tree_;
    std::string& error_;
    NeighborhoodFiles found_;
};

// Closes itself.
using Stream = std::unique_ptr<std::FILE, decltype([](std::FILE* file) { std::fclose(file); })>;

class Block {
 public:
    // Fewer bytes than the block has at the end of the file.
    std::span<const std::uint8_t> read(std::FILE* file) {
        return {bytes_.get(), std::fread(bytes_.get(), 1, blockSize, file)};
    }

 private:
    std::unique_ptr<std::uint8_t[]> bytes_ = std::make_unique_for_overwrite<std::uint8_t[]>(blockSize);
};

}  // namespace

int neighborhoodOf(std::string_view path) {
    const std::size_t slash = path.find('/');
    return slash == std::string_view::npos ? 0 : neighborhoodNumber(path.substr(0, slash));
}

bool isIn(int neighborhood, std::string_view path) {
    return neighborhood == allNeighborhoods || neighborhoodOf(path) == neighborhood;
}

bool belongsToPoint(std::string_view path) {
    if (neighborhoodOf(path) == 0) return false;
    path.remove_prefix(path.find('/') + 1);
    while (path.find('/') != std::string_view::npos) {
        const std::string_view directory = path.substr(0, path.find('/'));
        if (!FileTree::isName(directory) || equalInAnyCase(directory, backupsDirectory)) return false;
        path.remove_prefix(directory.size() + 1);
    }
    return FileTree::isName(path) && !isLeftOut(path);
}

std::string fileBehind(std::string_view name) {
    const std::string file = fileOfPart(name);
    return file.empty() ? fileOfAside(name) : file;
}

std::optional<NeighborhoodFiles> filesOfNeighborhoods(const FileTree& tree, std::string& error) {
    Walk walk(tree, error);
    if (!walk.walk("")) return std::nullopt;
    return walk.takeFound();
}

std::optional<std::uint32_t> checksumOf(const FileTree& tree, const std::string& file, std::int64_t size) {
    const Stream stream(tree.openToRead(file));
    if (!stream) return std::nullopt;
    static Block block;
    ContentSum sum;
    std::span<const std::uint8_t> bytes;
    do {
        bytes = block.read(stream.get());
        sum.add(bytes);
    } while (bytes.size() == blockSize);
    if (std::ferror(stream.get()) != 0 || sum.size != size) return std::nullopt;
    return sum.checksum;
}

std::optional<std::uint32_t> copyFile(const FileTree& source, const std::string& from, const FileTree& target,
                                      const std::string& to, const FileStamp& stamp, FileTree::Sync sync,
                                      std::string& error) {
    const Stream reading(source.openToRead(from));
    if (!reading) {
        error = failureOf("The file can't be read", from);
        return std::nullopt;
    }
    std::FILE* const writing = target.create(to);
    if (writing == nullptr) {
        error = failureOf("The file can't be written", to);
        return std::nullopt;
    }
    static Block block;
    ContentSum sum;
    std::span<const std::uint8_t> bytes;
    bool isWritten = true;
    do {
        bytes = block.read(reading.get());
        sum.add(bytes);
        isWritten = std::fwrite(bytes.data(), 1, bytes.size(), writing) == bytes.size();
    } while (isWritten && bytes.size() == blockSize);
    const bool isRead = std::ferror(reading.get()) == 0 && (!isWritten || sum.size == stamp.size);
    isWritten = target.finish(writing, to, stamp, sync) && isWritten;
    if (isRead && isWritten) return sum.checksum;
    error = isRead ? failureOf("The file can't be written", to) : failureOf("The file can't be read to its end", from);
    target.removeFile(to);
    return std::nullopt;
}

std::optional<std::string> textOfFile(const FileTree& tree, const std::string& file) {
    const auto stamp = tree.stampOf(file);
    if (!stamp || stamp->size > mostTextBytes) return std::nullopt;
    const Stream stream(tree.openToRead(file));
    if (!stream) return std::nullopt;
    std::string text(static_cast<std::size_t>(stamp->size), '\0');
    if (std::fread(text.data(), 1, text.size(), stream.get()) != text.size()) return std::nullopt;
    return text;
}

bool writeText(const std::string& directory, const std::string& name, const std::string& text) {
    const std::string path = directory + '\\' + name;
    NewVersion version(path.c_str());
    std::FILE* const stream = version.open(path.c_str());
    return stream != nullptr && std::fwrite(text.data(), 1, text.size(), stream) == text.size() && version.complete() &&
           version.giveName() && version.isOnDisk();
}

std::string failureOf(std::string_view what, const std::string& path) {
    const DWORD code = GetLastError();
    std::string sentence = std::string(what) + ": " + FileTree::shown(path);
    std::ranges::replace_if(
        sentence, [](char c) { return c >= 0 && c < ' '; }, '?');
    if (code == ERROR_DISK_FULL) return sentence + ". The disk is full.";
    return sentence + ". (Error " + std::to_string(code) + ")";
}
