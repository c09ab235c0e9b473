#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <thread>

#include "platform/win32.h"
#include "tests/platform/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr const char* page = "http://tidewright.example/Help/?a=1&b=%20;'x";

INT_PTR open(const char* verb, const char* address) {
    return reinterpret_cast<INT_PTR>(ShellExecuteA(nullptr, verb, address, nullptr, nullptr, SW_SHOWNORMAL));
}

TEST(ShellExecuteNativeTest, APageIsOpenedByTheDesktopElseByTheBrowser) {
    const TempDirectory directory;
    const ScopedVariable path("PATH", directory.path());
    ScopedVariable browser("BROWSER", "");
    const struct {
        const char *browser, *installed, *opened;  // $BROWSER, one more program, what is called with the page
    } rows[] = {{"missing", "unrelated", nullptr},
                {"missing:browser -n %s", "browser", "browser:-n:@"},
                {"browser", "unrelated", "browser:@:"},
                {"browser", "xdg-open", "xdg-open:@:"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.installed);
        directory.write(row.installed, "#!/bin/sh\necho \"${0##*/}:$1:$2\" > '" + directory.path("opened") + "'\n");
        std::filesystem::permissions(directory.path(row.installed), std::filesystem::perms::owner_all);
        browser.set(row.browser);
        EXPECT_EQ(open("open", page) > 32, row.opened != nullptr);
        if (row.opened == nullptr) continue;
        std::string expected = std::string(row.opened) + "\n";
        expected.replace(expected.find('@'), 1, page);
        const auto written = [&] { return directory.exists("opened") && directory.bytesOf("opened").size() > 0; };
        for (int i = 0; i < 500 && !written(); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_EQ(directory.bytesOf("opened"), bytesFrom(expected));
        directory.remove("opened");
    }
    EXPECT_LE(open("print", page), 32);
    EXPECT_LE(open("open", "/bin/sh"), 32);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "an ended child was left";
}

}  // namespace
