// Message boxes, and dialogs of the resources.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

// What the dialog procedure received.
Log received;

// Ends with 40 more than the command's id.
INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) received = {"init " + std::to_string(lParam)};
    if (message != WM_COMMAND) return FALSE;
    received.push_back("command " + std::to_string(LOWORD(wParam)));
    return EndDialog(dialog, LOWORD(wParam) + 40);
}

}  // namespace

TEST(BoxesTest, EachAnswerHasItsResult) {
    const struct {
        const char* what;
        UINT type;
        int answer, result;
        std::vector<std::string> buttons;
    } rows[] = {
        {"Escape on OK alone", MB_OK, answerByEscape, 0, {"OK"}},  // IDOK of Windows, IDCANCEL of Wine
        {"OK of two", MB_OKCANCEL, IDOK, IDOK, {"OK", "Cancel"}},
        {"Cancel", MB_OKCANCEL, IDCANCEL, IDCANCEL, {"OK", "Cancel"}},
        {"Escape on two", MB_OKCANCEL, answerByEscape, IDCANCEL, {"OK", "Cancel"}},
    };
    const char* const text = "Caf\xE9 & <b>bar</b>!  Two blanks.\nA second line with &mark.";
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const AnsweredBox box = answerNextBox(row.answer);
        const int result = MessageBoxA(nullptr, text, "Proceed? \x80", row.type);
        EXPECT_EQ(result, row.result != 0 ? row.result : result);
        EXPECT_EQ(box->title, "Proceed? \x80");
        EXPECT_EQ(box->text, text);
        EXPECT_EQ(box->buttons, row.buttons);
    }
}

TEST(BoxesTest, TheOwnerIsBlockedAndStillDrawn) {
    TestWindow owner;
    HWND const button = owner.addControl("Button", "Below", WS_VISIBLE, 3, {10, 300, 100, 30});
    owner.show();
    for (HWND const given : {owner.handle, HWND{}}) {
        SetCursor(LoadCursorA(nullptr, IDC_WAIT));
        owner.takeLog();
        bool waitCursor = true;
        const AnsweredBox box = answerNextBox(IDOK, [&] {
            waitCursor = waitCursorShows();
            clickButton(button);
            closeWindow(owner.handle);
            InvalidateRect(owner.handle, nullptr, TRUE);
        });
        EXPECT_EQ(MessageBoxA(given, "Text", "Title", MB_OK), IDOK);
        EXPECT_EQ(owner.takeLog(), Log{"paint"});
        EXPECT_FALSE(waitCursor) << "over a box the program doesn't wait";
        EXPECT_TRUE(waitCursorShows());
        clickButton(button);
        EXPECT_EQ(owner.takeLog(), Log{"command 3 0"});
    }
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}

TEST(BoxesTest, ADialogsProcedureAnswersIt) {
    TestWindow owner;
    owner.show();
    for (const auto& [answer, command] : {std::pair(IDOK, IDOK), {answerByEscape, IDCANCEL}}) {
        HWND found = nullptr;
        const AnsweredBox box = answerNextBox(answer, [&] { found = FindWindowA(nullptr, "About"); });
        EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(IDD_ABOUT), owner.handle, procedure, 5), command + 40);
        EXPECT_EQ(received, (Log{"init 5", "command " + std::to_string(command)}));
        EXPECT_EQ(box->text.find("Marrowfen Plus (Build 2)\n"), 0U) << box->text;
        EXPECT_EQ(box->buttons, std::vector<std::string>{"OK"});
        EXPECT_NE(found, nullptr) << "a box is found by its title while it shows";
        EXPECT_FALSE(IsWindow(found));
    }
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(9999), owner.handle, procedure, 0), -1);
}
