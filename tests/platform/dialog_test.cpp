// Dialogs of the resources.
#include <gtest/gtest.h>

#include "resources/ids.h"
#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

// What the dialog procedure below received and does.
struct Procedure {
    Log log;
    LPARAM parameter = 0;
    bool endsAtOnce = false;
};
Procedure procedure;

INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        procedure.log.push_back("init");
        procedure.parameter = lParam;
        if (procedure.endsAtOnce) EndDialog(dialog, 77);
        return TRUE;
    }
    if (message != WM_COMMAND) return FALSE;
    procedure.log.push_back("command " + std::to_string(LOWORD(wParam)));
    EndDialog(dialog, LOWORD(wParam) + 40);
    return TRUE;
}

}  // namespace

TEST(DialogTest, TheResourcesDialogsShowTheirTextsAndAnswer) {
    TestWindow owner;
    owner.show();
    const struct {
        int id, answer, result;
        const char* title;
        std::size_t lines;
        const char* begins;
        const char* command;
    } rows[] = {
        {IDD_ABOUT, IDOK, 41, "About", 2, "Marrowfen Plus (Build 2)\n", "command 1"},
        {IDD_ABOUT, answerByEscape, 42, "About", 2, "Marrowfen Plus (Build 2)\n", "command 2"},
        {IDD_CREDITS, IDOK, 41, "Credits", 4, "Deepest thanks to the following people for their assistance.\n",
         "command 1"},
    };
    for (const auto& row : rows) {
        procedure = {};
        HWND found = nullptr;
        const AnsweredBox box = answerNextBox(row.answer, [&] { found = FindWindowA(nullptr, row.title); });
        EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(row.id), owner.handle, dialogProcedure, 4711), row.result);
        EXPECT_EQ(procedure.log, (Log{"init", row.command}));
        EXPECT_EQ(procedure.parameter, 4711);
        EXPECT_EQ(box.title(), row.title);
        EXPECT_EQ(box.text().find(row.begins), 0U) << box.text();
        EXPECT_EQ(std::count(box.text().begin(), box.text().end(), '\n') + 1, static_cast<std::ptrdiff_t>(row.lines));
        EXPECT_EQ(box.buttons(), std::vector<std::string>{"OK"});
        EXPECT_NE(found, nullptr);
        EXPECT_FALSE(IsWindow(found));
    }
}

TEST(DialogTest, ADialogThatEndsAtOnceIsNeverSeen) {
    procedure = {};
    procedure.endsAtOnce = true;
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(IDD_ABOUT), nullptr, dialogProcedure, 0), 77);
    EXPECT_FALSE(box.shown());
}

TEST(DialogTest, WhatCannotBeShownSaysSo) {
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(9999), nullptr, dialogProcedure, 0), -1);
    TestWindow other;
    EXPECT_FALSE(EndDialog(other.handle, 1)) << "a window is no dialog";
}
