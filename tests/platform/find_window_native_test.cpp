// The windows of other programs.
#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <utility>

#include "platform/win32.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/x_server.h"

TEST(FindWindowNativeTest, AWholeTitleIsFoundAtAnyDepthOfFrames) {
    const XServer server;
    ScopedVariable display("DISPLAY", server.display());
    xcb_window_t window = xcb_setup_roots_iterator(xcb_get_setup(server.connection())).data->root;
    const auto setTitle = [&](const char* property, const char* type, std::string_view title) {
        xcb_change_property(server.connection(), XCB_PROP_MODE_REPLACE, window, server.atom(property),
                            server.atom(type), 8, static_cast<std::uint32_t>(title.size()), title.data());
        server.atom("done");  // the server has done what came before
    };
    for (const char* const title : {"The Sims House Party", "", "The Sims H\xF4tel"}) {
        const xcb_window_t parent = std::exchange(window, xcb_generate_id(server.connection()));
        xcb_create_window(server.connection(), 0, window, parent, 0, 0, 8, 8, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, 0, 0,
                          nullptr);
        setTitle("WM_NAME", "STRING", title);
    }
    EXPECT_NE(FindWindowA(nullptr, "The Sims House Party"), nullptr);
    EXPECT_NE(FindWindowA(nullptr, "The Sims H\xF4tel"), nullptr);
    for (const char* const other : {"The Sims", "The Sims House Party 2", "the sims house party"})
        EXPECT_EQ(FindWindowA(nullptr, other), nullptr) << other;
    setTitle("_NET_WM_NAME", "UTF8_STRING", "The Sims \xE2\x80\x93 Livin\xE2\x80\x99 Large");
    EXPECT_NE(FindWindowA(nullptr, "The Sims \x96 Livin\x92 Large"), nullptr);
    EXPECT_EQ(FindWindowA(nullptr, "The Sims H\xF4tel"), nullptr) << "the older name doesn't count then";
}
