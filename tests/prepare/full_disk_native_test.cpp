#include <sys/resource.h>

#include <csignal>

#include "tests/prepare/unprepared_game.h"

namespace {

TEST_F(PreparationTest, AFileThatTheDiskHasNoRoomForDoesNotComeInPart) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{20'000, before.rlim_max};  // less than a template takes
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const bool ready = isReady();
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(!ready && reports("Template.iff can't be written: the disk is full")) << report_;
    EXPECT_FALSE(files_.exists("tool/Template.iff") || files_.exists("tool/skinsets.cfg"));
}

}  // namespace
