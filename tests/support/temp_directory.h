// A directory of a test's own, gone with the object. The working directory that was current before is current again
// afterwards: a save changes it.
#ifndef TESTS_SUPPORT_TEMP_DIRECTORY_H
#define TESTS_SUPPORT_TEMP_DIRECTORY_H

#include <filesystem>
#include <string>
#include <string_view>

#include "sample/byte_writer.h"

inline Bytes bytesFrom(std::string_view text) {
    return ByteWriter().text(text).written();
}

class TempDirectory {
 public:
    TempDirectory();
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;
    ~TempDirectory();

    // Absolute, without a separator at its end. A name is one or more components with slashes, as written on the disk.
    std::string path() const { return path_.string(); }
    std::string path(const std::string& name) const { return (path_ / name).string(); }

    // Makes the directories on the way. A failure of these fails the test.
    void write(const std::string& name, const Bytes& bytes) const;
    void write(const std::string& name, std::string_view text) const { write(name, bytesFrom(text)); }
    void makeDirectory(const std::string& name) const;
    void remove(const std::string& name) const;
    Bytes bytesOf(const std::string& name) const;

    bool exists(const std::string& name) const { return std::filesystem::exists(path_ / name); }

 private:
    std::filesystem::path path_;
    std::filesystem::path before_ = std::filesystem::current_path();
};

#endif
