#include "tests/support/browser.h"

#include <gtest/gtest.h>
#include <windows.h>

void writePagesTo(const std::string& file) {
    const std::string command = "cmd /c echo %1>>\"" + file + "\"";
    EXPECT_EQ(RegSetValueA(HKEY_CLASSES_ROOT, "http\\shell\\open\\command", REG_SZ, command.c_str(),
                           static_cast<DWORD>(command.size())),
              ERROR_SUCCESS);
}
