// A disk that runs full, for tests of what a save then leaves. Each system has its own implementation in a folder
// beside this file; where it can't be had, the test fails.
#ifndef TESTS_SUPPORT_FAILING_DISK_H
#define TESTS_SUPPORT_FAILING_DISK_H

#include <cstdint>
#include <string>

class FullDisk {
 public:
    // While it lives, each file that the process writes ends at `size` bytes: the write that would pass them is cut
    // short. With a directory, only once a file in it has been deleted.
    explicit FullDisk(std::uint64_t size, const std::string& afterDeletionIn = {});
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk();

 private:
    int watched_ = -1;
};

#endif
