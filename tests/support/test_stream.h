// A file of a test's own, open as the readers of the game's files see it.
#ifndef TESTS_SUPPORT_TEST_STREAM_H
#define TESTS_SUPPORT_TEST_STREAM_H

#include <gtest/gtest.h>

#include "tests/support/temp_directory.h"
#include "world/stream.h"

class TestStream {
 public:
    // With a window of 64 bytes, the smallest, it takes few bytes to cross its edge.
    explicit TestStream(const Bytes& bytes) {
        files_.write("file", bytes);
        EXPECT_TRUE(file_.open(files_.path("file").c_str(), StreamFile::Access::read, 64));
    }

    StreamView view() { return StreamView(file_); }

 private:
    TempDirectory files_;
    StreamFile file_;
};

#endif
