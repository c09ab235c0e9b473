// Message boxes.
#include <QMessageBox>
#include <QPointer>
#include <cstdio>

#include "platform/native/api/controls.h"
#include "platform/native/base/text1252.h"
#include "platform/native/messages/message_loop.h"
#include "platform/native/screen/display.h"
#include "platform/native/windowing/window.h"

namespace {

constexpr UINT buttonsOfType = 0xF;

// A box has a handle while it is shown, so that FindWindowA finds it.
class Box : public Window {
 public:
    Box(QWidget* owner, const QString& text, const QString& title, UINT type)
        : Window(0, nullptr), box_(new QMessageBox(owner)) {
        box_->setModal(true);
        box_->setWindowTitle(title);
        box_->setTextFormat(Qt::PlainText);
        box_->setText(text);
        const bool withCancel = (type & buttonsOfType) == MB_OKCANCEL;
        const bool cancelFirst = withCancel && (type & MB_DEFBUTTON2) != 0;
        box_->setStandardButtons(withCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
        box_->setDefaultButton(cancelFirst ? QMessageBox::Cancel : QMessageBox::Ok);
        box_->setEscapeButton(withCancel ? QMessageBox::Cancel : QMessageBox::Ok);
    }
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;
    ~Box() override {
        if (box_ != nullptr) box_->deleteLater();
    }

    QWidget* widget() const override { return box_; }
    LRESULT receive(UINT, WPARAM, LPARAM) override { return 0; }

    int ask() {
        const QPointer<QMessageBox> box = box_;
        runModal(*box, [&box] { return box != nullptr && box->isVisible(); });
        const bool ok = box != nullptr && box->standardButton(box->clickedButton()) == QMessageBox::Ok;
        return ok ? IDOK : IDCANCEL;
    }

 private:
    QPointer<QMessageBox> box_;
};

int printInstead(LPCSTR text, LPCSTR title) {
    std::fprintf(stderr, "%s\n%s\n", utf8From1252(title).c_str(), utf8From1252(text).c_str());
    return 0;
}

}  // namespace

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    if (text == nullptr) text = "";
    if (caption == nullptr) caption = "Error";
    if (!hasDisplay()) return printInstead(text, caption);
    const Window* const ownerWindow = owner == nullptr ? nullptr : findWindow(owner);
    if (owner != nullptr && ownerWindow == nullptr) return 0;
    auto box =
        std::make_unique<Box>(owner == nullptr ? nullptr : ownerWindow->widget(), qtText(text), qtText(caption), type);
    Box& asked = *box;
    HWND const handle = addWindow(std::move(box))->handle();
    const int answer = asked.ask();
    dropWindow(handle);
    return answer;
}
