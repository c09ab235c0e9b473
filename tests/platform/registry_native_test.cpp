#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win32.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr const char* gameKey = "software\\MAXIS\\The Sims";

class RegistryNativeTest : public testing::Test {
 protected:
    // The text of a value of the game's key; "-" if key or value isn't there.
    static std::string query(const char* name) {
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, gameKey, 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return "-";
        char text[100] = "";
        DWORD size = sizeof text;
        DWORD type = 0;
        const LSTATUS status = RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<LPBYTE>(text), &size);
        EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
        if (status != ERROR_SUCCESS) return "-";
        EXPECT_EQ(type, DWORD{REG_SZ});
        EXPECT_EQ(text[size - 1], '\0');
        return std::string(text, size - 1);
    }

    TempDirectory directory_;
    ScopedVariable prefix_{"WINEPREFIX", directory_.path()};
};

TEST_F(RegistryNativeTest, TextsAreFoundUnderTheirKeyAndNames) {
    const std::string head = "WINE REGISTRY Version 2\n\n'a'='in no key'\n[Software\\\\Maxis]\n'a'='above'\n\n";
    const std::string plain = "[Software\\\\Maxis\\\\The Sims] 1234567\n#time=1d5\n";
    const std::string wow = "[Software\\\\Wow6432Node\\\\Maxis\\\\The Sims]\n";
    // Quotation marks are written as apostrophes.
    const std::string fits(99, 'x');
    const struct {
        const char* what;
        std::string file;
        const char* name;
        std::string text;
    } rows[] = {
        {"no key", "[Software\\\\Maxis\\\\The Sims\\\\Sub]\n'a'='below'\n", "a", "-"},
        {"plain", plain + "'sims_Data'='C:\\\\The Sims'\n", "SIMS_DATA", "C:\\The Sims"},
        {"32-bit section first", wow + "'a'='w'\n" + plain + "'a'='p'\n'b'='q'\n", "a", "w"},
        {"then the plain one", plain + "'b'='q'\n" + wow + "'a'='w'\n", "b", "q"},
        {"escapes", plain + "'a\\'b'='\\\\ \\' \\n\\r\\t\\e.'\n", "a\"b", "\\ \" \n\r\te."},
        {"code page", plain + "'a'='\\xe9\\x20ACf\\x00e9\\x65e5\\351\\xg'\n", "a", "\xE9\x80\x66\xE9?\xE9xg"},
        {"as long as the buffer", plain + "'a'='" + fits + "'\n", "a", fits},
        {"too long for the buffer", plain + "'a'='x" + fits + "'\n", "a", "-"},
        {"Z in another case", plain + "'Az'='1'\n", "aZ", "1"},
        {"line ends of DOS", "[Software\\\\Maxis\\\\The Sims]\r\n'a'='1'\r\n", "a", "1"},
        {"not a text", plain + "'a'=dword:00000001\n'a'=hex:01,\\\n  02\n'a'=str(7):'x'\n", "a", "-"},
        {"damaged lines", plain + "'a\n'a'\n'a'=\n'a'='\n'a'='x\\\n='x'\n[\n'a'='in no key'\n", "a", "-"},
    };
    for (const auto& row : rows) {
        std::string file = head + row.file;
        std::replace(file.begin(), file.end(), '\'', '"');
        directory_.write("system.reg", file);
        EXPECT_EQ(query(row.name), row.text) << row.what;
    }
    directory_.remove("system.reg");
    EXPECT_EQ(query("a"), "-") << "no file";
}

}  // namespace
