// What a screen reader gets of the built program, over a bus of its own, while a player works by keyboard alone.
#include <atspi/atspi.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <memory>

#include "sample/installation.h"
#include "tests/support/build_directory.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"
#include "tests/support/x_server.h"

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

// Its role and name, its text if it has one, and what it is labelled by.
std::string described(AtspiAccessible* object) {
    std::string words = taken(atspi_accessible_get_role_name(object, nullptr)) + " '" + nameOf(object) + "'";
    if (AtspiText* const text = atspi_accessible_get_text_iface(object); text != nullptr) {
        words += " showing '" + taken(atspi_text_get_text(text, 0, -1, nullptr)) + "'";
        g_object_unref(text);
    }
    GArray* const relations = atspi_accessible_get_relation_set(object, nullptr);
    for (guint i = 0; relations != nullptr && i < relations->len; ++i) {
        AtspiRelation* const relation = g_array_index(relations, AtspiRelation*, i);
        if (atspi_relation_get_relation_type(relation) == ATSPI_RELATION_LABELLED_BY)
            words += " labelled by '" + nameOf(Object(atspi_relation_get_target(relation, 0)).get()) + "'";
        g_object_unref(relation);
    }
    if (relations != nullptr) g_array_free(relations, TRUE);
    return words;
}

// One line for each object in reading order, indented by its depth.
std::string treeOf(AtspiAccessible* object, const std::string& indent = "") {
    std::string lines = indent + described(object) + "\n";
    for (int i = 0; i < atspi_accessible_get_child_count(object, nullptr); ++i)
        lines += treeOf(childOf(object, i).get(), indent + " ");
    return lines;
}

class ScreenReader : public testing::Test {
 protected:
    ScreenReader() {
        writeInstallation(files_.path("prefix"));
        std::filesystem::copy(buildDirectory / "skinsets-original.cfg", files_.path());
        EXPECT_EQ(std::system(
                      inTool("env -u QT_QPA_PLATFORM -u DISPLAY", "tidewright-prepare --yes >/dev/null 2>&1").c_str()),
                  0);
        std::FILE* const bus = popen("dbus-daemon --session --fork --print-address=1 --print-pid=1", "r");
        char address[500] = "";
        EXPECT_EQ(std::fscanf(bus, "%499s %d", address, &busProcess_), 2);
        pclose(bus);
        session_.set(address);
        EXPECT_LE(atspi_init(), 1);
        listener_ = atspi_event_listener_new(hear, this, nullptr);
        atspi_event_listener_register(listener_, "object:state-changed:showing", nullptr);
        atspi_event_listener_register(listener_, "object:property-change:accessible-name", nullptr);
        program_ = popen(inTool("env -u QT_QPA_PLATFORM timeout -s KILL 120", "tidewright 2>/dev/null").c_str(), "r");
    }
    ~ScreenReader() override {
        press("alt+f x");  // exit without saving
        EXPECT_EQ(pclose(program_), 0);
        g_object_unref(listener_);
        kill(busProcess_, SIGTERM);
    }

    std::string inTool(const std::string& before, const std::string& program) const {
        return "cd '" + files_.path() + "' && exec " + before + " '" + buildDirectory.string() + "'/" + program;
    }

    void press(const std::string& keys) const {
        EXPECT_EQ(std::system(("timeout 60 xdotool key --delay 200 " + keys).c_str()), 0) << keys;
    }

    // Waits until the messages that came over the bus fulfil this; they are handled meanwhile.
    void waitUntil(const std::string& step, const std::function<bool()>& done) {
        for (int hundredths = 0; hundredths < 3000; ++hundredths) {
            while (g_main_context_iteration(nullptr, FALSE)) {
            }
            if (done()) return;
            usleep(10'000);
        }
        ADD_FAILURE() << "never happened: " << step << "\nheard so far:\n" << heard_;
    }

    // Presses the keys and waits for this to be spoken.
    void hears(const std::string& expected, const std::string& keys) {
        heard_.clear();
        press(keys);
        waitUntil(expected, [&] {
            return heard_.find("showing begins: notification '" + expected + "'\n") != std::string::npos;
        });
    }

    Object window() {
        Object found;
        waitUntil("the window opens", [&] {
            const Object desktop(atspi_get_desktop(0)), program = childOf(desktop.get(), 0);
            if (program != nullptr) found = childOf(program.get(), 0);
            return found != nullptr && nameOf(found.get()) == "Tidewright";
        });
        return found;
    }

    const TempDirectory files_;
    const XServer screen_;
    const ScopedVariable display_{"DISPLAY", screen_.display()}, always_{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"};
    const ScopedVariable runtime_{"XDG_RUNTIME_DIR", files_.path()}, prefix_{"WINEPREFIX", files_.path("prefix")};
    ScopedVariable session_{"DBUS_SESSION_BUS_ADDRESS", ""};
    int busProcess_ = 0;
    AtspiEventListener* listener_ = nullptr;
    std::FILE* program_ = nullptr;
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
    hears("Bramble\nName: Bramble Thistlewood\nStage: teenager", "B");
    hears("Name: Bramble Thistlewood\nStage: adult", "Tab space");
    EXPECT_NE(heard_.find("accessible-name: label 'Stage: adult'\n"), std::string::npos) << heard_;
    const Object scrolled = childOf(frame.get(), 1), client = childOf(childOf(scrolled.get(), 0).get(), 0);
    EXPECT_EQ(described(frame.get()), "frame 'Tidewright'");
    EXPECT_EQ(treeOf(client.get()),
              R"(filler ''
 label 'Pick a Neighborhood:'
 combo box 'Pick a Neighborhood:' showing 'Neighborhood 1' labelled by 'Pick a Neighborhood:'
  list ''
   list item 'Neighborhood 1'
   list item 'Neighborhood 2'
   list item 'Neighborhood 3'
 label 'Pick a Family:'
 combo box 'Pick a Family:' showing 'Thistlewood' labelled by 'Pick a Family:'
  list ''
   list item 'Thistlewood'
   list item 'Q&A'
   list item 'Crème'
   list item 'Pennyfarthing'
   list item 'Larkspur'
 label 'Pick a Sim:'
 combo box 'Pick a Sim:' showing 'Bramble' labelled by 'Pick a Sim:'
  list ''
   list item 'Hazel'
   list item 'Rowan'
   list item 'Bramble'
   list item 'Clover'
   list item 'Fern'
   list item 'Moss'
   list item 'Biscuit'
   list item 'Marmalade'
 label 'Name: Bramble Thistlewood'
 label 'Stage: adult'
 push button 'Child to Teen'
 push button 'Teen to Adult'
 push button 'Move Out'
)");
    hears("Q&A", "shift+Tab Down");
    EXPECT_EQ(treeOf(client.get()).find("Name:"), std::string::npos) << "the line is gone, and so is its text";
}

}  // namespace
