// An X server of a test's own, without a window manager.
#ifndef TESTS_SUPPORT_X_SERVER_H
#define TESTS_SUPPORT_X_SERVER_H

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

class XServer {
 public:
    // Starts Xvfb and connects to it; a failure fails the test.
    XServer() {
        for (int byte = std::fgetc(process_); byte > ' '; byte = std::fgetc(process_)) {
            display_.push_back(static_cast<char>(byte));
        }
        connection_ = xcb_connect(display_.c_str(), nullptr);
        EXPECT_EQ(xcb_connection_has_error(connection_), 0) << "Xvfb doesn't start";
    }
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer() {
        xcb_disconnect(connection_);
        pclose(process_);  // it ends with its last connection
    }

    const std::string& display() const { return display_; }  // ":1234"
    xcb_connection_t* connection() const { return connection_; }

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
    std::string display_ = ":";
    xcb_connection_t* connection_ = nullptr;
};

#endif
