#include "prepare/preparation.h"

#include <gtest/gtest.h>

#include <functional>

#include "data/data_files.h"
#include "data/skin_file.h"
#include "prepare/program.h"
#include "tests/prepare/unprepared_game.h"
#include "tests/support/user.h"

namespace {

TEST_F(PreparationTest, BringsWhatIsMissingAndASecondRunChangesNothing) {
    Tree expected = treeOf(game());
    ASSERT_TRUE(isReady()) << report_;
    EXPECT_TRUE(reports("User00011.iff.\n")) << report_;
    expected[skin] = bytesFrom(packageSkin());
    EXPECT_EQ(differences(expected, treeOf(game())), "");
    const Tree tool = {{"Template.iff", expectedTemplate()},
                       {"famtemplate", makeFamilyTemplate()},
                       {"skinsets.cfg", bytesFrom("heads")},
                       {"skinsets-original.cfg", bytesFrom("heads")}};
    EXPECT_EQ(differences(tool, treeOf(files_.path("tool"))), "");
    for (const bool newTemplate : {false, true}) {
        EXPECT_TRUE(isReady(newTemplate)) << report_;
        EXPECT_FALSE(reports("is new")) << report_;
        EXPECT_EQ(differences(tool, treeOf(files_.path("tool"))) + differences(expected, treeOf(game())), "");
    }
}

TEST_F(PreparationTest, APlayersFilesStayUnlessANewTemplateIsAskedFor) {
    const Tree players = {{"Template.iff", bytesFrom("t")},
                          {"famtemplate", bytesFrom("f")},
                          {"skinsets.cfg", bytesFrom("s")},
                          {"skinsets-original.cfg", bytesFrom("heads")}};
    for (const auto& [name, bytes] : players)
        files_.write("tool/" + name, bytes);
    fs::create_directories((game() / skin).parent_path());
    EXPECT_TRUE(writeFile(game() / skin, "k"));
    const Tree before = treeOf(game());
    EXPECT_TRUE(isReady()) << report_;
    EXPECT_EQ(differences(players, treeOf(files_.path("tool"))) + differences(before, treeOf(game())), "");

    EXPECT_TRUE(isReady(true)) << report_;
    files_.write("tool/Template.iff", "u");
    EXPECT_TRUE(isReady(true)) << report_;
    std::string copies;
    for (const auto& [name, bytes] : treeOf(files_.path("tool")))
        if (name.starts_with("Template 2")) copies.append(bytes.begin(), bytes.end());
    EXPECT_TRUE(copies == "tu" || copies == "ut") << copies;
    EXPECT_EQ(files_.bytesOf("tool/Template.iff"), expectedTemplate());
}

TEST_F(PreparationTest, ATemplateWhoseSimsStandStillIsReplaced) {
    IffBuilder sleeping;
    sleeping.add({.type = "BHAV", .id = 4096, .content = Bytes(60)});
    files_.write("tool/Template.iff", sleeping.bytes());
    EXPECT_TRUE(isReady()) << report_;
    EXPECT_EQ(files_.bytesOf("tool/Template.iff"), expectedTemplate());
}

TEST_F(PreparationTest, WithoutAnyPartTheSkinSetsDontCome) {
    const struct {
        const char* what;
        std::function<void()> spoil;
        const char* said;
    } rows[] = {
        {"a file can't be written", [&] { files_.makeDirectory("tool/famtemplate"); },
         "famtemplate can't be written: writing there isn't allowed"},
        {"no skin sets in the package", [&] { files_.remove("tool/skinsets-original.cfg"); }, "unpack"},
        {"no adult of the player's but a file that a save left",
         [&] {
             fs::rename(game() / "UserData/Characters/User00011.iff", game() / "UserData/Characters/TMPUser00011.iff");
             keepOnly({"UserData/Characters/TMPUser00011.iff", "UserData/Characters/User00001.iff",
                       "UserData/Characters/User00017.iff", "UserData/Characters/User00042.iff"});
         },
         "Template.iff is missing"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        row.spoil();
        EXPECT_FALSE(isReady());
        EXPECT_TRUE(reports(row.said)) << report_;
        EXPECT_FALSE(files_.exists("tool/skinsets.cfg"));
        for (const char* name : {"famtemplate", "Template.iff"})
            fs::remove_all(files_.path(std::string("tool/") + name));
        files_.write("tool/skinsets-original.cfg", "heads");
    }
}

TEST_F(PreparationTest, TheProgramAsksAndActsOnTheAnswer) {
    const struct {
        const char* what;
        std::vector<std::string> arguments;
        int answer, code;
        const char* said;
    } rows[] = {{"another option", {"--no"}, IDOK, 1, "The options are"},
                {"cancelled", {}, IDCANCEL, 1, "Tidewright needs a skin"},
                {"without a question", {"--yes"}, IDOK, 0, "Everything is ready"},
                {"with one", {"--new-template"}, IDOK, 0, "Tidewright needs a skin"}};
    const Tree unprepared = treeOf(files_.path());
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        std::vector<std::string> arguments = {"tidewright-prepare"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        const AnsweredBox first = answerNextBox(row.answer), second = answerNextBox(IDOK);
        EXPECT_EQ(runProgram(static_cast<int>(pointers.size()), pointers.data()), row.code);
        EXPECT_NE(first->text.find(row.said), std::string::npos) << first->text;
        EXPECT_EQ(second->shown, row.answer == IDOK && row.arguments.front() == "--new-template");
        EXPECT_EQ(differences(unprepared, treeOf(files_.path())).empty(), row.code != 0);
        if (row.code == 0) {
            EXPECT_EQ(files_.bytesOf("tool/Template.iff"), expectedTemplate());
            files_.write("tool/Template.iff", "a player's own");
        }
    }
    uninstallGame(files_.path("prefix"));
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(runProgram(0, nullptr), -1);
    EXPECT_EQ(box->title, "Cannot find The Sims");
}

}  // namespace
