// Dialogs of the resources.
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

TEST(DialogTest, TheResourcesDialogsShowTheirTextsAndAnswer) {
    TestWindow owner;
    owner.show();
    const struct {
        int id, answer, command;
        const char* title;
        const char* begins;
    } rows[] = {
        {IDD_ABOUT, IDOK, 1, "About", "Marrowfen Plus (Build 2)\n"},
        {IDD_ABOUT, answerByEscape, 2, "About", "Marrowfen Plus (Build 2)\n"},
        {IDD_CREDITS, IDOK, 1, "Credits", "Deepest thanks to the following people for their assistance.\n"},
    };
    for (const auto& row : rows) {
        HWND found = nullptr;
        const AnsweredBox box = answerNextBox(row.answer, [&] { found = FindWindowA(nullptr, row.title); });
        EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(row.id), owner.handle, procedure, 5), row.command + 40);
        EXPECT_EQ(received, (Log{"init 5", "command " + std::to_string(row.command)}));
        EXPECT_EQ(box->title, row.title);
        EXPECT_EQ(box->text.find(row.begins), 0U) << box->text;
        EXPECT_EQ(box->buttons, std::vector<std::string>{"OK"});
        EXPECT_NE(found, nullptr) << "a box is found by its title while it shows";
        EXPECT_FALSE(IsWindow(found));
    }
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(9999), owner.handle, procedure, 0), -1);
}
