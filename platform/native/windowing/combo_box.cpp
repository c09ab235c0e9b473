#include "platform/native/windowing/combo_box.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFrame>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <algorithm>

#include "platform/native/api/controls.h"
#include "platform/native/base/text1252.h"
#include "platform/native/screen/scale.h"
#include "platform/native/screen/tall_letters.h"

namespace {

// Windows' combo boxes are no higher, and the main window has them 30 units apart.
constexpr int greatestClosedHeight = 28;  // units

// Shows a list with a scroll bar below the box, as high as the program asked for. Many styles would show a menu that
// covers the screen from top to bottom.
class ListBelowStyle : public QProxyStyle {
 public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

// An entry of the open list, with room for tall letters. Its text is in the middle.
class Entry : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * riseOfTallLetters(option.font));
    }
};

// The wheel changes the pick only where the focus is: elsewhere a player would lose his picks by scrolling over
// them. The list opens as wide as its longest entry, if the screen is; Qt moves it to the left where that takes it.
class Box : public QComboBox {
 public:
    explicit Box(QWidget* area) : QComboBox(area) { setFocusPolicy(Qt::StrongFocus); }

    void showPopup() override {
        const QAbstractItemView& list = *view();
        auto& frame = static_cast<QFrame&>(*list.parentWidget());
        const int besides = list.verticalScrollBar()->sizeHint().width() + 2 * frame.frameWidth();
        frame.setMinimumWidth(std::min(list.sizeHintForColumn(0) + besides, screen()->availableSize().width()));
        QComboBox::showPopup();
    }

 protected:
    void wheelEvent(QWheelEvent* event) override { hasFocus() ? QComboBox::wheelEvent(event) : event->ignore(); }
};

}  // namespace

ComboBox::ComboBox(DWORD style, HWND parent, int id, QWidget* area) : Control(style, parent, new Box(area)) {
    auto* const listBelow = new ListBelowStyle;
    listBelow->setParent(&box());
    box().setStyle(listBelow);
    box().setItemDelegate(new Entry(&box()));  // makes the list, which takes the style's scroll bar
    QObject::connect(&box(), &QComboBox::activated, &box(),
                     [parent, id, control = handle()] { notifyParent(parent, id, CBN_SELCHANGE, control); });
}

QComboBox& ComboBox::box() const {
    return static_cast<QComboBox&>(*widget());
}

void ComboBox::place(const QRect& rectangle) {
    box().ensurePolished();
    const int height = std::min(box().sizeHint().height(), toPixels(greatestClosedHeight));
    const int rowHeight = box().view()->fontMetrics().height() + 2 * riseOfTallLetters(box().view()->font());
    box().setMaxVisibleItems(std::max(1, (rectangle.height() - height) / rowHeight));
    Control::place(QRect(rectangle.topLeft(), QSize(rectangle.width(), height)));
}

LRESULT ComboBox::receive(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case CB_ADDSTRING:
            return addString(reinterpret_cast<const char*>(lParam));  // NOLINT(performance-no-int-to-ptr)
        case CB_DELETESTRING:
            return deleteString(wParam);
        case CB_GETCOUNT:
            return box().count();
        case CB_GETCURSEL:
            return box().currentIndex();  // -1 for none, as on Windows
        case CB_SETCURSEL:
            if (wParam >= static_cast<WPARAM>(box().count())) return CB_ERR;
            box().setCurrentIndex(static_cast<int>(wParam));
            return static_cast<LRESULT>(wParam);
        default:
            return Control::receive(message, wParam, lParam);
    }
}

LRESULT ComboBox::addString(const char* text) {
    const bool hadNone = box().currentIndex() < 0;
    box().addItem(qtText(text));
    if (hadNone) box().setCurrentIndex(-1);  // Qt selects the first entry of an empty list
    return box().count() - 1;
}

LRESULT ComboBox::deleteString(WPARAM index) {
    if (index >= static_cast<WPARAM>(box().count())) return CB_ERR;
    const int row = static_cast<int>(index);
    // Qt would select a neighbor of a deleted entry.
    if (row == box().currentIndex()) box().setCurrentIndex(-1);
    box().removeItem(row);
    return box().count();
}
