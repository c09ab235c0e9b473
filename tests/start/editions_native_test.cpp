#include "start/editions.h"

#include "sample/installation.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"

namespace {

TEST(EditionsNativeTest, AnAnswerAndAWishAreRemembered) {
    using enum EditionsWish;
    constexpr int noBox = 0;
    const TempDirectory files;
    EXPECT_TRUE(writeInstallation(files.path("later"), true) && writeInstallation(files.path("base")));
    const std::string game = gameDirectory(files.path("later")).string() + "\\", ini = files.path("file.ini");
    const std::tuple<std::string, EditionsWish, int, bool, std::string> rows[] = {
        {"", unsaid, IDOK, false, "later"},
        {"", unsaid, IDCANCEL, false, "base"},
        {"", unsaid, noBox, true, ""},
        {"", later, noBox, true, "later"},
        {"later", unsaid, noBox, true, "later"},
        {"later", base, noBox, false, "base"},
        {"later", ask, noBox, true, ""},
        {"base", ask, IDOK, false, "later"},
        {"neither", unsaid, IDOK, false, "later"},
        {"\x01", unsaid, noBox, true, "\x01"},
        {"\x01", later, noBox, true, "later"}};
    const auto text = [](const std::string& word) { return word.empty() ? word : "[Editions]\nOpen=" + word + "\n"; };
    for (const auto& [before, wish, answer, yes, after] : rows) {
        SCOPED_TRACE(before + std::to_string(static_cast<int>(wish)) + std::to_string(answer));
        files.write("file.ini", bytesFrom(text(before)));
        const Editions expected = after == "later" ? Editions::later : Editions::base;
        AnsweredBox box = answerNextBox(answer);
        testing::internal::CaptureStdout();
        EXPECT_EQ(editionsToOpen(game, wish, ini, yes), expected);
        EXPECT_EQ(testing::internal::GetCapturedStdout().find(" is damaged. ") != std::string::npos, before == "\x01");
        EXPECT_EQ(box->text.starts_with("This game holds 10 Sims of a later edition"), answer != noBox) << box->text;
        EXPECT_EQ(files.bytesOf("file.ini"), bytesFrom(text(after)));
        box = answerNextBox(IDCANCEL);
        EXPECT_EQ(editionsToOpen(game, unsaid, ini, yes), expected);
        EXPECT_FALSE(box->shown) << "asked again";
    }
    EXPECT_EQ(files.bytesOf("file.ini.damaged"), bytesFrom(text("\x01")));
    EXPECT_EQ(editionsToOpen(game, later, ini + "\\none.ini", true), Editions::later) << "can't be remembered";
    EXPECT_EQ(editionsToOpen(gameDirectory(files.path("base")).string() + "\\", later, ini, false), Editions::base);
}

}  // namespace
