// What only the layer's own windows do, and what it does without a screen.
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestspontaneevent.h>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <cstdlib>
#include <set>

#include "platform/native/events/message_queue.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/window.h"
#include "tests/platform/window_test.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/x_server.h"

namespace {

using namespace std::string_view_literals;

using WindowingNativeTest = WindowTest;

// Of a dialog that any button ends.
INT_PTR endByCommand(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    return message == WM_COMMAND ? EndDialog(dialog, LOWORD(wParam)) : 0;
}

TEST_F(WindowingNativeTest, AClickThatAClosedListGetsReachesTheButtonUnlessADialogIsOpen) {
    auto& box = static_cast<QComboBox&>(*findWindow(addCombo({"a"}))->widget());
    HWND const button = addButton(2010);
    box.showPopup();
    QWindow* const list = QApplication::activePopupWidget()->windowHandle();
    box.hidePopup();
    const auto click = [&] {
        const QWidget& widget = *findWindow(button)->widget();
        const QPointF place = widget.mapToGlobal(widget.rect().center());
        for (const auto& [type, buttons] :
             {std::pair{QEvent::MouseButtonPress, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton}}) {
            QMouseEvent event(type, list->mapFromGlobal(place), place, Qt::LeftButton, buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(list, &event);
        }
    };
    takeLog();
    click();
    EXPECT_EQ(takeLog(), Log{"command 2010 0"});
    const AnsweredBox about = answerNextBox(answerByEscape, [&] {
        click();
        EXPECT_EQ(QApplication::activeModalWidget()->font().pointSize(), toPixels(8));
        QTest::keyClick(QApplication::activeModalWidget()->windowHandle(), Qt::Key_Return);
    });
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(IDD_ABOUT), window_, endByCommand, 0), IDOK);
    runMessages();
    EXPECT_EQ(takeLog(), Log{});
    EXPECT_EQ(QApplication::activeWindow(), findWindow(window_)->widget()) << "the dialog gives the focus back";
}

TEST_F(WindowingNativeTest, AKeyThatIsOnlyHeldStaysWithQtWhichMayHaveOpenedAMenu) {
    auto& box = static_cast<QComboBox&>(*findWindow(addCombo({"a"}))->widget());
    const struct {
        Qt::Key key;
        bool listIsOpen, comes;
    } rows[] = {
        {Qt::Key_A, false, true}, {Qt::Key_Shift, false, false}, {Qt::Key_Alt, false, false}, {Qt::Key_A, true, false}};
    for (const auto& row : rows)
        later([this, &box, row] {
            if (row.listIsOpen) box.showPopup();
            QWindow* const window = findWindow(window_)->widget()->windowHandle();
            QTest::sendKeyEvent(QTest::Press, window, row.key, "", Qt::NoModifier);
            MSG message{};
            EXPECT_EQ(takeMessage(message), row.comes) << row.key;
        });
    runMessages();
}

TEST_F(WindowingNativeTest, ClicksThatCameDuringWorkAreLookedAtAtOnce) {
    runMessages();
    UpdateWindow(window_);
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.start(1000);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(alarm.isActive()) << "the next wait is none";
}

TEST_F(WindowingNativeTest, TheWheelPicksOnlyWhereTheFocusIs) {
    HWND const combo = addCombo({"a", "b", "c"}), button = addButton(2010);
    QWidget& box = *findWindow(combo)->widget();
    const auto turnWheel = [&box] {
        QWheelEvent turn(box.rect().center(), box.mapToGlobal(box.rect().center()), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn);  // as from a mouse, which gives some widgets the focus
        qApp->notify(&box, &turn);
    };
    takeLog();
    SetFocus(button);
    turnWheel();
    EXPECT_EQ(GetFocus(), button);
    EXPECT_EQ(takeLog(), Log{});
    SetFocus(combo);
    turnWheel();
    EXPECT_EQ(takeLog(), Log{"command 7 1"});
}

TEST_F(WindowingNativeTest, AnOpenListShowsLongAndTallEntriesAndFindsWhatIsTyped) {
    qApp->setStyleSheet("QComboBox { padding: 20px }");
    EXPECT_EQ(findWindow(addCombo({}))->widget()->height(), toPixels(28)) << "whatever the desktop's style wants";
    qApp->setStyleSheet("");
    HWND const combo = addCombo({"\xC5", "Zo\xEB"});
    auto& box = static_cast<QComboBox&>(*findWindow(combo)->widget());
    for (int family = 1; family <= 100; ++family)
        box.addItem("Household " + QString::number(family));
    QAbstractItemView& list = *box.view();
    for (const auto& [letter, wide] : {std::pair('i', false), {'W', true}}) {
        const QString name = QString::fromUtf8("\u00C9") + QString(98, letter);
        box.setItemText(60, name);
        box.showPopup();
        const QRect screen = box.screen()->availableGeometry(), place = list.window()->geometry();
        EXPECT_TRUE(screen.contains(place));
        const int end = box.mapToGlobal(QPoint(0, toPixels(200))).y();
        EXPECT_TRUE(place.bottom() <= end && place.bottom() > end - list.sizeHintForRow(0)) << place.bottom();
        EXPECT_TRUE(list.verticalScrollBar()->isVisible());
        EXPECT_EQ(place.width() == screen.width(), wide);
        EXPECT_TRUE(wide || list.viewport()->width() > list.fontMetrics().horizontalAdvance(name)) << "it isn't cut";
        list.scrollToTop();
        const QImage row = list.viewport()->grab(list.visualRect(box.model()->index(0, 0))).toImage();
        std::set<int> inked;
        for (int y = 0; y < row.height(); ++y)
            for (int x = 2; x < 20; ++x)
                if (qGray(row.pixel(x, y)) < 128) inked.insert(y);
        EXPECT_EQ(static_cast<int>(inked.size()), list.fontMetrics().tightBoundingRect(box.itemText(0)).height());
        takeLog();
        for (const auto& [key, text] : {std::pair(Qt::Key_Eacute, name.left(1)), {Qt::Key_Return, "\r"}})
            QTest::sendKeyEvent(QTest::Click, list.window()->windowHandle(), key, text, Qt::NoModifier);
        EXPECT_EQ(box.currentIndex(), 60);
        EXPECT_EQ(takeLog(), Log{"command 7 1"});
    }
}

TEST_F(WindowingNativeTest, AWindowGrowsWithTheLettersAndScrollsWhereItHasNoRoom) {
    const QFont usual = QApplication::font();
    for (const QFont& font : {QFont("DejaVu Sans", 9), QFont("DejaVu Sans", 18), QFont("DejaVu Sans Mono", 24)}) {
        SCOPED_TRACE(font.pointSize());
        DestroyWindow(window_);
        QApplication::setFont(font);
        updateScale();
        window_ = CreateWindowA("WindowTest", "A larger one", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
        QWidget& combo = *findWindow(addCombo({"a"}))->widget();
        auto& button = static_cast<QPushButton&>(*findWindow(addButton(1))->widget());
        button.setText("Teen to Adult");
        EXPECT_GE(button.width(), button.sizeHint().width());
        EXPECT_GE(combo.height(), combo.sizeHint().height());
        EXPECT_LT(combo.geometry().bottom(), button.width() * 40 / 100) << "the next one begins 40 units from the top";
        paint_ = [](HDC dc) {
            RECT label{10, 10, 160, 30};
            EXPECT_LE(DrawTextA(dc, "Pick a Neighborhood: ", -1, &label, 0), 20);
        };
        ShowWindow(window_, SW_SHOW);
        UpdateWindow(window_);
        RECT client{};
        GetClientRect(window_, &client);
        EXPECT_EQ(painted_, (std::vector<int>{0, 0, client.right, client.bottom}));
        EXPECT_GE(client.right, 480);
        const QLabel& label = *button.parentWidget()->findChild<QLabel*>();
        EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance("Pick a Neighborhood: ")) << "it isn't cut";

        button.window()->resize(button.window()->width() - 1, button.window()->height());
        runMessages();
        EXPECT_EQ(painted_, (std::vector<int>{0, 0, toUnits(button.parentWidget()->width()), client.bottom}));
        const auto& area = *button.window()->findChild<QScrollArea*>();
        button.window()->resize(button.width() * 6, button.width() * 2);
        runMessages();
        EXPECT_EQ(button.parentWidget()->width(), area.viewport()->width()) << "beside the bar";
        button.window()->resize(button.width() * 3, button.width() * 2);
        runMessages();
        for (QWidget* const control : {static_cast<QWidget*>(&button), &combo}) {
            EXPECT_NE(control->visibleRegion(), QRegion(control->rect()));
            control->setFocus();
            runMessages();
            EXPECT_EQ(control->visibleRegion(), QRegion(control->rect())) << "the focus brings it into view";
            const int left = control->mapTo(area.viewport(), QPoint(0, 0)).x(), right = left + control->width();
            EXPECT_TRUE(area.horizontalScrollBar()->value() == 0 || left == 0 || right == area.viewport()->width())
                << "and no more";
        }
        QTest::keyClick(combo.window()->windowHandle(), Qt::Key_Down, Qt::ControlModifier);
        EXPECT_TRUE(combo.visibleRegion().isEmpty()) << "and keys scroll";
    }
    QApplication::setFont(usual);
    updateScale();
}

TEST_F(WindowingNativeTest, AWholeTitleIsFoundAtAnyDepthOfFrames) {
    const XServer server;
    xcb_window_t window = server.root();
    for (const char* const title : {"", "The Sims H\xF4tel", "", "The Sims House Party", "The Sims Deluxe"})
        window = server.addWindow(title, "", window);
    EXPECT_NE(FindWindowA(nullptr, "The Sims House Party"), nullptr);
    EXPECT_NE(FindWindowA(nullptr, "The Sims H\xF4tel"), nullptr);
    for (const char* const other : {"The Sims", "The Sims House Party 2", "the sims house party", "The Sims Deluxe"})
        EXPECT_EQ(FindWindowA(nullptr, other), nullptr) << other;
    // From here on the window manager lists the deepest.
    xcb_change_property(server.connection(), XCB_PROP_MODE_REPLACE, server.root(), server.atom("_NET_CLIENT_LIST"),
                        XCB_ATOM_WINDOW, 32, 1, &window);
    server.set(window, "_NET_WM_NAME", "UTF8_STRING", "The Sims \xE2\x80\x93 Livin\xE2\x80\x99 Large\0"sv);
    EXPECT_NE(FindWindowA(nullptr, "The Sims \x96 Livin\x92 Large"), nullptr);
    EXPECT_EQ(FindWindowA(nullptr, "The Sims Deluxe"), nullptr) << "the older name doesn't count then";
}

// The test program starts itself once more without a screen.
TEST_F(WindowingNativeTest, WithoutAScreenABoxIsPrintedAndTheLackOfAWindowExplained) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const ScopedVariable display("DISPLAY", ""), wayland("WAYLAND_DISPLAY", "none");
    const ScopedVariable platform("QT_QPA_PLATFORM", "eglfs");
    EXPECT_EXIT(std::exit(MessageBoxA(nullptr, "The text", "Caf\xE9 title", MB_OKCANCEL)), testing::ExitedWithCode(0),
                "No window can be opened: the platform eglfs can't be tried, and DISPLAY isn't set, and the Wayland "
                "server none doesn't answer.\nCaf\xC3\xA9 title\nThe text\n");
}

}  // namespace
