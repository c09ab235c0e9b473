#include "tests/support/failing_disk.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace {

rlim_t sizeWhenFull = RLIM_INFINITY;

void limitFiles(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);  // the write itself tells of the failure
    const rlimit limit{size, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

FullDisk::FullDisk(std::uint64_t size, const std::string& afterDeletionIn) {
    if (afterDeletionIn.empty()) limitFiles(size);
    if (afterDeletionIn.empty()) return;
    sizeWhenFull = size;
    std::signal(SIGIO, [](int) { limitFiles(sizeWhenFull); });
    watched_ = open(afterDeletionIn.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_EQ(fcntl(watched_, F_NOTIFY, DN_DELETE), 0);
}

FullDisk::~FullDisk() {
    if (watched_ >= 0) close(watched_);
    limitFiles(RLIM_INFINITY);
}
