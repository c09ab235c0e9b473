// The program's resources, by the calls that load them.
#include <gtest/gtest.h>

#include <string>

#include "platform/win32.h"
#include "resources/ids.h"

TEST(ResourcesTest, StringsAreCutToTheBuffer) {
    const struct {
        UINT id;
        int size;
        const char* text;
    } rows[] = {
        {IDS_MAIN_CLASS, 100, "TIDEWRIGHT"},
        {IDS_SPLASH_CLASS, 100, "Loading Tidewright"},
        {IDS_MAIN_CLASS, 11, "TIDEWRIGHT"},
        {IDS_MAIN_CLASS, 10, "TIDEWRIGH"},
        {IDS_MAIN_CLASS, 1, ""},
    };
    for (const auto& row : rows) {
        char buffer[100] = "?";
        EXPECT_EQ(LoadStringA(nullptr, row.id, buffer, row.size), static_cast<int>(std::string(row.text).size()));
        EXPECT_STREQ(buffer, row.text);
    }
    char buffer[100];
    for (const UINT missing : {0U, 108U, 111U, 1000U, 70000U})
        EXPECT_EQ(LoadStringA(nullptr, missing, buffer, 100), 0);
}

TEST(ResourcesTest, PicturesAreFoundByTheirIds) {
    HINSTANCE const program = GetModuleHandleA(nullptr);
    EXPECT_NE(LoadIconA(program, MAKEINTRESOURCEA(IDI_MAIN)), nullptr);
    EXPECT_NE(LoadIconA(program, MAKEINTRESOURCEA(IDI_SMALL)), nullptr);
    SetLastError(NO_ERROR);
    EXPECT_EQ(LoadIconA(program, MAKEINTRESOURCEA(IDB_SPLASH)), nullptr);
    EXPECT_EQ(LoadImageA(program, MAKEINTRESOURCEA(IDI_MAIN), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR), nullptr);
    EXPECT_EQ(LoadAcceleratorsA(program, MAKEINTRESOURCEA(IDB_SPLASH)), nullptr);
    HANDLE const bitmap = LoadImageA(program, MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR);
    EXPECT_NE(bitmap, nullptr);
    EXPECT_TRUE(DeleteObject(bitmap));
}
