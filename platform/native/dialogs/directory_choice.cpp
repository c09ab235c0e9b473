#include "platform/directory_choice.h"

#include <QDir>
#include <QFileDialog>

#include "platform/native/base/text1252.h"
#include "platform/native/messages/message_loop.h"
#include "platform/native/screen/display.h"
#include "platform/native/windowing/window.h"
#include "platform/path_text.h"

// Qt's own dialog, because those of the desktops have no option to show hidden directories.
bool chooseDirectory(HWND owner, const char* title, std::string& directory) {
    if (!hasDisplay()) return false;
    const Window* const ownerWindow = owner == nullptr ? nullptr : findWindow(owner);
    QFileDialog dialog(ownerWindow == nullptr ? nullptr : ownerWindow->widget(), qtText(title), QDir::homePath());
    dialog.setModal(true);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setLabelText(QFileDialog::Accept, "&OK");
    dialog.setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Hidden);
    runModal(dialog, [&dialog] { return dialog.isVisible(); });
    if (dialog.result() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    directory = absolutePath(QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString());
    return true;
}
