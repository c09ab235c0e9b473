#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/win32.h"
#include "tests/platform/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr const char* page = "http://tidewright.example/Help/?a=1&b=%20;'x";

// Codes up to 32 are errors.
bool opens(const char* address) {
    return reinterpret_cast<INT_PTR>(ShellExecuteA(nullptr, "open", address, nullptr, nullptr, SW_SHOWNORMAL)) > 32;
}

TEST(ShellExecuteNativeTest, APageIsOpenedByTheDesktopElseByTheBrowser) {
    const TempDirectory directory;
    const ScopedVariable path("PATH", directory.path());
    ScopedVariable browser("BROWSER", "");
    EXPECT_FALSE(opens(page)) << "nothing is installed";
    EXPECT_FALSE(opens("/bin/sh"));
    const struct {
        const char *browser, *installed, *opened;  // $BROWSER, one more program, what is called with the page
    } rows[] = {{"missing:browser -n %s", "browser", "browser:-n "}, {"browser", "xdg-open", "xdg-open:"}};
    for (const auto& row : rows) {
        directory.write(row.installed, "#!/bin/sh\necho \"${0##*/}:$*\" > '" + directory.path("opened") + "'\n");
        std::filesystem::permissions(directory.path(row.installed), std::filesystem::perms::owner_all);
        browser.set(row.browser);
        EXPECT_TRUE(opens(page));
        const Bytes expected = bytesFrom(row.opened + std::string(page) + "\n");
        for (int i = 0; i < 500 && !(directory.exists("opened") && directory.bytesOf("opened") == expected); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_EQ(directory.bytesOf("opened"), expected);
        directory.remove("opened");
    }
}

}  // namespace
