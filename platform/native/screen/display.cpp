#include "platform/native/screen/display.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <cstring>

namespace {

// Only closeDisplay deletes it: when the X server goes away, Qt calls exit(), and must not be destroyed during that.
QApplication* application = nullptr;

std::string reasonForNone;

bool pluginLoads(const QByteArray& name) {
    const QString folder = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH",
                                                QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return QPluginLoader(folder + "/libq" + QString::fromLatin1(name) + ".so").load();
}

// Asks the X server, and stays connected until Qt is: some servers restart when their last client leaves and refuse
// connections meanwhile.
class XServer {
 public:
    XServer() = default;
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer() {
        if (connection_ != nullptr) xcb_disconnect(connection_);
    }

    bool answers() {
        if (connection_ == nullptr) connection_ = xcb_connect(nullptr, nullptr);
        return xcb_connection_has_error(connection_) == 0;
    }

 private:
    xcb_connection_t* connection_ = nullptr;
};

bool waylandAnswers() {
    QByteArray path = qgetenv("WAYLAND_DISPLAY");
    if (path.isEmpty()) path = "wayland-0";
    if (!path.startsWith('/')) path = qgetenv("XDG_RUNTIME_DIR") + '/' + path;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers =
        socket >= 0 && connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    if (socket >= 0) close(socket);
    return answers;
}

QByteArray whyNoServer(const char* variable, const char* server, bool answers) {
    if (answers) return {};
    const QByteArray name = qgetenv(variable);
    return name.isEmpty() ? QByteArray(variable) + " isn't set" : QByteArray(server) + " " + name + " doesn't answer";
}

// Empty if the platform can be used. `platform` may have parameters after a colon.
QByteArray whyUnusable(const QByteArray& platform, XServer& xServer) {
    const QByteArray name = platform.split(':').first();
    QByteArray plugin = name, reason;
    if (name == "xcb") {
        reason = whyNoServer("DISPLAY", "the X server", xServer.answers());
    } else if (name.startsWith("wayland")) {
        if (name == "wayland") plugin = "wayland-generic";
        reason = whyNoServer("WAYLAND_DISPLAY", "the Wayland server", waylandAnswers());
    } else if (name != "offscreen" && name != "minimal" && name != "vnc") {
        // Those need no server. The rest draw directly on hardware, which can't be tried in advance.
        return "the platform " + name + " can't be tried";
    }
    if (!reason.isEmpty() || pluginLoads(plugin)) return reason;
    return "Qt's plugin for " + name + " can't be loaded";
}

// Wayland is the last choice: there the program can't see whether the game runs. It counts only where the session names
// it, so that a program is without a screen if it is started without the names of screens.
QByteArrayList candidates() {
    QByteArrayList all;
    if (const QByteArray wanted = qgetenv("QT_QPA_PLATFORM"); !wanted.isEmpty()) all = wanted.split(';');
    all.append("xcb");
    if (!qgetenv("WAYLAND_DISPLAY").isEmpty()) all.append("wayland");
    return all;
}

// The name of the platform to use; empty if there is no screen.
QByteArray choosePlatform(XServer& xServer) {
    QByteArrayList reasons;
    for (const QByteArray& platform : candidates()) {
        const QByteArray reason = whyUnusable(platform, xServer);
        if (reason.isEmpty()) return platform;
        if (!reasons.contains(reason)) reasons.append(reason);
    }
    reasonForNone = reasons.join(", and ").toStdString();
    return {};
}

// Changes an environment variable while Qt starts. Afterwards it is as before, for programs that this one starts.
class VariableForStart {
 public:
    explicit VariableForStart(const char* name)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), old_(qgetenv(name)) {}
    VariableForStart(const VariableForStart&) = delete;
    VariableForStart& operator=(const VariableForStart&) = delete;
    ~VariableForStart() {
        if (wasSet_) {
            qputenv(name_, old_);
        } else {
            qunsetenv(name_);
        }
    }

    const QByteArray& old() const { return old_; }
    void set(const QByteArray& value) { qputenv(name_, value); }

 private:
    const char* name_;
    bool wasSet_;
    QByteArray old_;
};

// The session's message bus serves screen readers and the desktop's look. Without one, libdbus would start a bus that
// outlives the program, or wait for a service that can.
void forbidStartingABus(VariableForStart& address) {
    const QByteArray socket = qgetenv("XDG_RUNTIME_DIR") + "/bus";
    if (address.old().isEmpty() && !QFile::exists(QString::fromLocal8Bit(socket))) address.set("disabled:");
}

// This theme asks the desktop's portal and waits for the reply, for nothing that this program shows.
void avoidPortals(VariableForStart& theme) {
    if (theme.old() == "xdgdesktopportal" || theme.old() == "flatpak" || theme.old() == "snap") theme.set("generic");
}

}  // namespace

void openDisplay(char** arguments) {
    XServer xServer;
    const QByteArray platform = choosePlatform(xServer);
    if (platform.isEmpty()) return;
    VariableForStart platformName("QT_QPA_PLATFORM");
    VariableForStart busAddress("DBUS_SESSION_BUS_ADDRESS");
    VariableForStart theme("QT_QPA_PLATFORMTHEME");
    platformName.set(platform);
    forbidStartingABus(busAddress);
    avoidPortals(theme);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    static int argumentCount = 1;  // Qt would take its own options out of the program's arguments
    application = new QApplication(argumentCount, arguments);
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

bool hasDisplay() {
    return application != nullptr;
}

const std::string& whyNoDisplay() {
    return reasonForNone;
}

void closeDisplay() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete application;
    application = nullptr;
}
