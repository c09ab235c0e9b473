#include "start/program.h"

#include "platform/own_directory.h"
#include "platform/path_text.h"
#include "restore/actions.h"
#include "start/evening_steps.h"
#include "tests/prepare/unprepared_game.h"
#include "tests/start/evening_game.h"
#include "tests/support/x_server.h"
#include "world/program_files.h"

namespace {

// What comes before the evening; the stories have the evening itself.
class StartTest : public PreparationTest {
 protected:
    static int start(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "tidewright-start");
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        return runStart(static_cast<int>(pointers.size()), pointers.data());
    }

    const ScopedVariable data_{"XDG_DATA_HOME", files_.path("d\xC3\xA4ta")};
    const std::string own_ = ownDirectory("Tidewright").path;
};

TEST_F(StartTest, AsksPreparesAndSaysWhetherAllIsReady) {
    const std::string planned = "In " + shownPath(own_) + ":\n    Template.iff, out of one of your own Sims' files\n";
    using Words = std::vector<std::string>;  // of the command line, and of the boxes in their order
    const std::tuple<Words, int, int, Words> rows[] = {
        {{"--no"}, IDOK, 1, {}},
        {{"--help"}, IDOK, 0, {}},
        {{"--prepare"}, IDCANCEL, 1, {"-HEAD.skn\n" + planned + "    famtemplate\n    skinsets.cfg\n\n"}},
        {{"--prepare", "--yes"}, IDOK, 0, {}},
        {{"--prepare"}, IDOK, 0, {"Tidewright can start."}},
        {{"--new-template"},
         IDOK,
         0,
         {"will be made.\n\n" + planned + "    (the present one is kept", "would be the same",
          "Tidewright can start."}}};
    for (const auto& [options, answer, code, said] : rows) {
        SCOPED_TRACE(options.back() + std::to_string(answer));
        std::vector<AnsweredBox> boxes;
        for (std::size_t i = 0; i <= said.size(); ++i)
            boxes.push_back(answerNextBox(answer));
        EXPECT_EQ(start(options), code);
        for (std::size_t i = 0; i < said.size(); ++i)
            EXPECT_TRUE(boxes[i]->text.find(said[i]) != std::string::npos) << said[i] << boxes[i]->text;
        EXPECT_FALSE(boxes.back()->shown) << boxes.back()->text;
    }
    fs::remove(own_ + "/Template.iff");
    fs::remove_all(game_ / "UserData");
    const AnsweredBox missing = answerNextBox(IDOK);
    EXPECT_EQ(start({"--prepare"}), 1);
    EXPECT_TRUE(missing->text.find(" has no directory UserData, so ") != std::string::npos) << missing->text;
}

TEST_F(StartTest, TakesOverTheFilesOfVersion110AndReplacesTheLinksOfVersion100) {
    fs::create_symlink("/usr/share/tidewright/1.0.0/famtemplate", own_ + "/famtemplate");
    EXPECT_TRUE(writeFile(game_ / "skinsets.cfg", "mine") && writeFile(game_ / "Template.iff", playersTemplate()));
    const Tree prefix = treeOf(files_.path("prefix"));
    const AnsweredBox question = answerNextBox(IDOK), files = answerNextBox(IDOK), end = answerNextBox(IDOK);
    EXPECT_EQ(start({"--prepare"}), 0);
    EXPECT_NE(question->text.find("    skinsets.cfg\n    Template.iff\n"), std::string::npos) << question->text;
    EXPECT_EQ(treeOf(own_).at("skinsets.cfg"), bytesFrom("mine"));
    EXPECT_EQ(treeOf(own_).at("Template.iff"), playersTemplate());
    EXPECT_EQ(differences(prefix, treeOf(files_.path("prefix"))),
              skin_.lexically_relative(files_.path("prefix")).string() + "\n");
    EXPECT_TRUE(fs::exists(own_ + "/famtemplate"));
    const AnsweredBox secondEnd = answerNextBox(IDOK);
    EXPECT_EQ(start({"--prepare"}), 0);
    EXPECT_TRUE(secondEnd->text.ends_with("Tidewright can start.")) << secondEnd->text;
}

TEST_F(EveningTest, AGameThatWasStartedWhileAQuestionWasOpenIsNotTakenBack) {
    box_.reset();
    start();
    makeRestorePoint(restorePointsDirectory, game(), PointReason::evening);
    const RestorePoint point = listRestorePoints(restorePointsDirectory).front();
    save();
    const Tree saved = treeOf(files().path("UserData"));
    for (const bool ofStart : {true, false}) {
        const XServer server;
        const auto startGame = [&] { server.addWindow("The Sims", "sims.exe", server.root()); };
        const AnsweredBox question = answerNextBox(IDOK, startGame), refusal = answerNextBox(IDOK);
        EXPECT_FALSE(ofStart ? settleLastEvening(game(), false).isSettled
                             : goBackAfterQuestion({restorePointsDirectory, game()}, point, allNeighborhoods));
        EXPECT_TRUE(refusal->text.starts_with("The Sims is running: ")) << refusal->text;
        EXPECT_EQ(differences(saved, treeOf(files().path("UserData"))), "");
    }
}

}  // namespace
