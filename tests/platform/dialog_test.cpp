// Dialogs of the resources.
#include <gtest/gtest.h>

#include <algorithm>

#include "resources/ids.h"
#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

// What the dialog procedure received.
Log received;

// Ends with 40 more than the command's id; with a parameter of its own at once.
INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        received = {"init " + std::to_string(lParam)};
        if (lParam != 0) EndDialog(dialog, lParam);
    }
    if (message != WM_COMMAND) return FALSE;
    received.push_back("command " + std::to_string(LOWORD(wParam)));
    return EndDialog(dialog, LOWORD(wParam) + 40);
}

INT_PTR open(int id, HWND owner, LPARAM parameter) {
    return DialogBoxParamA(nullptr, MAKEINTRESOURCEA(id), owner, procedure, parameter);
}

}  // namespace

TEST(DialogTest, TheResourcesDialogsShowTheirTextsAndAnswer) {
    TestWindow owner;
    owner.show();
    const struct {
        int id, answer, command;
        const char* title;
        const char* begins;
        int lines;
    } rows[] = {
        {IDD_ABOUT, IDOK, 1, "About", "Marrowfen Plus (Build 2)\n", 2},
        {IDD_ABOUT, answerByEscape, 2, "About", "Marrowfen Plus (Build 2)\n", 2},
        {IDD_CREDITS, IDOK, 1, "Credits", "Deepest thanks to the following people for their assistance.\n", 4},
    };
    for (const auto& row : rows) {
        HWND found = nullptr;
        const AnsweredBox box = answerNextBox(row.answer, [&] { found = FindWindowA(nullptr, row.title); });
        EXPECT_EQ(open(row.id, owner.handle, 0), row.command + 40);
        EXPECT_EQ(received, (Log{"init 0", "command " + std::to_string(row.command)}));
        EXPECT_EQ(box.title(), row.title);
        EXPECT_EQ(box.text().find(row.begins), 0U) << box.text();
        EXPECT_EQ(std::count(box.text().begin(), box.text().end(), '\n') + 1, row.lines);
        EXPECT_EQ(box.buttons(), std::vector<std::string>{"OK"});
        EXPECT_NE(found, nullptr);
        EXPECT_FALSE(IsWindow(found));
    }
}

TEST(DialogTest, WhatEndsAtOnceOrCannotBeShownIsNeverSeen) {
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(open(IDD_ABOUT, nullptr, 77), 77);
    EXPECT_EQ(open(9999, nullptr, 0), -1);
    EXPECT_FALSE(box.shown());
    const TestWindow window;
    EXPECT_FALSE(EndDialog(window.handle, 1)) << "a window is no dialog";
}
