// The built program in a Wayland session without an X server.
#include <gtest/gtest.h>

#include "sample/installation.h"
#include "tests/support/build_directory.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

// The server's protocol has the titles of windows. The first one is that of the box about an unprepared game.
TEST(Wayland, ServesWhereThereIsNoXServer) {
    const TempDirectory files;
    writeInstallation(files.path("prefix"));
    const ScopedVariable prefix("WINEPREFIX", files.path("prefix")), runtime("XDG_RUNTIME_DIR", files.path());
    const ScopedVariable programs("PROGRAMS", buildDirectory.string());
    files.write("skinsets.cfg", "[empty]");
    EXPECT_EQ(std::system(R"(
        unset DISPLAY QT_QPA_PLATFORM
        cd "$XDG_RUNTIME_DIR" && chmod 700 . || exit
        weston --backend=headless-backend.so --socket=session >weston.log 2>&1 &
        for tenth in $(seq 200); do [ -S session ] && break; sleep 0.1; done
        WAYLAND_DISPLAY=session WAYLAND_DEBUG=1 timeout 20 "$PROGRAMS/tidewright" 2>&1 |
            grep -q -m 1 'set_title("Installation Problem")'
        found=$?
        kill $! && exit $found)"),
              0);
}

}  // namespace
