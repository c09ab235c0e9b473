#include "tests/support/failing_disk.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace {

rlim_t sizeWhenFull = RLIM_INFINITY;

bool limitFiles(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);  // the write itself tells of the failure
    const rlimit limit{size, RLIM_INFINITY};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

}  // namespace

FullDisk::FullDisk(std::uint64_t size, const std::string& afterDeletionIn)
    : works_(limitFiles(afterDeletionIn.empty() ? size : RLIM_INFINITY)) {
    if (afterDeletionIn.empty()) return;
    sizeWhenFull = size;
    std::signal(SIGIO, [](int) { limitFiles(sizeWhenFull); });
    watched_ = open(afterDeletionIn.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    works_ = works_ && watched_ >= 0 && fcntl(watched_, F_NOTIFY, DN_DELETE) == 0;
}

FullDisk::~FullDisk() {
    if (watched_ >= 0) close(watched_);
    limitFiles(RLIM_INFINITY);
}
