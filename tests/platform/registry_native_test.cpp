#include "platform/native/registry_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win32.h"
#include "tests/platform/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

constexpr const char* gameKey = "software\\MAXIS\\The Sims";

class RegistryNativeTest : public testing::Test {
 protected:
    void writeRegistry(std::string_view text) const { directory_.write("system.reg", text); }

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
        EXPECT_TRUE(type == REG_SZ || type == REG_EXPAND_SZ);
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
    const std::string below = "[Software\\\\Maxis\\\\The Sims\\\\Sub]\n'a'='below'\n";
    // Quotation marks are written as apostrophes.
    const struct {
        const char* what;
        std::string file;
        const char *name, *text;
    } rows[] = {
        {"no key", below, "a", "-"},
        {"no value", plain + "'ab'='C:\\\\'\n" + below, "a", "-"},
        {"plain", plain + "'sims_Data'='C:\\\\The Sims'\n", "SIMS_DATA", "C:\\The Sims"},
        {"other case", "[SOFTWARE\\\\maxis\\\\the sims]\n'a'='1'\n", "A", "1"},
        {"32-bit section first", wow + "'a'='w'\n" + plain + "'a'='p'\n'b'='q'\n", "a", "w"},
        {"then the plain one", plain + "'b'='q'\n" + wow + "'a'='w'\n", "b", "q"},
        {"the later of two", plain + "'a'='1'\n'a'='2'\n", "a", "2"},
        {"unnamed", plain + "@='d'\n", "", "d"},
        {"expandable", plain + "'a'=str(2):'%x%'\n", "a", "%x%"},
        {"escapes", plain + "'a\\'b'='\\\\ \\' \\n\\r\\t\\e.'\n", "a\"b", "\\ \" \n\r\te."},
        {"code page", plain + "'a'='\\xe9\\x20ACf\\x00e9\\x65e5\\351\\xg'\n", "a", "\xE9\x80\x66\xE9?\xE9xg"},
        {"UTF-8", plain + "'a'='\xC3\xA9'\n", "a", "\xE9"},
        {"line ends of DOS", "[Software\\\\Maxis\\\\The Sims]\r\n'a'='1'\r\n", "a", "1"},
        {"no line end", plain + "'a'='1'", "a", "1"},
        {"not a text", plain + "'a'=dword:00000001\n'a'=hex:01,\\\n  02\n'a'=str(7):'x'\n", "a", "-"},
        {"damaged lines", plain + "'a\n'a'\n'a'=\n'a'='\n'a'='x\\\n='x'\n[\n'a'='in no key'\n", "a", "-"},
        {"a huge line", plain + "'b'='" + std::string(1 << 20, 'x') + "'\n'a'='1'\n", "a", "1"},
    };
    for (const auto& row : rows) {
        std::string file = head + row.file;
        std::replace(file.begin(), file.end(), '\'', '"');
        writeRegistry(file);
        EXPECT_EQ(query(row.name), row.text) << row.what;
    }
    directory_.remove("system.reg");
    EXPECT_EQ(query("a"), "-") << "no file";
    directory_.makeDirectory("system.reg");
    EXPECT_EQ(query("a"), "-") << "a directory";
}

TEST_F(RegistryNativeTest, AFileCutAnywhereGivesTheWholeTextOrNone) {
    const std::string file = "x\n[Software\\\\Maxis\\\\The Sims]\n\"SIMS_DATA\"=\"C:\\\\S\\x00e9\"\n\n[Next]\n";
    const std::size_t whole = file.find("\n\n");
    for (std::size_t size = 0; size <= file.size(); ++size) {
        std::vector<RegistryValue> values;
        // A copy of its own, so that a sanitizer sees a byte read behind it.
        const std::vector<char> cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        readRegistryKey(std::string_view(cut.data(), cut.size()), gameKey, values);
        ASSERT_EQ(values.size(), size >= whole ? 1U : 0U) << size;
        for (const RegistryValue& value : values) {
            EXPECT_EQ(value.text, "C:\\S\xE9");
        }
    }
}

TEST_F(RegistryNativeTest, SizesAndHandlesAreChecked) {
    writeRegistry("[Software\\\\Maxis\\\\The Sims]\n\"SIMS_DATA\"=\"12345\"\n");
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(nullptr, gameKey, 0, KEY_READ, &key), LSTATUS{ERROR_INVALID_HANDLE});
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "none", 0, KEY_READ, &key), LSTATUS{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(key, nullptr);
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, gameKey, 0, KEY_READ, &key), ERROR_SUCCESS);
    directory_.remove("system.reg");
    BYTE data[6] = {'u', 'n'};
    DWORD size = 5;
    EXPECT_EQ(RegQueryValueExA(key, "SIMS_DATA", nullptr, nullptr, data, &size), LSTATUS{ERROR_MORE_DATA});
    EXPECT_EQ(size, 6U);
    EXPECT_EQ(data[0], 'u');
    size = 0;
    EXPECT_EQ(RegQueryValueExA(key, "SIMS_DATA", nullptr, nullptr, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(size, 6U);
    EXPECT_EQ(RegQueryValueExA(key, "SIMS_DATA", nullptr, nullptr, data, &size), ERROR_SUCCESS);
    EXPECT_STREQ(reinterpret_cast<const char*>(data), "12345");
    EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
    EXPECT_EQ(RegCloseKey(key), LSTATUS{ERROR_INVALID_HANDLE});
    EXPECT_EQ(RegQueryValueExA(key, "SIMS_DATA", nullptr, nullptr, data, &size), LSTATUS{ERROR_INVALID_HANDLE});
}

}  // namespace
