#include "ui/cursors.h"

#include "platform/win32.h"

namespace {

HCURSOR waitCursor = nullptr;
HCURSOR arrowCursor = nullptr;

}  // namespace

void loadCursors() {
    waitCursor = LoadCursorA(nullptr, IDC_WAIT);
    arrowCursor = LoadCursorA(nullptr, IDC_ARROW);
}

void showWaitCursor() {
    SetCursor(waitCursor);
}

void showArrowCursor() {
    SetCursor(arrowCursor);
}
