#include "platform/native/xserver/title_search.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <future>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/letter_case.h"
#include "platform/native/base/text1252.h"
#include "platform/titled_windows.h"

namespace {

// The longest wait for the server, which may hang or be behind a network that does.
constexpr std::chrono::seconds patience{1};
// Window managers put a program's window into a frame, some into two. Controls are deeper.
constexpr int searchDepth = 4;
// In units of 4 bytes, as in the protocol.
constexpr std::uint32_t longestTitle = 1024 / 4;
constexpr std::uint32_t longestWindowList = 65536;

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using ReplyPtr = std::unique_ptr<Reply, Free>;

// One search. All requests of a kind are sent before the first reply is awaited, so that hundreds of windows cost one
// round trip for each level instead of one for each window.
class TitleSearch {
 public:
    TitleSearch(xcb_connection_t* connection, std::string title)
        : connection_(connection), title_(std::move(title)), utf8Title_(utf8From1252(title_)) {
        const auto clientList = askAtom("_NET_CLIENT_LIST");
        const auto netName = askAtom("_NET_WM_NAME");
        const auto utf8 = askAtom("UTF8_STRING");
        clientList_ = answeredAtom(clientList);
        netName_ = answeredAtom(netName);
        utf8_ = answeredAtom(utf8);
    }

    // The kinds of the windows of that title: of all, or of the first ones that are found.
    std::vector<std::string> run(bool all) {
        std::vector<xcb_window_t> level;
        for (auto at = xcb_setup_roots_iterator(xcb_get_setup(connection_)); at.rem > 0; xcb_screen_next(&at)) {
            level.push_back(at.data->root);
        }
        std::vector<std::string> kinds = kindsOfTitled(clientsOf(level));
        for (int depth = 0; depth < searchDepth && !level.empty() && (all || kinds.empty()); ++depth) {
            level = childrenOf(level);
            std::ranges::move(kindsOfTitled(level), std::back_inserter(kinds));
        }
        return kinds;
    }

 private:
    xcb_intern_atom_cookie_t askAtom(std::string_view name) {
        return xcb_intern_atom(connection_, 1, static_cast<std::uint16_t>(name.size()), name.data());
    }

    xcb_atom_t answeredAtom(xcb_intern_atom_cookie_t asked) {
        const ReplyPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, asked, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    xcb_get_property_cookie_t askProperty(xcb_window_t window, xcb_atom_t property, std::uint32_t longest) {
        return xcb_get_property(connection_, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    }

    ReplyPtr<xcb_get_property_reply_t> answeredProperty(xcb_get_property_cookie_t asked) {
        return ReplyPtr<xcb_get_property_reply_t>(xcb_get_property_reply(connection_, asked, nullptr));
    }

    // The windows that the window manager lists. Empty without a window manager.
    std::vector<xcb_window_t> clientsOf(const std::vector<xcb_window_t>& roots) {
        std::vector<xcb_window_t> clients;
        for (const xcb_window_t root : roots) {
            if (clientList_ == XCB_ATOM_NONE) break;
            const auto list = answeredProperty(askProperty(root, clientList_, longestWindowList));
            if (!list || list->type != XCB_ATOM_WINDOW || list->format != 32) continue;
            const auto* first = static_cast<const xcb_window_t*>(xcb_get_property_value(list.get()));
            clients.insert(clients.end(), first, first + xcb_get_property_value_length(list.get()) / 4);
        }
        return clients;
    }

    std::vector<xcb_window_t> childrenOf(const std::vector<xcb_window_t>& parents) {
        std::vector<xcb_query_tree_cookie_t> asked;
        asked.reserve(parents.size());
        for (const xcb_window_t parent : parents) {
            asked.push_back(xcb_query_tree(connection_, parent));
        }
        std::vector<xcb_window_t> children;
        for (const xcb_query_tree_cookie_t& cookie : asked) {
            // No reply: the window is gone by now.
            const ReplyPtr<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(connection_, cookie, nullptr));
            if (!tree) continue;
            const xcb_window_t* first = xcb_query_tree_children(tree.get());
            children.insert(children.end(), first, first + xcb_query_tree_children_length(tree.get()));
        }
        return children;
    }

    std::vector<std::string> kindsOfTitled(const std::vector<xcb_window_t>& windows) {
        struct Names {
            xcb_get_property_cookie_t net, old;
        };
        std::vector<Names> asked;
        asked.reserve(windows.size());
        for (const xcb_window_t window : windows) {
            asked.push_back(
                {askProperty(window, netName_, longestTitle), askProperty(window, XCB_ATOM_WM_NAME, longestTitle)});
        }
        std::vector<xcb_window_t> titled;
        // Takes every reply, so that none is left over.
        for (std::size_t i = 0; i < asked.size(); ++i) {
            const auto net = answeredProperty(asked[i].net);
            const auto old = answeredProperty(asked[i].old);
            const bool hasNet = net && xcb_get_property_value_length(net.get()) > 0;
            if (isTitle(hasNet ? net.get() : old.get())) titled.push_back(windows[i]);
        }
        std::vector<std::string> kinds;
        std::ranges::transform(titled, std::back_inserter(kinds), [&](xcb_window_t window) { return kindOf(window); });
        return kinds;
    }

    // WM_CLASS is two texts, each with a terminator: the program's instance and its class.
    std::string kindOf(xcb_window_t window) {
        const auto value = answeredProperty(askProperty(window, XCB_ATOM_WM_CLASS, longestTitle));
        if (!value || value->format != 8) return "";
        const auto size = static_cast<std::size_t>(xcb_get_property_value_length(value.get()));
        std::string_view texts(static_cast<const char*>(xcb_get_property_value(value.get())), size);
        const std::string_view instance = texts.substr(0, texts.find('\0'));
        texts.remove_prefix(std::min(instance.size() + 1, texts.size()));
        return lowered(texts.empty() ? instance : texts.substr(0, texts.find('\0')));
    }

    // Names of the type UTF8_STRING are UTF-8, all others Latin-1, which Windows-1252 covers.
    bool isTitle(const xcb_get_property_reply_t* name) const {
        if (name == nullptr || name->format != 8 || name->bytes_after != 0) return false;
        const auto size = static_cast<std::size_t>(xcb_get_property_value_length(name));
        std::string_view text(static_cast<const char*>(xcb_get_property_value(name)), size);
        while (!text.empty() && text.back() == '\0') {
            text.remove_suffix(1);
        }
        return text == (name->type == utf8_ ? utf8Title_ : title_);
    }

    xcb_connection_t* connection_;
    std::string title_;
    std::string utf8Title_;
    xcb_atom_t clientList_ = XCB_ATOM_NONE;
    xcb_atom_t netName_ = XCB_ATOM_NONE;
    xcb_atom_t utf8_ = XCB_ATOM_NONE;
};

std::vector<std::string> kindsOnServer(const std::string& title, bool all) {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    std::vector<std::string> kinds;
    if (xcb_connection_has_error(connection) == 0) kinds = TitleSearch(connection, title).run(all);
    xcb_disconnect(connection);
    return kinds;
}

// Runs on its own thread, because the protocol's library has no time limits. A thread that takes too long is left to
// itself; it owns all that it uses.
std::vector<std::string> kindsWithinPatience(const char* title, bool all) {
    const char* display = std::getenv("DISPLAY");
    if (display == nullptr || *display == '\0') return {};
    std::packaged_task<std::vector<std::string>()> search(
        [text = std::string(title), all] { return kindsOnServer(text, all); });
    auto found = search.get_future();
    std::thread(std::move(search)).detach();
    return found.wait_for(patience) == std::future_status::ready ? found.get() : std::vector<std::string>{};
}

}  // namespace

bool isTitleOnServer(const char* title) {
    return !kindsWithinPatience(title, false).empty();
}

std::vector<std::string> kindsOfWindowsTitled(const char* title) {
    std::vector<std::string> kinds = kindsWithinPatience(title, true);
    // Some window managers give the frame of a window its title, and no class.
    if (std::ranges::any_of(kinds, [](const std::string& kind) { return !kind.empty(); })) {
        std::erase(kinds, "");
    }
    return kinds;
}
