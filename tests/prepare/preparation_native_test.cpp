#include <sys/resource.h>

#include <csignal>

#include "prepare/whole_file.h"
#include "tests/prepare/unprepared_game.h"

namespace {

TEST_F(PreparationTest, ACopyThatTheDiskHasNoRoomForDoesNotComeInPartAndStopsTheNewTemplate) {
    const Bytes old = ByteWriter().bytes(playersTemplate()).fillTo(70'000).written();
    files_.write("tool/Template.iff", old);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{60'000, before.rlim_max};  // more than the new template takes
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const bool ready = isReady(true);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(!ready && reports(".iff can't be written: the disk is full")) << report_;
    EXPECT_EQ(files_.bytesOf("tool/Template.iff"), old);
    EXPECT_FALSE(readWholeFile("/proc/self/mem")) << "nor what can't be read to its end";
    EXPECT_EQ(treeOf(files_.path("tool")).size(), 3U) << "with famtemplate and skinsets-original.cfg";
}

TEST_F(PreparationTest, ADeadLinkStaysAndIsReported) {
    fs::create_directories(skin_.parent_path());
    const fs::path links[] = {skin_, "Template.iff", "FAMTEMPLATE", "skinsets.cfg"};
    for (const fs::path& link : links)
        fs::create_symlink("nowhere", link);
    for (const fs::path& link : links) {
        EXPECT_TRUE(!isReady(true) && reports("leads to no file") && fs::is_symlink(link)) << link << report_;
        EXPECT_EQ(reports("Template.iff is there, but leads"), fs::is_symlink("Template.iff")) << report_;
        fs::remove(link);
    }
}

}  // namespace
