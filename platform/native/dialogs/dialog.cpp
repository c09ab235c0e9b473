// Dialogs of the resources.
#include <QDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <optional>

#include "platform/native/api/controls.h"
#include "platform/native/api/resources.h"
#include "platform/native/api/windowing.h"
#include "platform/native/messages/message_loop.h"
#include "platform/native/resources/dialog_template.h"
#include "platform/native/resources/pictures.h"
#include "platform/native/resources/resource_file.h"
#include "platform/native/screen/display.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/control.h"
#include "platform/native/windowing/window.h"

namespace {

constexpr DWORD alignment = 0x3;  // of a static text: left, center, right, or an icon instead
constexpr DWORD iconInPlace = 0x3;
constexpr DWORD defaultButton = 0x1;  // of a button's style
constexpr DWORD buttonKind = 0xF;

// Escape and the close button are commands; only EndDialog ends the dialog.
class DialogWidget : public QDialog {
 public:
    DialogWidget(QWidget* owner, HWND window) : QDialog(owner), window_(window) {}
    void reject() override { SendMessageA(window_, WM_COMMAND, IDCANCEL, 0); }

 private:
    HWND window_;
};

// Converts a font's dialog units to pixels.
class DialogUnits {
 public:
    explicit DialogUnits(const QFont& font) {
        const QString letters("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
        const QFontMetrics metrics(font);
        width_ = (metrics.horizontalAdvance(letters) / 26 + 1) / 2;
        height_ = metrics.height();
    }

    int x(int units) const { return units * width_ / 4; }
    int y(int units) const { return units * height_ / 8; }
    QRect pixels(const QRect& units) const { return {x(units.x()), y(units.y()), x(units.width()), y(units.height())}; }

 private:
    int width_ = 1;
    int height_ = 1;
};

class Dialog : public Window {
 public:
    Dialog(const DialogTemplate& source, const Window* owner, DLGPROC procedure);
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    ~Dialog() override {
        if (widget_ != nullptr) widget_->deleteLater();
    }

    QWidget* widget() const override { return widget_; }
    LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) override {
        return procedure_(handle(), message, wParam, lParam);
    }

    void addItems(const DialogTemplate& source);
    void end(INT_PTR result) {
        result_ = result;
        widget_->hide();
    }
    std::optional<INT_PTR> result() const { return result_; }

 private:
    void addLabel(const DialogItem& item, const QRect& place);
    void addButton(const DialogItem& item, const QRect& place);

    QPointer<DialogWidget> widget_;
    DLGPROC procedure_;
    std::optional<INT_PTR> result_;
};

QPoint originOf(const Window* owner) {
    if (owner == nullptr) return {};
    const QWidget* const area = owner->clientArea() == nullptr ? owner->widget() : owner->clientArea();
    return area->mapToGlobal(QPoint(0, 0));
}

Dialog::Dialog(const DialogTemplate& source, const Window* owner, DLGPROC procedure)
    : Window(source.style, nullptr),
      widget_(new DialogWidget(owner == nullptr ? nullptr : owner->widget(), handle())),
      procedure_(procedure) {
    widget_->setModal(true);
    widget_->setWindowTitle(source.title);
    if (source.points > 0) widget_->setFont(QFont(source.font, toPixels(source.points)));
    const QRect place = DialogUnits(widget_->font()).pixels(source.place);
    widget_->setFixedSize(place.size());
    widget_->move(originOf(owner) + place.topLeft());
}

void Dialog::addItems(const DialogTemplate& source) {
    const DialogUnits units(widget_->font());
    for (const DialogItem& item : source.items) {
        if (item.kind == DialogItem::Kind::text) addLabel(item, units.pixels(item.place));
        if (item.kind == DialogItem::Kind::button) addButton(item, units.pixels(item.place));
    }
}

void Dialog::addLabel(const DialogItem& item, const QRect& place) {
    auto* const label = new QLabel(widget_);
    label->setGeometry(place);
    if ((item.style & alignment) == iconInPlace) {
        const std::vector<QImage> pictures = picturesOf(LoadIconA(nullptr, MAKEINTRESOURCEA(item.titleId)));
        if (!pictures.empty()) label->setPixmap(QPixmap::fromImage(pictures.front()));
        label->adjustSize();  // an icon keeps its own size
        return;
    }
    constexpr Qt::Alignment sides[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    label->setAlignment(Qt::AlignTop | sides[item.style & alignment]);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setText(item.title);
}

void Dialog::addButton(const DialogItem& item, const QRect& place) {
    auto button = std::make_unique<Button>(item.style | WS_VISIBLE, handle(), item.id, "", widget_);
    button->button().setText(item.title);
    button->button().setDefault((item.style & buttonKind) == defaultButton);
    button->place(place);
    addWindow(std::move(button));
}

std::optional<DialogTemplate> loadTemplate(LPCSTR name) {
    const auto resource = programResources().find(resourceType::dialog, resourceId(name));
    return resource.has_value() ? readDialogTemplate(ResourceBytes(*resource)) : std::nullopt;
}

}  // namespace

INT_PTR DialogBoxParamA(HINSTANCE, LPCSTR templateName, HWND owner, DLGPROC procedure, LPARAM parameter) {
    if (!hasDisplay() || procedure == nullptr) return -1;
    const Window* const ownerWindow = owner == nullptr ? nullptr : findWindow(owner);
    const std::optional<DialogTemplate> source = loadTemplate(templateName);
    if (!source.has_value() || (owner != nullptr && ownerWindow == nullptr)) return -1;
    auto made = std::make_unique<Dialog>(*source, ownerWindow, procedure);
    Dialog& dialog = *made;
    HWND const handle = addWindow(std::move(made))->handle();
    dialog.addItems(*source);
    SendMessageA(handle, WM_INITDIALOG, 0, parameter);
    const auto open = [&dialog] { return !dialog.result().has_value() && dialog.widget() != nullptr; };
    if (open()) runModal(*dialog.widget(), open);
    const INT_PTR result = dialog.result().value_or(-1);
    dropWindow(handle);
    return result;
}

BOOL EndDialog(HWND dialog, INT_PTR result) {
    auto* const found = dynamic_cast<Dialog*>(findWindow(dialog));
    if (found == nullptr) return FALSE;
    found->end(result);
    return TRUE;
}
