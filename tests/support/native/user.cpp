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
#include <QTextDocumentFragment>
#include <QTimer>
#include <QWheelEvent>
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

QComboBox& comboOf(HWND window) {
    return static_cast<QComboBox&>(widgetOf(window));
}

void click(const QWidget& widget, QPoint place) {
    QWidget* const whole = widget.window();
    QTest::mouseClick(whole->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget.mapTo(whole, place));
}

QString withoutMarks(QString text) {
    return text.remove('&');
}

// A menu bar and a menu have this much in common.
template <typename Menu>
QAction* openItem(Menu& menu, const char* text) {
    for (QAction* const action : menu.actions()) {
        if (withoutMarks(action->text()) != qtText(text) || !action->isEnabled()) continue;
        click(menu, menu.actionGeometry(action).center());
        return action;
    }
    return nullptr;
}

void closePopups() {
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

// What waits for a quiet moment of the message loop.
std::deque<std::function<void()>> actions;

void runFirstAction() {
    if (actions.empty()) return;
    const std::function<void()> action = std::move(actions.front());
    actions.pop_front();
    action();
}

void watchForQuiet() {
    static const QMetaObject::Connection watching =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, [] {
            if (innermostLoop() == Loop::messages && !actions.empty()) QTimer::singleShot(0, runFirstAction);
        });
}

struct Answer {
    int answer;
    std::function<void()> meanwhile;
    std::weak_ptr<AnsweredBox::Seen> seen;
};

std::deque<Answer> answers;

std::vector<QPushButton*> buttonsOf(const QWidget& box) {
    const QList<QPushButton*> found = box.findChildren<QPushButton*>();
    std::vector<QPushButton*> buttons(found.begin(), found.end());
    std::sort(buttons.begin(), buttons.end(), [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    return buttons;
}

std::string linesOf(const QWidget& box) {
    QStringList lines;
    for (const QLabel* const label : box.findChildren<QLabel*>())
        if (label->pixmap().isNull() && !label->text().isEmpty())
            lines.append(label->textFormat() == Qt::PlainText
                             ? label->text()
                             : QTextDocumentFragment::fromHtml(label->text()).toPlainText());
    return programText(lines.join('\n'));
}

void look(const QWidget& box, AnsweredBox::Seen& seen) {
    seen.shown = true;
    seen.title = programText(box.windowTitle());
    seen.text = linesOf(box);
    for (const QPushButton* const button : buttonsOf(box))
        seen.buttons.push_back(programText(withoutMarks(button->text())));
}

void giveAnswer(QWidget& box, int answer) {
    if (answer == answerByEscape) {
        QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
        return;
    }
    const std::vector<QPushButton*> buttons = buttonsOf(box);
    const QString wanted = answer == IDOK ? "OK" : "Cancel";
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&wanted](const QPushButton* button) {
        return withoutMarks(button->text()) == wanted;
    });
    QPushButton* const button = found == buttons.end() ? buttons.back() : *found;
    click(*button, button->rect().center());
}

void answerWhatIsOpen() {
    std::erase_if(answers, [](const Answer& answer) { return answer.seen.expired(); });
    QWidget* const box = QApplication::activeModalWidget();
    if (answers.empty() || box == nullptr || innermostLoop() != Loop::modal) return;
    // Looked at first and answered the next time, so that the box's own loop runs between.
    if (const auto seen = answers.front().seen.lock(); !seen->shown) {
        look(*box, *seen);
        if (answers.front().meanwhile) answers.front().meanwhile();
        return;
    }
    const int answer = answers.front().answer;
    answers.pop_front();
    giveAnswer(*box, answer);
}

QAccessibleInterface& spokenOf(HWND window) {
    return *QAccessible::queryAccessibleInterface(&widgetOf(window));
}

}  // namespace

void clickButton(HWND button) {
    click(widgetOf(button), widgetOf(button).rect().center());
}

void pickEntry(HWND combo, int index) {
    QComboBox& box = comboOf(combo);
    box.setFocus(Qt::MouseFocusReason);
    box.showPopup();
    QAbstractItemView& list = *box.view();
    const QModelIndex entry = box.model()->index(index, box.modelColumn());
    list.scrollTo(entry);
    click(*list.viewport(), list.visualRect(entry).center());
}

int openedListHeight(HWND combo) {
    comboOf(combo).showPopup();
    const int height = QApplication::activePopupWidget()->height();
    closePopups();
    return height;
}

void turnWheel(HWND control, bool down) {
    QWidget& widget = widgetOf(control);
    const QPoint middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, down ? -120 : 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

bool chooseMenu(HWND window, std::initializer_list<const char*> path) {
    auto* const bar = widgetOf(window).findChild<QMenuBar*>();
    const QMenu* menu = nullptr;
    for (const char* const text : path) {
        const QAction* const action = menu == nullptr ? openItem(*bar, text) : openItem(*menu, text);
        if (action == nullptr) {
            closePopups();
            return false;
        }
        menu = action->menu();
    }
    return true;
}

void closeWindow(HWND window) {
    widgetOf(window).windowHandle()->close();
}

void resizeWindow(HWND window, int width, int height) {
    QWidget& widget = widgetOf(window);
    const QSize frame = widget.size() - findWindow(window)->clientArea()->size();
    widget.resize(QSize(width, height) + frame);
    QCoreApplication::processEvents();
}

void pressKey(HWND window, char character, Hold hold) {
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    if (hold != Hold::nothing) modifiers |= Qt::AltModifier;
    if (hold == Hold::altShift) modifiers |= Qt::ShiftModifier;
    QTest::sendKeyEvent(QTest::Click, widgetOf(window).windowHandle(), QTest::asciiToKey(character), character,
                        modifiers);
}

void later(std::function<void()> action) {
    watchForQuiet();
    actions.push_back(std::move(action));
}

bool runMessages(int* exitCode, HWND window, HACCEL accelerators) {
    bool quiet = false;
    later([&quiet] {
        quiet = true;
        PostQuitMessage(0);
    });
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (accelerators != nullptr && TranslateAcceleratorA(window, accelerators, &message) != 0) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    if (!quiet) actions.pop_back();
    if (!quiet && exitCode != nullptr) *exitCode = static_cast<int>(message.wParam);
    return !quiet;
}

AnsweredBox answerNextBox(int answer, std::function<void()> meanwhile) {
    static QTimer* const watch = [] {
        auto* const timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, answerWhatIsOpen);
        timer->start(1);
        return timer;
    }();
    static_cast<void>(watch);
    auto seen = std::make_shared<AnsweredBox::Seen>();
    answers.push_back({answer, std::move(meanwhile), seen});
    return AnsweredBox(std::move(seen));
}

bool isEnabled(HWND window) {
    return widgetOf(window).isEnabled();
}

bool isVisible(HWND window) {
    return widgetOf(window).isVisible();
}

std::string textOf(HWND window) {
    const QWidget& widget = widgetOf(window);
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) return programText(box->currentText());
    if (const auto* const button = qobject_cast<const QPushButton*>(&widget))
        return programText(withoutMarks(button->text()));
    return programText(widget.windowTitle());
}

std::string entryText(HWND combo, int index) {
    return programText(comboOf(combo).itemText(index));
}

RECT placeOf(HWND control) {
    const QRect place = widgetOf(control).geometry();
    return {place.left(), place.top(), place.right() + 1, place.bottom() + 1};
}

bool waitCursorShows() {
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

std::string spokenName(HWND window) {
    return programText(spokenOf(window).text(QAccessible::Name));
}

std::string spokenDescription(HWND window) {
    return programText(spokenOf(window).text(QAccessible::Description));
}

Picture pictureOf(HWND window) {
    QWidget& widget = widgetOf(window);
    const ClientArea* const area = findWindow(window)->clientArea();
    const QImage image =
        widget.grab(area == nullptr ? widget.rect() : area->geometry()).toImage().convertToFormat(QImage::Format_RGB32);
    Picture picture{image.width(), image.height(), {}};
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            picture.pixels.push_back(image.pixel(x, y) & 0xFFFFFF);
    return picture;
}
