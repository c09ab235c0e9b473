// A directory for one test, and the files below a directory with their bytes.
#ifndef TESTS_SUPPORT_TEMP_DIRECTORY_H
#define TESTS_SUPPORT_TEMP_DIRECTORY_H

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "gamefiles/byte_writer.h"
#include "gamefiles/file_writing.h"

namespace fs = std::filesystem;

inline Bytes bytesFrom(std::string_view text) {
    return ByteWriter().text(text).written();
}

inline Bytes bytesOfFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

// Puts `bytes` over those of `file` from `offset` on; the file's length stays.
inline void overwrite(Bytes& file, std::size_t offset, const Bytes& bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i)
        file.at(offset + i) = bytes[i];
}

using Tree = std::map<std::string, Bytes>;

inline Tree treeOf(const fs::path& directory) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(directory))
        if (entry.is_regular_file())
            tree[entry.path().lexically_relative(directory).generic_string()] = bytesOfFile(entry.path());
    return tree;
}

// The names of the files that differ, or are only in one of the trees; empty for equal trees.
inline std::string differences(const Tree& expected, const Tree& actual) {
    Tree different;
    std::set_symmetric_difference(expected.begin(), expected.end(), actual.begin(), actual.end(),
                                  std::inserter(different, different.end()));
    std::string names;
    for (const auto& [name, bytes] : different)
        names += name + "\n";
    return names;
}

// Deleted with the object. The working directory is restored then, because a save changes it.
class TempDirectory {
 public:
    TempDirectory() {
        std::random_device random;
        do {
            path_ = fs::temp_directory_path() / ("tidewright-" + std::to_string(random()));
        } while (!fs::create_directory(path_));
    }
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;
    ~TempDirectory() {
        std::error_code ignored;
        fs::current_path(before_, ignored);
        fs::remove_all(path_, ignored);
    }

    // Absolute, without a separator at its end. A name is one or more components with slashes, as written on the disk.
    std::string path() const { return path_.string(); }
    std::string path(const std::string& name) const { return (path_ / name).string(); }

    // Makes the directories on the way. A failure of these fails the test.
    void write(const std::string& name, const Bytes& bytes) const {
        fs::create_directories((path_ / name).parent_path());
        EXPECT_TRUE(writeFile(path_ / name, bytes)) << name;
    }
    void write(const std::string& name, std::string_view text) const { write(name, bytesFrom(text)); }
    void makeDirectory(const std::string& name) const { EXPECT_TRUE(fs::create_directories(path_ / name)) << name; }
    // Gives `file` a second name, `name`. Makes the directories on the way.
    void link(const std::string& name, const std::string& file) const {
        fs::create_directories((path_ / name).parent_path());
        fs::create_hard_link(path_ / file, path_ / name);
    }
    void remove(const std::string& name) const { EXPECT_NE(fs::remove_all(path_ / name), 0U) << name; }
    Bytes bytesOf(const std::string& name) const { return bytesOfFile(path_ / name); }
    bool exists(const std::string& name) const { return fs::exists(path_ / name); }

 private:
    fs::path path_;
    fs::path before_ = fs::current_path();
};

#endif
