// A user of Qt's windows: real mouse and key events, sent to the windows as the window system sends them, so that a
// menu or a box that is open takes them as it would on a screen.
#include "tests/support/user.h"

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <deque>

#include "platform/native/client_area.h"
#include "platform/native/message_loop.h"
#include "platform/native/qt_text.h"
#include "platform/native/window.h"

namespace {

QWidget& widgetOf(HWND window) {
    return *findWindow(window)->widget();
}

void click(const QWidget& widget, QPoint place) {
    QWidget* const whole = widget.window();
    QTest::mouseClick(whole->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget.mapTo(whole, place));
}

QString withoutMarks(QString text) {
    return text.remove('&');
}

// What waits for a quiet moment of the message loop.
std::deque<std::function<void()>> actions;

void runFirstAction() {
    if (actions.empty()) return;
    const std::function<void()> action = std::move(actions.front());
    actions.pop_front();
    action();
}

// The boxes that are expected, by what their tests keep of them.
std::deque<std::weak_ptr<AnsweredBox::Seen>> expected;

// From left to right.
QList<QPushButton*> buttonsOf(const QWidget& box) {
    QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(), [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    return buttons;
}

void look(const QWidget& box, AnsweredBox::Seen& seen) {
    seen.shown = true;
    seen.title = programText(box.windowTitle());
    QStringList lines;
    for (const QLabel* const label : box.findChildren<QLabel*>())
        if (label->textFormat() == Qt::PlainText) lines.append(label->text());  // others may not show what they hold
    seen.text = programText(lines.join('\n'));
    for (const QPushButton* const button : buttonsOf(box))
        seen.buttons.push_back(programText(withoutMarks(button->text())));
    if (seen.meanwhile) seen.meanwhile();
}

void giveAnswer(QWidget& box, int answer) {
    const QString wanted = answer == IDOK ? "OK" : "Cancel";
    for (QPushButton* const button : buttonsOf(box))
        if (answer != answerByEscape && withoutMarks(button->text()) == wanted)
            return click(*button, button->rect().center());
    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
}

void answerWhatIsOpen() {
    std::erase_if(expected, [](const auto& seen) { return seen.expired(); });
    QWidget* const box = QApplication::activeModalWidget();
    if (expected.empty() || box == nullptr || innermostLoop() != Loop::modal) return;
    // Looked at first and answered the next time, so that the box's own loop runs between.
    const auto seen = expected.front().lock();
    if (!seen->shown) return look(*box, *seen);
    expected.pop_front();
    giveAnswer(*box, seen->answer);
}

void watchForQuiet() {
    static const QMetaObject::Connection watching =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, [] {
            if (innermostLoop() == Loop::messages && !actions.empty()) QTimer::singleShot(0, runFirstAction);
            if (innermostLoop() == Loop::modal && !expected.empty()) QTimer::singleShot(0, answerWhatIsOpen);
        });
}

}  // namespace

void clickButton(HWND button) {
    click(widgetOf(button), widgetOf(button).rect().center());
}

void pickEntry(HWND combo, int index) {
    auto& box = static_cast<QComboBox&>(widgetOf(combo));
    box.setFocus(Qt::MouseFocusReason);
    box.showPopup();
    QAbstractItemView& list = *box.view();
    const QModelIndex entry = box.model()->index(index, box.modelColumn());
    list.scrollTo(entry);
    click(*list.viewport(), list.visualRect(entry).center());
}

bool chooseMenu(HWND window, std::initializer_list<const char*> path) {
    QList<QAction*> items = widgetOf(window).findChild<QMenuBar*>()->actions();
    for (const char* const text : path) {
        const auto found = std::find_if(items.begin(), items.end(), [text](const QAction* any) {
            return withoutMarks(any->text()) == qtText(text) && any->isEnabled();
        });
        if (found == items.end()) return false;
        QAction* const item = *found;
        if (item->menu() != nullptr) items = item->menu()->actions();
        item->trigger();  // which does nothing for a menu
    }
    return true;
}

void closeWindow(HWND window) {
    widgetOf(window).windowHandle()->close();
}

void pressKey(HWND window, char character, Hold hold) {
    const Qt::KeyboardModifiers alt = hold == Hold::nothing ? Qt::NoModifier : Qt::AltModifier;
    const Qt::KeyboardModifiers shift = hold == Hold::altShift ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::sendKeyEvent(QTest::Click, widgetOf(window).windowHandle(), QTest::asciiToKey(character), character,
                        alt | shift);
}

void later(std::function<void()> action) {
    watchForQuiet();
    actions.push_back(std::move(action));
}

bool runMessages(int* exitCode, HWND window, HACCEL accelerators) {
    constexpr int quiet = 0x51E7;  // no code of a test's own
    later([] { PostQuitMessage(quiet); });
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (accelerators != nullptr && TranslateAcceleratorA(window, accelerators, &message) != 0) continue;
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
    auto seen = std::make_shared<AnsweredBox::Seen>(AnsweredBox::Seen{answer, std::move(meanwhile)});
    expected.emplace_back(seen);
    return AnsweredBox(std::move(seen));
}

bool isEnabled(HWND window) {
    return widgetOf(window).isEnabled();
}

std::string textOf(HWND window) {
    const QWidget& widget = widgetOf(window);
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) return programText(box->currentText());
    if (const auto* const button = qobject_cast<const QPushButton*>(&widget))
        return programText(withoutMarks(button->text()));
    return programText(widget.windowTitle());
}

std::string entryText(HWND combo, int index) {
    return programText(static_cast<QComboBox&>(widgetOf(combo)).itemText(index));
}

RECT placeOf(HWND control) {
    const QRect place = widgetOf(control).geometry();
    return {place.left(), place.top(), place.right() + 1, place.bottom() + 1};
}

bool waitCursorShows() {
    const QCursor* const cursor = QApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

std::string spokenName(HWND window) {
    return programText(QAccessible::queryAccessibleInterface(&widgetOf(window))->text(QAccessible::Name));
}

std::string spokenDescription(HWND window) {
    return programText(QAccessible::queryAccessibleInterface(&widgetOf(window))->text(QAccessible::Description));
}

Picture pictureOf(HWND window) {
    const QImage image = widgetOf(window).grab(findWindow(window)->clientArea()->geometry()).toImage();
    Picture picture{image.width(), image.height(), {}};
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            picture.pixels.push_back(image.pixel(x, y) & 0xFFFFFF);
    return picture;
}
