#include "tests/support/x_server.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdlib>

// The number is this process's own: servers that look for a free one by themselves may take each other's.
XServer::XServer() : display_(":" + std::to_string(1000 + getpid() % 30'000)) {
    process_ = popen(("exec Xvfb " + display_ + " -screen 0 1024x768x24 -terminate 2>/dev/null").c_str(), "r");
    for (int tenths = 0; tenths < 200; ++tenths) {
        connection_ = xcb_connect(display_.c_str(), nullptr);
        if (xcb_connection_has_error(connection_) == 0) return;
        xcb_disconnect(connection_);
        usleep(100'000);
    }
    connection_ = nullptr;
    ADD_FAILURE() << "Xvfb doesn't start";
}

XServer::~XServer() {
    if (connection_ != nullptr) xcb_disconnect(connection_);
    pclose(process_);  // it ends with its last connection
}

unsigned XServer::atom(std::string_view name) const {
    const auto asked = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection_, asked, nullptr);
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
}
