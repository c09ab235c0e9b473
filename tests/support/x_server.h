// An X server of a test's own, without a window manager, which DISPLAY names for as long as it runs.
#ifndef TESTS_SUPPORT_X_SERVER_H
#define TESTS_SUPPORT_X_SERVER_H

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tests/support/scoped_variable.h"

class XServer {
 public:
    // Starts Xvfb and connects to it; a failure fails the test.
    XServer() {
        for (int byte = std::fgetc(process_); byte > ' '; byte = std::fgetc(process_)) {
            name_.push_back(static_cast<char>(byte));
        }
        display_.set(name_);
        connection_ = xcb_connect(nullptr, nullptr);
        EXPECT_EQ(xcb_connection_has_error(connection_), 0) << "Xvfb doesn't start";
    }
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer() {
        xcb_disconnect(connection_);
        pclose(process_);  // it ends with its last connection
    }

    const std::string& display() const { return name_; }  // ":1234"
    xcb_connection_t* connection() const { return connection_; }

    // The screen's window, which contains all others.
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root; }

    // Makes a window in `parent`, with a title and a class as programs give them.
    xcb_window_t addWindow(std::string_view title, std::string_view classes, xcb_window_t parent) const {
        const xcb_window_t window = xcb_generate_id(connection_);
        xcb_create_window(connection_, 0, window, parent, 0, 0, 8, 8, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, 0, 0, nullptr);
        set(window, "WM_CLASS", "STRING", classes);
        set(window, "WM_NAME", "STRING", title);
        return window;
    }

    void set(xcb_window_t window, std::string_view property, std::string_view type, std::string_view text) const {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, atom(property), atom(type), 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
        atom("done");
    }

    // The atom's number. When this returns, the server has carried out all earlier requests.
    unsigned atom(std::string_view name) const {
        const auto asked = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection_, asked, nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }

 private:
    // The server finds a free number by itself and prints it once it takes connections.
    std::FILE* const process_ = popen("exec Xvfb -displayfd 1 -screen 0 1024x768x24 -terminate 2>/dev/null", "r");
    std::string name_ = ":";
    ScopedVariable display_{"DISPLAY", ""};
    xcb_connection_t* connection_ = nullptr;
};

#endif
