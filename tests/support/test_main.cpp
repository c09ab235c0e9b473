// The entry of every test program: the layer starts it as it starts the program itself.
#include <gtest/gtest.h>

#include "platform/win32.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    testing::InitGoogleTest(&__argc, __argv);
    return RUN_ALL_TESTS();
}
