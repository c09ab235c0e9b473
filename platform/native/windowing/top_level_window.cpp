#include "platform/native/windowing/top_level_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QWidget>

#include "platform/native/base/text1252.h"
#include "platform/native/events/message_queue.h"
#include "platform/native/resources/pictures.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/menu_bar.h"

namespace {

// The main window's client area, in units: the size for CW_USEDEFAULT if the screen has room for it, and the smallest.
constexpr QSize defaultClientSize(560, 430);
constexpr QSize smallestDefaultClientSize(480, 400);

constexpr int margin = 10;  // units, beside the last control

// The whole window, without the window manager's frame. Where it is too small for its controls, the client area keeps
// the size that these need, and scrolls.
class Frame : public QWidget {
 public:
    Frame(HWND window, Qt::WindowFlags flags) : QWidget(nullptr, flags), window_(window) {}

    void setParts(QMenuBar* menuBar, ClientArea* client) {
        menuBar_ = menuBar;
        client_ = client;
        scroll_ = new QScrollArea(this);
        scroll_->setFrameShape(QFrame::NoFrame);
        scroll_->setFocusPolicy(Qt::NoFocus);
        scroll_->setWidget(client);
        QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* control) {
            // No further than needed: the label beside the control must stay in sight.
            if (client_->isAncestorOf(control)) scroll_->ensureWidgetVisible(control, 0, 0);
        });
        // For lines without a control nearby.
        addScrollKey(Qt::CTRL | Qt::Key_Up, scroll_->verticalScrollBar(), QAbstractSlider::SliderPageStepSub);
        addScrollKey(Qt::CTRL | Qt::Key_Down, scroll_->verticalScrollBar(), QAbstractSlider::SliderPageStepAdd);
        addScrollKey(Qt::CTRL | Qt::Key_Left, scroll_->horizontalScrollBar(), QAbstractSlider::SliderPageStepSub);
        addScrollKey(Qt::CTRL | Qt::Key_Right, scroll_->horizontalScrollBar(), QAbstractSlider::SliderPageStepAdd);
    }
    void setSmallestClient(const QSize& size) { smallestClient_ = size; }

    int menuHeight(int width) const {
        if (menuBar_ == nullptr) return 0;
        menuBar_->ensurePolished();
        return menuBar_->heightForWidth(width);
    }

    // Called before the window is first shown, which is when Qt would do it: the client rectangle must be right
    // earlier.
    void layOut() {
        const int height = menuHeight(width());
        if (menuBar_ != nullptr) menuBar_->setGeometry(0, 0, width(), height);
        scroll_->setGeometry(0, height, width(), QWidget::height() - height);
        client_->resize(clientSize(scroll_->size()));
    }

 protected:
    void resizeEvent(QResizeEvent*) override { layOut(); }

    // The receiver of WM_CLOSE decides whether the window closes.
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        postMessage(window_, WM_CLOSE, 0, 0);  // behind a menu command that the user gave before
    }

 private:
    void addScrollKey(const QKeySequence& key, QScrollBar* bar, QAbstractSlider::SliderAction action) {
        QObject::connect(new QShortcut(key, this), &QShortcut::activated, bar, [=] { bar->triggerAction(action); });
    }

    // The width that a text needs isn't known; the height is that of the controls, once there are any.
    QSize neededSize() const {
        const QRect controls = client_->childrenRect();
        if (controls.isEmpty()) return smallestClient_;
        return {std::max(controls.right() + toPixels(margin), smallestClient_.width()),
                controls.bottom() + toPixels(margin)};
    }

    // At least the needed size; else all the room that the scroll bars leave.
    QSize clientSize(QSize room) const {
        const QSize needed = neededSize();
        const int bar = scroll_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        const bool scrollsDown = needed.height() > room.height();
        if (needed.width() > room.width() - (scrollsDown ? bar : 0)) room.rheight() -= bar;
        if (needed.height() > room.height()) room.rwidth() -= bar;
        return room.expandedTo(needed);
    }

    HWND window_;
    QMenuBar* menuBar_ = nullptr;
    ClientArea* client_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    QSize smallestClient_;
};

// A window without a caption is one that the program places itself, such as a splash window. Window managers leave such
// a window in place and undecorated, but may put a message box above it.
Qt::WindowFlags flagsOf(DWORD style) {
    if ((style & WS_CAPTION) != WS_CAPTION) {
        return Qt::SplashScreen | Qt::FramelessWindowHint;
    }
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if ((style & WS_SYSMENU) != 0) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if ((style & WS_MINIMIZEBOX) != 0) flags |= Qt::WindowMinimizeButtonHint;
    if ((style & WS_MAXIMIZEBOX) != 0) flags |= Qt::WindowMaximizeButtonHint;
    return flags;
}

QIcon iconOf(const WindowClass& windowClass) {
    QIcon icon;
    for (HICON const part : {windowClass.icon, windowClass.smallIcon}) {
        for (const QImage& picture : picturesOf(part)) {
            icon.addPixmap(QPixmap::fromImage(picture));
        }
    }
    return icon;
}

}  // namespace

TopLevelWindow::TopLevelWindow(const WindowClass& windowClass, LPCSTR title, DWORD style, const Placement& placement)
    : Window(style, nullptr), procedure_(windowClass.procedure) {
    auto* const frame = new Frame(handle(), flagsOf(style));
    frame_ = frame;
    QMenuBar* const menuBar = createMenuBar(windowClass.menuName, handle(), frame);  // read first by a screen reader
    client_ = new ClientArea(windowClass, frame);
    frame->setParts(menuBar, client_);
    frame->setWindowTitle(qtText(title));
    frame->setWindowIcon(iconOf(windowClass));
    frame->setEnabled((style & WS_DISABLED) == 0);
    place(placement);
    frame->layOut();
}

TopLevelWindow::~TopLevelWindow() {
    if (frame_ == nullptr) return;
    frame_->hide();
    frame_->deleteLater();
}

void TopLevelWindow::place(const Placement& placement) {
    auto& frame = static_cast<Frame&>(*frame_);
    if (placement.width == CW_USEDEFAULT) {
        const QSize room = frame.screen()->availableSize() * 9 / 10;
        const QSize whole = toPixels(defaultClientSize) + QSize(0, frame.menuHeight(room.width()));
        frame.setSmallestClient(toPixels(smallestDefaultClientSize));
        frame.resize(whole.boundedTo(room));
    } else {
        frame.resize(toPixels(QSize(placement.width, placement.height)));
    }
    if (placement.x != CW_USEDEFAULT) frame.move(toPixels(placement.x), toPixels(placement.y));
}

QWidget* TopLevelWindow::widget() const {
    return frame_;
}

QSize TopLevelWindow::clientSize() const {
    return client_->size();
}

LRESULT TopLevelWindow::receive(UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure_(handle(), message, wParam, lParam);
}
