// What waits for a quiet moment, and the boxes that are expected: the part of the user that no window system changes.
#include "tests/support/user.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace {

std::deque<std::function<void()>> actions;

// The boxes that are expected, by what their tests keep of them.
std::deque<std::weak_ptr<Box>> expected;

void answerWhatIsOpen() {
    std::erase_if(expected, [](const auto& seen) { return seen.expired(); });
    if (expected.empty()) return;
    // Looked at first and answered the next time, so that the box's own loop runs between.
    const auto seen = expected.front().lock();
    if (!seen->shown) {
        lookAtBox(*seen);
        seen->shown = true;
        if (seen->meanwhile) seen->meanwhile();
        return;
    }
    expected.pop_front();
    answerBox(seen->answer);
}

}  // namespace

bool workWaits(bool boxIsOpen) {
    return boxIsOpen ? !expected.empty() : !actions.empty();
}

void workWhenQuiet(bool boxIsOpen) {
    if (boxIsOpen) return answerWhatIsOpen();
    if (actions.empty()) return;
    const std::function<void()> action = std::move(actions.front());
    actions.pop_front();
    action();
}

void later(std::function<void()> action) {
    watchForQuiet();
    actions.push_back(std::move(action));
}

bool runMessages(int* exitCode) {
    constexpr int quiet = 0x51E7;  // no code of a test's own
    later([] { PostQuitMessage(quiet); });
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    if (message.wParam == quiet) return false;
    actions.pop_back();
    if (exitCode != nullptr) *exitCode = static_cast<int>(message.wParam);
    return true;
}

AnsweredBox answerNextBox(int answer, std::function<void()> meanwhile) {
    watchForQuiet();
    auto box = std::make_shared<Box>(Box{answer, std::move(meanwhile)});
    expected.emplace_back(box);
    return box;
}
