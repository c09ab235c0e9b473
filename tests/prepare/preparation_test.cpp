#include "prepare/preparation.h"

#include <set>

#include "data/family_template.h"
#include "data/skin_file.h"
#include "prepare/program.h"
#include "tests/prepare/unprepared_game.h"
#include "tests/support/user.h"

namespace {

TEST_F(PreparationTest, BringsWhatIsMissingAndASecondRunChangesNothing) {
    Tree expected = treeOf(game_);
    expected[fs::relative(skin_, game_).generic_string()] = bytesFrom(packageSkin());
    const Tree tool = {{"Template.iff", expectedTemplate()},
                       {"famtemplate", makeFamilyTemplate()},
                       {"skinsets.cfg", bytesFrom("heads")},
                       {"skinsets-original.cfg", bytesFrom("heads")}};
    const std::pair<bool, const char*> runs[] = {
        {false, "\\User00011.iff.\n"}, {false, "skinsets.cfg is there"}, {true, "Template.iff is there"}};
    for (const auto& [newTemplate, said] : runs) {
        EXPECT_TRUE(isReady(newTemplate) && reports(said)) << report_;
        EXPECT_EQ(differences(tool, treeOf(files_.path("tool"))) + differences(expected, treeOf(game_)), "");
    }
}

TEST_F(PreparationTest, APlayersFilesStayUnlessANewTemplateIsAskedFor) {
    const Tree players = {{"Template.iff", bytesFrom("t")},
                          {"famtemplate", bytesFrom("f")},
                          {"skinsets.cfg", bytesFrom("s")},
                          {"skinsets-original.cfg", bytesFrom("heads")}};
    for (const auto& [name, bytes] : players)
        files_.write("tool/" + name, bytes);
    fs::create_directories(skin_.parent_path());
    EXPECT_TRUE(writeFile(skin_, "k"));
    const Tree before = treeOf(game_);
    EXPECT_TRUE(isReady()) << report_;
    EXPECT_EQ(differences(players, treeOf(files_.path("tool"))) + differences(before, treeOf(game_)), "");

    EXPECT_TRUE(isReady(true)) << report_;
    IffBuilder withoutActs;
    withoutActs.add({.type = "BHAV", .id = 4096, .content = Bytes(60)});
    files_.write("tool/Template.iff", withoutActs.bytes());
    EXPECT_TRUE(isReady()) << report_;
    EXPECT_EQ(files_.bytesOf("tool/Template.iff"), expectedTemplate());
    std::set<Bytes> copies;
    for (const auto& [name, bytes] : treeOf(files_.path("tool")))
        if (name.starts_with("Template 2")) copies.insert(bytes);
    EXPECT_EQ(copies, (std::set{bytesFrom("t"), withoutActs.bytes()}));
}

TEST_F(PreparationTest, TheTemplateIsMadeOfTheFirstFileThatServes) {
    Chunks usual = chunksOf({.behaviour = BehaviourSet::newer}), huge = usual, misleading = usual, other = usual;
    huge.push_back({.type = "XXXX", .content = Bytes(1 << 24)});
    chunkIn(misleading, "STR#", 258).label = "DJBO";
    chunkIn(other, "SLOT", 128).label = "slots";
    const struct {
        const char* what;
        Chunks chunks;
        const char* directory;
        int files;  // from "user00.iff" on
        const char* chosen;
    } rows[] = {{"in any case of the name", usual, "UserData", 1, "UserData\\Characters\\user00.iff."},
                {"but not of 16 MiB", huge, "UserData", 1, "\\User00011.iff."},
                {"but with a map that can be searched", misleading, "UserData2", 40, "\\User00011.iff."},
                {"also of the second neighborhood", other, "UserData2", 40, "UserData2\\Characters\\user00.iff."}};
    for (const auto& row : rows) {
        IffBuilder file;
        for (const IffChunk& chunk : row.chunks)
            file.add(chunk);
        for (int i = 0; i < row.files; ++i)
            EXPECT_TRUE(
                writeFile(game_ / row.directory / "Characters" / ("user0" + std::to_string(i) + ".iff"), file.bytes()));
        EXPECT_TRUE(isReady() && reports(row.chosen)) << row.what << report_;
        files_.remove("tool/Template.iff");
    }
}

TEST_F(PreparationTest, WithoutAnyPartTheSkinSetsDontCome) {
    const auto expectMissing = [&](const char* said) {
        EXPECT_FALSE(isReady());
        EXPECT_TRUE(reports(said)) << report_;
        EXPECT_FALSE(files_.exists("tool/skinsets.cfg"));
    };
    files_.makeDirectory("tool/famtemplate");
    expectMissing("famtemplate can't be written: writing there isn't allowed");
    files_.remove("tool/famtemplate");
    files_.remove("tool/skinsets-original.cfg");
    expectMissing("unpack");
    files_.write("tool/skinsets-original.cfg", "heads");
    files_.remove("tool/Template.iff");
    fs::remove_all(game_ / "UserData");
    expectMissing("Template.iff is missing");
}

TEST_F(PreparationTest, TheProgramAsksAndActsOnTheAnswer) {
    const struct {
        std::string option;
        int answer, code;
        const char* said;
    } rows[] = {{"--no", IDOK, 1, "The options are"},
                {"", IDCANCEL, 1, "Tidewright needs a skin"},
                {"--yes", IDOK, 0, "Everything is ready"},
                {"--new-template", IDOK, 0, "Tidewright needs a skin"}};
    const Tree unprepared = treeOf(files_.path());
    for (const auto& row : rows) {
        SCOPED_TRACE(row.option);
        std::string program = "tidewright-prepare", option = row.option;
        char* arguments[] = {program.data(), option.data()};
        const AnsweredBox first = answerNextBox(row.answer), second = answerNextBox(IDOK);
        EXPECT_EQ(runProgram(option.empty() ? 1 : 2, arguments), row.code);
        EXPECT_NE(first->text.find(row.said), std::string::npos) << first->text;
        EXPECT_EQ(second->shown, option == "--new-template");
        EXPECT_EQ(treeOf(files_.path()) == unprepared, row.code != 0);
        if (row.code != 0) continue;
        EXPECT_EQ(files_.bytesOf("tool/Template.iff"), expectedTemplate());
        files_.write("tool/Template.iff", "a player's own");
    }
    uninstallGame(files_.path("prefix"));
    const AnsweredBox box = answerNextBox(IDOK);
    EXPECT_EQ(runProgram(0, nullptr), -1);
    EXPECT_EQ(box->title, "Cannot find The Sims");
}

}  // namespace
