// An X server of a test's own, without a window manager.
#ifndef TESTS_SUPPORT_X_SERVER_H
#define TESTS_SUPPORT_X_SERVER_H

#include <cstdio>
#include <string>
#include <string_view>

struct xcb_connection_t;

class XServer {
 public:
    // Starts Xvfb and connects to it; a failure fails the test.
    XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer();

    const std::string& display() const { return display_; }  // ":1234"
    xcb_connection_t* connection() const { return connection_; }

    // The atom's number. When it is here, the server has done what came before.
    unsigned atom(std::string_view name) const;

 private:
    std::FILE* process_ = nullptr;
    std::string display_;
    xcb_connection_t* connection_ = nullptr;
};

#endif
