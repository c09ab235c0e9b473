#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <string_view>

#include "platform/win32.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/x_server.h"

namespace {

class FindWindowNativeTest : public testing::Test {
 protected:
    xcb_window_t makeWindow(xcb_window_t parent) const {
        const xcb_window_t window = xcb_generate_id(server_.connection());
        xcb_create_window(server_.connection(), 0, window, parent, 0, 0, 8, 8, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, 0, 0,
                          nullptr);
        return window;
    }

    void setName(xcb_window_t window, const char* property, const char* type, std::string_view name) const {
        xcb_change_property(server_.connection(), XCB_PROP_MODE_REPLACE, window, server_.atom(property),
                            server_.atom(type), 8, static_cast<std::uint32_t>(name.size()), name.data());
        server_.atom("done");  // the server has done what came before
    }

    static bool finds(const char* title) { return FindWindowA(nullptr, title) != nullptr; }

    XServer server_;
    ScopedVariable display_{"DISPLAY", server_.display()};
};

TEST_F(FindWindowNativeTest, AWholeTitleIsFoundAtAnyDepthOfFrames) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server_.connection())).data->root;
    const xcb_window_t plain = makeWindow(root);
    setName(plain, "WM_NAME", "STRING", "The Sims House Party");
    setName(makeWindow(makeWindow(makeWindow(root))), "WM_NAME", "STRING", "The Sims H\xF4tel");
    EXPECT_TRUE(finds("The Sims House Party"));
    EXPECT_TRUE(finds("The Sims H\xF4tel"));
    for (const char* other : {"The Sims", "The Sims House Party 2", "the sims house party", ""}) {
        EXPECT_FALSE(finds(other)) << other;
    }
    setName(plain, "_NET_WM_NAME", "UTF8_STRING", "The Sims \xE2\x80\x93 Livin\xE2\x80\x99 Large");
    EXPECT_TRUE(finds("The Sims \x96 Livin\x92 Large"));
    EXPECT_FALSE(finds("The Sims House Party")) << "the older name doesn't count then";
    display_.set(":987");
    EXPECT_FALSE(finds("The Sims H\xF4tel")) << "nobody answers there";
}

}  // namespace
