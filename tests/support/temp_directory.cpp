#include "tests/support/temp_directory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "sample/file_writing.h"

TempDirectory::TempDirectory() {
    std::random_device random;
    do {
        path_ = std::filesystem::temp_directory_path() / ("tidewright-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
}

TempDirectory::~TempDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(path_, ignored);
}

void TempDirectory::write(const std::string& name, const Bytes& bytes) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    EXPECT_TRUE(writeFile(path_ / name, bytes)) << name;
}

void TempDirectory::makeDirectory(const std::string& name) const {
    EXPECT_TRUE(std::filesystem::create_directories(path_ / name)) << name;
}

void TempDirectory::remove(const std::string& name) const {
    EXPECT_NE(std::filesystem::remove_all(path_ / name), 0U) << name;
}

Bytes TempDirectory::bytesOf(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return Bytes(std::istreambuf_iterator<char>(file), {});
}
