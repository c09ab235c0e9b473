#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/win32.h"
#include "tests/platform/scoped_variable.h"
#include "tests/support/x_server.h"

namespace {

// An X server to which $DISPLAY leads, and the windows of some program on it.
class Screen {
 public:
    Screen() : display_("DISPLAY", server_.display()) {}

    xcb_connection_t* connection() const { return server_.connection(); }

    // Waits until the server has done what came before.
    void settle() const { server_.atom("done"); }

    xcb_window_t makeWindow(xcb_window_t parent) const {
        const xcb_window_t window = xcb_generate_id(connection());
        xcb_create_window(connection(), 0, window, parent, 0, 0, 8, 8, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, 0, 0, nullptr);
        return window;
    }

    void setName(xcb_window_t window, const char* property, const char* type, std::string_view name) const {
        xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, server_.atom(property), server_.atom(type), 8,
                            static_cast<std::uint32_t>(name.size()), name.data());
        settle();
    }

 private:
    XServer server_;
    ScopedVariable display_;
};

bool finds(const char* title) {
    return FindWindowA(nullptr, title) != nullptr;
}

TEST(XWindowsNativeTest, AWholeTitleIsFoundAtAnyDepthOfFrames) {
    const Screen server;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server.connection())).data->root;
    const xcb_window_t plain = server.makeWindow(root);
    const xcb_window_t framed = server.makeWindow(server.makeWindow(server.makeWindow(root)));
    server.setName(plain, "WM_NAME", "STRING", "The Sims House Party");
    server.setName(framed, "WM_NAME", "STRING", "The Sims H\xF4tel");
    EXPECT_TRUE(finds("The Sims House Party"));
    EXPECT_TRUE(finds("The Sims H\xF4tel"));
    for (const char* other : {"The Sims", "The Sims House Party 2", "the sims house party", ""}) {
        EXPECT_FALSE(finds(other)) << other;
    }
    server.setName(plain, "_NET_WM_NAME", "UTF8_STRING", "The Sims \xE2\x80\x93 Livin\xE2\x80\x99 Large");
    EXPECT_TRUE(finds("The Sims \x96 Livin\x92 Large"));
    EXPECT_FALSE(finds("The Sims House Party")) << "the older name doesn't count then";
    xcb_destroy_window(server.connection(), framed);
    server.settle();
    EXPECT_FALSE(finds("The Sims H\xF4tel"));
}

TEST(XWindowsNativeTest, ADisplayThatIsMissingOrSilentHasNoWindows) {
    ScopedVariable display("DISPLAY", "");
    for (const char* none : {"", ":987", "nonsense"}) {
        display.set(none);
        EXPECT_FALSE(finds("The Sims")) << none;
    }
    // A server that takes the connection and never says a word.
    const int silent = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ASSERT_EQ(bind(silent, reinterpret_cast<sockaddr*>(&address), size), 0);
    ASSERT_EQ(listen(silent, 4), 0);
    ASSERT_EQ(getsockname(silent, reinterpret_cast<sockaddr*>(&address), &size), 0);
    constexpr int portOfDisplay0 = 6000;
    display.set("127.0.0.1:" + std::to_string(ntohs(address.sin_port) - portOfDisplay0));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(finds("The Sims"));
    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_GE(taken, std::chrono::milliseconds(500)) << "it wasn't asked";
    EXPECT_LE(taken, std::chrono::seconds(3));
    close(silent);
}

}  // namespace
