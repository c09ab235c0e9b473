// A save while another program has one of its files open, or while another Tidewright saves.
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <regex>

#include "platform/files.h"
#include "tests/save/save_test.h"

namespace {

constexpr DWORD none = 0, read = FILE_SHARE_READ, write = FILE_SHARE_WRITE, erase = FILE_SHARE_DELETE;

// What another program does in a thread of its own.
DWORD WINAPI closeSoon(void* file) {
    Sleep(400);
    CloseHandle(file);
    return 0;
}

HANDLE otherSaveHasBegun = nullptr;

DWORD WINAPI holdLock(void* directory) {
    const DirectoryLock lock(static_cast<const char*>(directory));
    SetEvent(otherSaveHasBegun);
    Sleep(3000);
    return 0;
}

class HeldFilesWindowsTest : public SaveTest {
 public:
    // Begins anew, with an older file of each name that a save gives, and opens one of all, as a reader who shares it.
    HANDLE startAndHold(const std::string& name, DWORD share) {
        start();
        files().write(temporary, "older");
        files().write(backup, "older");
        files().write(annsTemporary, "older");
        HANDLE const held =
            CreateFileA(files().path(name).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_NE(held, INVALID_HANDLE_VALUE) << name;
        return held;
    }

    const std::string neighborhood = live, ann = TestNeighborhood::characterFile("user00001"),
                      temporary = "UserData/TMPneighborhood.iff",
                      annsTemporary = TestNeighborhood::characterFile("TMPuser00001"),
                      backup = "UserData/Backups/neighborhood.200235.147.iff", body = "Template.iff",
                      family = "famtemplate";
    const bool isWhole = std::getenv("TIDEWRIGHT_ALL_POINTS") != nullptr;
    const std::vector<DWORD> shares = isWhole ? std::vector<DWORD>{0, 1, 2, 3, 4, 5, 6, 7}
                                              : std::vector<DWORD>{none, read, read | write, read | write | erase};
};

TEST_F(HeldFilesWindowsTest, AFileThatStaysHeldStaysWholeAndIsMarked) {
    const std::vector<DWORD> withoutRead = {none, write, erase, write | erase};
    const std::vector<DWORD> withRead = {read, read | write, read | erase, read | write | erase};
    const std::vector<DWORD> notReadWrite = {none, read, write, erase, read | erase, write | erase};
    const std::string allOld = "old, temporary other bytes; old; old, temporary other bytes, backup other bytes";
    const std::string newSims = "new, backup old; new, backup old; ";
    const std::string withoutAnn = "; new, backup old; new without Ann, backup old";
    const std::tuple<std::string, std::vector<DWORD>, std::string, bool> rows[] = {
        {neighborhood, withoutRead, allOld, true},
        {neighborhood, {read, read | write}, newSims + "old, temporary new, backup old", true},
        {neighborhood, {read | erase, read | write | erase}, allSaved, false},
        {ann, withoutRead, "old, temporary new" + withoutAnn, true},
        {ann, {read, read | write}, "old, temporary new, backup old" + withoutAnn, true},
        {ann, {read | erase, read | write | erase}, allSaved, false},
        {temporary, notReadWrite, allOld, true},
        {temporary, {read | write}, newSims + "new, temporary new, backup old", false},
        {temporary, {read | write | erase}, allSaved, false},
        {annsTemporary, notReadWrite, "old, temporary other bytes" + withoutAnn, true},
        {annsTemporary, {read | write}, "new, temporary new, backup old; new, backup old; new, backup old", false},
        {annsTemporary, {read | write | erase}, allSaved, false},
        {backup, {none, read, write, read | write}, newSims + "old, temporary new, backup other bytes", true},
        {backup, {erase, read | erase, write | erase, read | write | erase}, allSaved, false},
        {body, withoutRead, "old, temporary other bytes; old; new without both, backup old", true},
        {body, withRead, allSaved, false},
        {family, withoutRead, allOld, true},
        {family, withRead, allSaved, false}};
    for (const auto& [name, itsShares, after, isMarked] : rows) {
        for (const DWORD share : itsShares) {
            if (std::ranges::count(shares, share) == 0) continue;
            SCOPED_TRACE(testing::Message() << name << ", sharing " << share);
            HANDLE const held = startAndHold(name, share);
            save();
            CloseHandle(held);
            EXPECT_EQ(states(), after);
            EXPECT_EQ(test()->isDirty(), isMarked);
            EXPECT_EQ(test().sim(0).characterDirty(), !after.starts_with("new"));
            save();
            EXPECT_TRUE(std::regex_match(states(), std::regex("new[^;]*; new[^;]*; new, [^;]*"))) << states();
            EXPECT_FALSE(test()->isDirty());
        }
    }
}

TEST_F(HeldFilesWindowsTest, AFileThatComesFreeIsWaitedFor) {
    for (const std::string& name : {neighborhood, ann, temporary, annsTemporary, backup, body, family}) {
        for (const DWORD share : shares) {
            SCOPED_TRACE(testing::Message() << name << ", sharing " << share);
            HANDLE const thread = CreateThread(nullptr, 0, closeSoon, startAndHold(name, share), 0, nullptr);
            save();
            WaitForSingleObject(thread, INFINITE);
            EXPECT_EQ(states(), allSaved);
            EXPECT_FALSE(test()->isDirty());
        }
    }
}

TEST_F(HeldFilesWindowsTest, TwoSavesGoPastAFileThatStaysOpen) {
    for (const std::string& name : {neighborhood, ann}) {
        SCOPED_TRACE(name);
        HANDLE const held = startAndHold(name, read | write | erase);
        save();
        change(test().sim(0), stageNumber::adult);
        save(8);
        EXPECT_FALSE(test()->isDirty());
        CloseHandle(held);
    }
}

TEST_F(HeldFilesWindowsTest, AnotherSaveIsWaitedForButOnlyForAWhile) {
    start();
    std::string directory = files().path("UserData");
    otherSaveHasBegun = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    HANDLE const thread = CreateThread(nullptr, 0, holdLock, directory.data(), 0, nullptr);
    WaitForSingleObject(otherSaveHasBegun, INFINITE);
    save();
    EXPECT_EQ(states(), "old; old; old");
    EXPECT_TRUE(test()->isDirty());
    save();
    EXPECT_EQ(states(), allSaved);
    WaitForSingleObject(thread, INFINITE);
}

}  // namespace
