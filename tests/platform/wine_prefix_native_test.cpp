// What Wine keeps for a program: the drives under its paths, and the registry.
#include <algorithm>

#include "platform/files.h"
#include "platform/native/files/paths.h"
#include "platform/win32.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

// The working directory holds the prefix "Prefix", whose drive C is "Prefix/drive_c".
class WinePrefixNativeTest : public testing::Test {
 protected:
    WinePrefixNativeTest() {
        fs::current_path(directory_.path());
        for (const char* const file : {"SIMS/x", "SimsZ/x", "Sims/Data/USER42.iff", "Sims/Data/User42.iff"})
            directory_.write(std::string("Prefix/drive_c/") + file, "x");
        directory_.makeDirectory("Prefix/dosdevices");
        fs::create_directory_symlink("../drive_c", "Prefix/dosdevices/c:");
    }

    static std::string located(const char* name) {
        return locate((std::string("c:\\Sims\\DATA\\") + name).c_str()).name;
    }
    static auto openDescriptors() { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); }

    TempDirectory directory_;
    ScopedVariable prefix_{"WINEPREFIX", directory_.path("Prefix//")};
};

TEST_F(WinePrefixNativeTest, DrivesSeparatorsAndCaseAreMapped) {
    const std::string drive = directory_.path("Prefix/dosdevices/c:");
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"slashes", "C:/Sims\\\\DATA/user42.IFF", drive + "/Sims/Data/USER42.iff"},
        {"the exact spelling first", "c:\\Sims\\data\\User42.iff", drive + "/Sims/Data/User42.iff"},
        {"the first in byte order else", "C:\\sims\\Data\\New.iff", drive + "/SIMS/Data/New.iff"},
        {"steps back", "C:\\Sims\\..\\simsz\\.\\X", drive + "/Sims/../SimsZ/./x"},
        {"a relative path", "prefix\\DRIVE_C\\", "Prefix/drive_c/"},
        {"in the root", "/PROC", "/proc"},
        {"too long to be looked up", "c:/sims/" + std::string(4096, 'x'), drive + "/sims/" + std::string(4096, 'x')},
    };
    for (const auto& [what, path, native] : rows)
        EXPECT_EQ(nativePath(path.c_str()), native) << what;
    prefix_.set("");
    const ScopedVariable home("HOME", directory_.path("home"));
    EXPECT_EQ(nativePath("C:\\x"), directory_.path("home/.wine/dosdevices/c:/x"));
}

TEST_F(WinePrefixNativeTest, ANameOutsideAsciiIsFoundRawThenAsUtf8AndMadeAsUtf8) {
    const char* const raw = "\xC9t\xE9.iff";           // "Été.iff" in Windows-1252
    const char* const utf8 = "\xC3\x89t\xC3\xA9.iff";  // the same
    EXPECT_EQ(nativePath("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A"
                         "\x9B\x9C\x9E\x9F"),
              "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
    for (const char* const better : {"\xC3\x89T\xC3\xA9.IFF", "\xC9T\xE9.IFF", utf8, raw}) {
        directory_.write(better, "x");
        EXPECT_EQ(nativePath(raw), better);
    }
    const std::string outside = directory_.path("narzędzia");  // not in Windows-1252
    fs::create_directory(outside);
    fs::current_path(outside);
    char path[1000] = "";
    GetCurrentDirectoryA(sizeof path, path);
    EXPECT_EQ(nativePath(path), outside);
}

TEST_F(WinePrefixNativeTest, ASteadyDirectoryIsReadOnceAndLetGo) {
    const auto before = openDescriptors();
    {
        const SteadyDirectories steady;
        for (const auto& [asked, found] : {std::pair("User42.iff", "User42.iff"), {"user42.iff", "USER42.iff"}}) {
            const SteadyDirectories nested;
            EXPECT_EQ(located(asked), found);
            EXPECT_EQ(openDescriptors(), before + 1);
        }
        directory_.write("Prefix/drive_c/Sims/Data/NEW.iff", "x");  // against the promise
        EXPECT_EQ(located("new.iff"), "new.iff");
    }
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(located("new.iff"), directory_.path("Prefix/dosdevices/c:/Sims/Data/NEW.iff"));
}

// The text of a value of the game's key; "-" if key or value isn't there.
std::string query(const char* name) {
    HKEY key = nullptr;
    const char* const path = "software\\MAXIS\\The Sims";
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, path, 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return "-";
    char text[100] = "";
    DWORD size = sizeof text;
    const LSTATUS status = RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<LPBYTE>(text), &size);
    RegCloseKey(key);
    return status == ERROR_SUCCESS ? std::string(text, size - 1) : "-";
}

TEST_F(WinePrefixNativeTest, TextsOfTheRegistryAreFoundUnderTheirKeyAndNames) {
    const std::string head = "WINE REGISTRY Version 2\n\n'a'='in no key'\n[Software\\\\Maxis]\n'a'='above'\n\n";
    const std::string plain = "[Software\\\\Maxis\\\\The Sims] 1234567\n#time=1d5\n";
    const std::string wow = "[Software\\\\Wow6432Node\\\\Maxis\\\\The Sims]\n";
    // Quotation marks are written as apostrophes.
    const std::string fits(99, 'x');
    const std::tuple<const char*, std::string, const char*, std::string> rows[] = {
        {"no key", "[Software\\\\Maxis\\\\The Sims\\\\Sub]\n'a'='below'\n", "a", "-"},
        {"names in any case", plain + "'aZ_Data'='C:\\\\The Sims'\n", "Az_DATA", "C:\\The Sims"},
        {"32-bit section first", wow + "'a'='w'\n" + plain + "'a'='p'\n'b'='q'\n", "a", "w"},
        {"then the plain one", plain + "'b'='q'\n" + wow + "'a'='w'\n", "b", "q"},
        {"escapes", plain + "'a\\'b'='\\\\ \\' \\n\\r\\t\\e.'\n", "a\"b", "\\ \" \n\r\te."},
        {"code page", plain + "'a'='\\xe9\\x20ACf\\x00e9\\x65e5\\xa0\\377\\xg'\n", "a", "\xE9\x80\x66\xE9?\xA0\xFFxg"},
        {"expandable", plain + "'a'=str(2):'%x%'\n", "a", "%x%"},
        {"byte order mark", plain + "'a'='\xEF\xBB\xBFx'\n", "a", "?x"},
        {"as long as the buffer", plain + "'a'='" + fits + "'\n", "a", fits},
        {"too long for the buffer", plain + "'a'='x" + fits + "'\n", "a", "-"},
        {"line ends of DOS", "[Software\\\\Maxis\\\\The Sims]\r\n'a'='1'\r\n", "a", "1"},
        {"not a text", plain + "'a'=dword:00000001\n'a'=hex:01,\\\n  02\n'a'=str(7):'x'\n", "a", "-"},
        {"damaged lines", plain + "'a\n'a'\n'a'=\n'a'='\n'a'='x\\\n='x'\n[\n'a'='in no key'\n", "a", "-"},
    };
    for (const auto& [what, section, name, text] : rows) {
        std::string file = head + section;
        std::replace(file.begin(), file.end(), '\'', '"');
        directory_.write("Prefix/system.reg", file);
        EXPECT_EQ(query(name), text) << what;
    }
}

}  // namespace
