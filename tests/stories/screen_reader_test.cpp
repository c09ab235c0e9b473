// What a screen reader gets of the built program, over a bus of its own, while a player works by keyboard alone.
#include <atspi/atspi.h>

#include <csignal>
#include <memory>

#include "tests/stories/stories.h"
#include "tests/support/scoped_variable.h"

namespace {

using Object = std::unique_ptr<AtspiAccessible, decltype([](AtspiAccessible* object) { g_object_unref(object); })>;

std::string taken(gchar* text) {
    const std::string copy = text == nullptr ? "" : text;
    g_free(text);
    return copy;
}

Object childOf(AtspiAccessible* object, int index) {
    return Object(atspi_accessible_get_child_at_index(object, index, nullptr));
}

std::string nameOf(AtspiAccessible* object) {
    return taken(atspi_accessible_get_name(object, nullptr));
}

std::string roleOf(AtspiAccessible* object) {
    return taken(atspi_accessible_get_role_name(object, nullptr));
}

// Its role and name, and its text if it has one.
std::string described(AtspiAccessible* object) {
    std::string words = roleOf(object) + " '" + nameOf(object) + "'";
    if (AtspiText* const text = atspi_accessible_get_text_iface(object); text != nullptr) {
        words += " showing '" + taken(atspi_text_get_text(text, 0, -1, nullptr)) + "'";
        g_object_unref(text);
    }
    return words;
}

// One line for each object in reading order, indented by its depth; the names of a list's entries are in its line.
std::string treeOf(AtspiAccessible* object, const std::string& indent = "\n") {
    std::string lines = indent + described(object);
    for (int i = 0; i < atspi_accessible_get_child_count(object, nullptr); ++i) {
        const Object child = childOf(object, i);
        lines += roleOf(object) == "list" ? " " + nameOf(child.get()) : treeOf(child.get(), indent + " ");
    }
    return lines;
}

class ScreenReader : public Stories {
 protected:
    ScreenReader() {
        prepareGame();
        std::FILE* const bus = popen("dbus-daemon --session --fork --print-address=1 --print-pid=1", "r");
        char address[500] = "";
        EXPECT_EQ(std::fscanf(bus, "%499s %d", address, &busProcess_), 2);
        pclose(bus);
        session_.set(address);
        EXPECT_LE(atspi_init(), 1);
        listener_ = atspi_event_listener_new(hear, this, nullptr);
        atspi_event_listener_register(listener_, "object:state-changed:showing", nullptr);
        atspi_event_listener_register(listener_, "object:property-change:accessible-name", nullptr);
        launch("tidewright", false);
    }
    ~ScreenReader() override {
        act("key --delay 200 alt+f x");  // exit without saving
        EXPECT_EQ(waitForExit(), 0);
        g_object_unref(listener_);
        kill(busProcess_, SIGTERM);
    }

    // Handles what has come over the bus.
    static void takeMessages() {
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    }

    // Presses the keys and waits for this to be spoken.
    void hears(const std::string& expected, const std::string& keys) {
        heard_.clear();
        act("key --delay 200 " + keys);
        waitUntil(expected + " is spoken", [&] {
            takeMessages();
            return heard_.find("showing begins: notification '" + expected + "'\n") != std::string::npos;
        });
    }

    Object window() {
        Object found;
        waitUntil("the window opens", [&] {
            takeMessages();
            const Object desktop(atspi_get_desktop(0)), program = childOf(desktop.get(), 0);
            if (program != nullptr) found = childOf(program.get(), 0);
            return found != nullptr && nameOf(found.get()) == "Tidewright";
        });
        return found;
    }

    const ScopedVariable display_{"DISPLAY", screen_.display()}, always_{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"};
    const ScopedVariable runtime_{"XDG_RUNTIME_DIR", files_.path()};
    ScopedVariable session_{"DBUS_SESSION_BUS_ADDRESS", ""};
    int busProcess_ = 0;
    AtspiEventListener* listener_ = nullptr;
    std::string heard_;

 private:
    static void hear(AtspiEvent* event, void* test) {
        const std::string change = std::string(event->type) + (event->detail1 == 1 ? " begins: " : ": ");
        if (event->source != nullptr)
            static_cast<ScreenReader*>(test)->heard_ += change + described(event->source) + "\n";
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    }
};

TEST_F(ScreenReader, ReadsTheWindowAndHearsEachPickAndEachNewStage) {
    const Object frame = window();
    hears("Neighborhood 1", "Down");
    hears("Cr\xC3\xA8me", "Tab C");
    hears("Thistlewood", "Home");
    hears("Hazel\nName: Hazel Thistlewood\nStage: adult", "Tab Down");
    const Object scrolled = childOf(frame.get(), 1), client = childOf(childOf(scrolled.get(), 0).get(), 0);
    EXPECT_EQ(described(frame.get()), "frame 'Tidewright'");
    EXPECT_EQ(treeOf(client.get()),
              R"(
filler ''
 label 'Pick a Neighborhood:'
 combo box 'Pick a Neighborhood:' showing 'Neighborhood 1'
  list '' Neighborhood 1 Neighborhood 2 Neighborhood 3
 label 'Pick a Family:'
 combo box 'Pick a Family:' showing 'Thistlewood'
  list '' Thistlewood Q&A Crème Pennyfarthing Larkspur
 label 'Pick a Sim:'
 combo box 'Pick a Sim:' showing 'Hazel'
  list '' Hazel Rowan Bramble Clover Fern Moss Biscuit Marmalade
 label 'Name: Hazel Thistlewood'
 label 'Stage: adult'
 push button 'Child to Teen'
 push button 'Teen to Adult'
 push button 'Move Out')");
    hears("Bramble\nName: Bramble Thistlewood\nStage: teenager", "B");
    hears("Name: Bramble Thistlewood\nStage: adult", "alt+Down Return Tab space");  // the same pick says nothing
    EXPECT_EQ(heard_.find("begins: notification"), heard_.rfind("begins: notification")) << heard_;
    EXPECT_EQ(heard_.find("accessible-name:"), heard_.find("accessible-name: label 'Stage: adult'\n")) << heard_;
    hears("Q&A", "shift+Tab Down");
    EXPECT_EQ(treeOf(client.get()).find("Name:"), std::string::npos) << "the line is gone, and so is its text";
}

}  // namespace
