// A user of Qt's windows: real mouse and key events, sent to the windows as the window system sends them, so that a
// menu or a box that is open takes them as it would on a screen.
#include "tests/support/user.h"

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/native/base/text1252.h"
#include "platform/native/events/event_pump.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"

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

bool boxIsOpen() {
    return innermostLoop() == Loop::modal && QApplication::activeModalWidget() != nullptr;
}

bool workCanBeDone() {
    return (boxIsOpen() || innermostLoop() == Loop::messages) && workWaits(boxIsOpen());
}

}  // namespace

void watchForQuiet() {
    static const QMetaObject::Connection watching =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, [] {
            if (!workCanBeDone()) return;
            QTimer::singleShot(0, [] {
                if (workCanBeDone()) workWhenQuiet(boxIsOpen());
            });
        });
}

void lookAtBox(Box& seen) {
    const QWidget& box = *QApplication::activeModalWidget();
    seen.title = programText(box.windowTitle());
    QStringList lines;
    for (const QLabel* const label : box.findChildren<QLabel*>())
        if (label->textFormat() == Qt::PlainText) lines.append(label->text());  // others may not show what they hold
    seen.text = programText(lines.join('\n'));
    for (const QPushButton* const button : box.findChildren<QPushButton*>())
        seen.buttons.push_back(programText(withoutMarks(button->text())));
}

void answerBox(int answer) {
    const QWidget& box = *QApplication::activeModalWidget();
    const QString wanted = answer == IDOK ? "OK" : "Cancel";
    for (QPushButton* const button : box.findChildren<QPushButton*>())
        if (answer != answerByEscape && withoutMarks(button->text()) == wanted)
            return click(*button, button->rect().center());
    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
}

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

void chooseColors(std::uint32_t window, std::uint32_t letters) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, window);
    palette.setColor(QPalette::Text, letters);
    QApplication::setPalette(palette);
}

void pressKey(HWND window, char character, Hold hold) {
    const Qt::KeyboardModifiers held = hold == Hold::nothing ? Qt::NoModifier : Qt::AltModifier | Qt::ShiftModifier;
    QTest::sendKeyEvent(QTest::Click, widgetOf(window).windowHandle(), QTest::asciiToKey(character), character, held);
}

bool isEnabled(HWND window) {
    return widgetOf(window).isEnabled();
}

std::string textOf(HWND window) {
    const QWidget& widget = widgetOf(window);
    if (!widget.isVisible()) return "";
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

Picture pictureOf(HWND window) {
    QWidget& whole = widgetOf(window);
    const QWidget& area = *findWindow(window)->clientArea();
    const QImage image = whole.grab(QRect(area.mapTo(&whole, QPoint(0, 0)), area.size())).toImage();
    Picture picture{image.width(), image.height(), {}};
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            picture.pixels.push_back(image.pixel(x, y) & 0xFFFFFF);
    return picture;
}
