// A directory for one test, deleted with the object. The working directory is restored then, because a save changes it.
#ifndef TESTS_SUPPORT_TEMP_DIRECTORY_H
#define TESTS_SUPPORT_TEMP_DIRECTORY_H

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "gamefiles/byte_writer.h"
#include "gamefiles/file_writing.h"

inline Bytes bytesFrom(std::string_view text) {
    return ByteWriter().text(text).written();
}

class TempDirectory {
 public:
    TempDirectory() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("tidewright-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;
    ~TempDirectory() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
        std::filesystem::remove_all(path_, ignored);
    }

    // Absolute, without a separator at its end. A name is one or more components with slashes, as written on the disk.
    std::string path() const { return path_.string(); }
    std::string path(const std::string& name) const { return (path_ / name).string(); }

    // Makes the directories on the way. A failure of these fails the test.
    void write(const std::string& name, const Bytes& bytes) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        EXPECT_TRUE(writeFile(path_ / name, bytes)) << name;
    }
    void write(const std::string& name, std::string_view text) const { write(name, bytesFrom(text)); }
    void makeDirectory(const std::string& name) const {
        EXPECT_TRUE(std::filesystem::create_directories(path_ / name)) << name;
    }
    // The second name of a file. Makes the directories on the way.
    void link(const std::string& name, const std::string& file) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::filesystem::create_hard_link(path_ / file, path_ / name);
    }
    void remove(const std::string& name) const { EXPECT_NE(std::filesystem::remove_all(path_ / name), 0U) << name; }
    Bytes bytesOf(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        EXPECT_TRUE(file) << name;
        return Bytes(std::istreambuf_iterator<char>(file), {});
    }

    bool exists(const std::string& name) const { return std::filesystem::exists(path_ / name); }

 private:
    std::filesystem::path path_;
    std::filesystem::path before_ = std::filesystem::current_path();
};

#endif
