#include "prepare/preparation.h"

#include <ctime>

#include "gamefiles/skin_file.h"
#include "gamefiles/templates.h"
#include "tests/prepare/unprepared_game.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST_F(PreparationTest, BringsWhatIsMissingAndASecondRunChangesNothing) {
    Tree expected = treeOf(game_);
    expected[fs::relative(skin_, game_).generic_string()] = bytesFrom(packageSkin());
    const Tree tool = {{"Template.iff", expectedTemplate()},
                       {"famtemplate", makeFamilyTemplate()},
                       {"skinsets.cfg", bytesFrom("heads")},
                       {"skinsets-original.cfg", bytesFrom("heads")}};
    const std::pair<bool, const char*> runs[] = {{false, "\\User00011.iff.\n"},
                                                 {false, "skinsets.cfg is there"},
                                                 {true, "\\User00011.iff, would be the same.\n"}};
    for (const auto& [newTemplate, said] : runs) {
        EXPECT_TRUE(isReady(newTemplate) && reports(said)) << report_;
        EXPECT_EQ(differences(tool, treeOf(files_.path("tool"))) + differences(expected, treeOf(game_)), "");
    }
}

TEST_F(PreparationTest, TheTemplatesOfLaterEditionsComeOutOfALaterFileWhereTheyAreAskedFor) {
    EXPECT_FALSE(isReady(false, Editions::later));
    EXPECT_TRUE(reports("Template-later.iff is missing. None of")) << report_;
    EXPECT_TRUE(writeInstallation(files_.path("prefix"), true));
    fs::copy("Template.iff", "Template-later.iff");
    EXPECT_FALSE(isReady(false, Editions::later)) << "its text counts 33 strings";
    EXPECT_TRUE(isReady(true, Editions::later)) << report_;
    const Chunks samphire = readIff(bytesOfFile(game_ / "UserData4/Characters/User00002.iff")).chunks;
    EXPECT_EQ(files_.bytesOf("tool/Template-later.iff"), makeTemplate(samphire, Editions::later));
    EXPECT_EQ(textAt(files_.bytesOf("tool/Template-later.iff"), 54094, 10), "\x23\0\1adult\0\0"s);
    EXPECT_EQ(files_.bytesOf("tool/famtemplate-later"), makeFamilyTemplate(Editions::later));
}

TEST_F(PreparationTest, APlayersFilesStayUnlessANewTemplateIsAskedFor) {
    const Bytes own = playersTemplate();
    const Tree players = {{"Template.iff", own},
                          {"famtemplate", Bytes(232)},
                          {"skinsets.cfg", bytesFrom("s")},
                          {"skinsets-original.cfg", bytesFrom("heads")}};
    for (const auto& [name, bytes] : players)
        files_.write("tool/" + name, bytes);
    fs::create_directories(skin_.parent_path());
    EXPECT_TRUE(writeFile(skin_, "k"));
    const Tree before = treeOf(game_);
    EXPECT_TRUE(isReady()) << report_;
    EXPECT_EQ(differences(players, treeOf(files_.path("tool"))) + differences(before, treeOf(game_)), "");

    files_.write("tool/Template.iff", playersTemplate(textLetter));
    EXPECT_TRUE(isReady() && reports("Template.iff is there already")) << "the label alone is no sign" << report_;

    // What has a copy gets no second one. The template of earlier packages is replaced unasked.
    files_.remove("tool/Template.iff");
    for (const Bytes& old : {own, own, makeFactTemplate()}) {
        files_.write("tool/Template.iff", old);
        EXPECT_TRUE(isReady(old == own)) << report_;
        EXPECT_EQ(files_.bytesOf("tool/Template.iff"), expectedTemplate());
    }
    const std::time_t now = std::time(nullptr);
    char copy[32];
    std::strftime(copy, sizeof copy, "tool/Template %Y-%m-%d", std::gmtime(&now));
    EXPECT_EQ(files_.bytesOf(copy + std::string(".iff")), own);
    EXPECT_EQ(files_.bytesOf(copy + std::string(" 2.iff")), makeFactTemplate());
    EXPECT_EQ(treeOf(files_.path("tool")).size(), players.size() + 2);
}

TEST_F(PreparationTest, AFileThatASaveCantUseStaysAndIsReported) {
    Bytes cut = playersTemplate();
    cut.pop_back();
    // The others have a wrong letter in a chunk's tag, or in the id of the body strings.
    const std::pair<std::string, Bytes> rows[] = {{"famtemplate", Bytes(231)},
                                                  {"Template.iff", cut},
                                                  {"Template.iff", playersTemplate(3976)},
                                                  {"Template.iff", playersTemplate(4268)},
                                                  {"Template.iff", playersTemplate(54016)},
                                                  {"Template.iff", playersTemplate(54025)}};
    for (const auto& [name, file] : rows) {
        files_.write("tool/" + name, file);
        EXPECT_TRUE(!isReady() && reports(name + " is there already, but a save can't use it")) << report_;
        EXPECT_EQ(files_.bytesOf("tool/" + name), file);
        files_.remove("tool/" + name);
    }
}

TEST_F(PreparationTest, TheTemplateIsMadeOfTheFirstFileThatServes) {
    const auto expectChosen = [this](SampleCharacter sim, const std::string& directory, int files, const char* chosen) {
        sim.behavior = BehaviorSet::newer;
        for (int i = 0; i < files; ++i)
            EXPECT_TRUE(writeFile(game_ / directory / ("Characters/user0" + std::to_string(i) + ".iff"),
                                  makeCharacterFile(sim).bytes));
        EXPECT_TRUE(isReady() && reports(chosen)) << report_;
        files_.remove("tool/Template.iff");
    };
    expectChosen({}, "UserData", 1, "UserData\\Characters\\user00.iff.");  // in any case of the name
    expectChosen({.before = {{.type = "XXXX", .content = Bytes(1 << 24)}}}, "UserData", 1, "\\User00011.iff.");
    // A label that a search of the map would take for a definition, then a behavior of the second neighborhood.
    expectChosen({.before = {{.type = "TREE", .label = "DJBO"}}}, "UserData2", 40, "\\User00011.iff.");
    expectChosen({.before = {{.type = "TREE"}}}, "UserData2", 40, "UserData2\\Characters\\user00.iff.");
}

TEST_F(PreparationTest, WithoutAnyPartTheSkinSetsDontCome) {
    const auto expectMissing = [&](const std::string& said, bool newTemplate = false) {
        EXPECT_FALSE(isReady(newTemplate));
        EXPECT_TRUE(reports(said)) << said << report_;
        EXPECT_FALSE(files_.exists("tool/skinsets.cfg"));
    };
    files_.makeDirectory("tool/famtemplate");
    expectMissing("famtemplate can't be written: writing there isn't allowed");
    files_.remove("tool/famtemplate");
    files_.remove("tool/skinsets-original.cfg");
    expectMissing("unpack");
    fs::remove_all(game_ / "GameData");
    EXPECT_TRUE(writeFile(game_ / "GameData", "no directory"));
    expectMissing("HEAD.skn can't be written: its directory is missing");
    fs::remove(game_ / "GameData");
    files_.write("tool/skinsets-original.cfg", "heads");
    for (const auto& entry : fs::directory_iterator(characters_))
        EXPECT_TRUE(writeFile(entry.path(), "broken"));
    fs::remove_all(game_ / "UserData2");
    expectMissing("Template.iff stays as it is. None of the ", true);
    files_.remove("tool/Template.iff");
    for (const auto& entry : fs::directory_iterator(characters_))
        fs::resize_file(entry.path(), 1 << 24);
    expectMissing("can be read. Please allow reading them");
    fs::remove_all(characters_);
    expectMissing("Template.iff is missing. No character file can be seen");
    fs::remove_all(game_);
    expectMissing("can't be found");
}

}  // namespace
