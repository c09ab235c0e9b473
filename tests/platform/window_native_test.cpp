// What an X server still sends to a list while a busy program hasn't closed it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QWindow>

#include "platform/native/windowing/window.h"
#include "tests/platform/test_window.h"
#include "tests/support/user.h"

TEST(LateClicksTest, AClickThatAClosedListGetsReachesTheButtonUnlessABoxIsOpen) {
    TestWindow window;
    window.show();
    HWND const combo = window.addControl("combobox", "", CBS_DROPDOWNLIST | WS_VISIBLE, 7, {160, 10, 200, 200});
    SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("a"));
    HWND const button = window.addControl("Button", "Move Out", WS_VISIBLE, 2010, {10, 300, 100, 30});
    const QWidget& widget = *findWindow(button)->widget();
    auto& box = static_cast<QComboBox&>(*findWindow(combo)->widget());
    box.showPopup();
    QWindow* const list = QApplication::activePopupWidget()->windowHandle();
    box.hidePopup();
    const auto click = [&] {
        const QPointF place = widget.mapToGlobal(widget.rect().center());
        for (const auto& [type, buttons] :
             {std::pair{QEvent::MouseButtonPress, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton}}) {
            QMouseEvent event(type, list->mapFromGlobal(place), place, Qt::LeftButton, buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(list, &event);
        }
    };
    window.takeLog();
    click();
    EXPECT_EQ(window.takeLog(), Log{"command 2010 0"});
    const AnsweredBox asked = answerNextBox(IDOK, click);
    MessageBoxA(window.handle, "text", "title", MB_OK);
    EXPECT_EQ(window.takeLog(), Log{});
}
