#include "start/evening_steps.h"

#include "restore/actions.h"
#include "tests/start/evening_game.h"
#include "tests/support/x_server.h"
#include "world/program_files.h"

namespace {

TEST_F(EveningTest, AGameThatWasStartedWhileAQuestionWasOpenIsNotTakenBack) {
    box_.reset();
    const XServer server;
    for (const bool ofStart : {true, false}) {
        start();
        makeRestorePoint(files().path(restorePointsDirectory), game(), PointReason::evening);
        save();
        fs::current_path(files().path());
        const Tree saved = treeOf(files().path("UserData"));
        xcb_window_t window = 0;
        const auto startGame = [&] { window = server.addWindow("The Sims", "sims.exe", server.root()); };
        const AnsweredBox question = answerNextBox(IDOK, startGame), refusal = answerNextBox(IDOK);
        const auto goBack = [&](const RestorePoint& point) {
            return goBackAfterQuestion({restorePointsDirectory, game()}, point, allNeighborhoods);
        };
        EXPECT_FALSE(ofStart ? settleLastEvening(game(), false).isSettled
                             : goBack(listRestorePoints(restorePointsDirectory).front()));
        EXPECT_TRUE(refusal->text.starts_with("The Sims is running: ")) << refusal->text;
        EXPECT_EQ(differences(saved, treeOf(files().path("UserData"))), "");
        xcb_destroy_window(server.connection(), window);
        server.atom("done");
    }
    box_ = answerNextBox(IDOK);
}

}  // namespace
