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
    char buffer[100] = "?";
    for (const auto& row : rows) {
        EXPECT_EQ(LoadStringA(nullptr, row.id, buffer, row.size), static_cast<int>(std::string(row.text).size()));
        EXPECT_STREQ(buffer, row.text);
    }
    for (const UINT missing : {0U, 108U, 111U, 1000U})
        EXPECT_EQ(LoadStringA(nullptr, missing, buffer, 100), 0);
}

TEST(ResourcesTest, PicturesAreFoundByKindAndId) {
    HINSTANCE const program = GetModuleHandleA(nullptr);
    for (const int id : {IDI_MAIN, IDI_SMALL})
        EXPECT_NE(LoadIconA(program, MAKEINTRESOURCEA(id)), nullptr);
    EXPECT_EQ(LoadIconA(program, MAKEINTRESOURCEA(IDB_SPLASH)), nullptr);
    EXPECT_EQ(LoadImageA(program, MAKEINTRESOURCEA(IDI_MAIN), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR), nullptr);
    EXPECT_EQ(LoadAcceleratorsA(program, MAKEINTRESOURCEA(IDB_SPLASH)), nullptr);
    EXPECT_EQ(LoadCursorA(nullptr, IDC_WAIT), LoadCursorA(nullptr, IDC_WAIT));
}
