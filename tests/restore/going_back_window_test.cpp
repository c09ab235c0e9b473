#include "restore/going_back_window.h"

#include "restore/going_back.h"
#include "tests/start/evening_game.h"

namespace {

class GoingBackWindowTest : public EveningTest {
 protected:
    // Its boxes are the test's own.
    GoingBackWindowTest() { box_.reset(); }
    ~GoingBackWindowTest() override { box_ = answerNextBox(IDOK); }

    std::string points() const { return files().path("points"); }

    // Opens the window, does one thing after the other, and closes it.
    void use(const std::vector<std::function<void(const GoingBackControls&)>>& steps) const {
        for (const auto& step : steps)
            later([step] { step(goingBackControls()); });
        later([] { closeWindow(goingBackControls().window); });
        EXPECT_TRUE(showGoingBackWindow({points(), game()}));
    }
};

TEST_F(GoingBackWindowTest, AnEveningIsUndoneAndDoneAgain) {
    start();
    makeRestorePoint(points(), game(), PointReason::evening);
    const Tree before = treeOf(files().path("UserData"));
    save();
    const Tree after = treeOf(files().path("UserData"));
    std::string entry, question, said;
    Tree cancelled, undone, redone;
    const auto goBack = [&](const GoingBackControls& controls, int answer) {
        const AnsweredBox asked = answerNextBox(answer), done = answerNextBox(IDOK);
        clickButton(controls.goBackButton);
        question = asked->text;
        said = done->text;
        Tree now = treeOf(files().path("UserData"));
        std::erase_if(now, [](const auto& file) { return file.first.find("Backups/") != std::string::npos; });
        return now;
    };
    use({[&](const auto& controls) {
             entry = entryText(controls.pointList, 0);
             pickEntry(controls.neighborhoodList, 1);
             pickEntry(controls.pointList, 0);
             cancelled = goBack(controls, IDCANCEL);
         },
         [&](const auto& controls) { undone = goBack(controls, IDOK); },
         [&](const auto& controls) {
             EXPECT_NE(entryText(controls.pointList, 0).find("(made before going back)"), std::string::npos);
             redone = goBack(controls, IDOK);
         }});
    EXPECT_TRUE(entry.ends_with(" - Clover Thistlewood became a teenager; Bramble Thistlewood moved out")) << entry;
    EXPECT_TRUE(question.starts_with("Go back to \"today ")) << question;
    EXPECT_NE(question.find(" in Neighborhood 1?"), std::string::npos) << question;
    EXPECT_TRUE(listRestorePoints(points()).back().sessionEnded) << "nothing of the evening is left elsewhere";
    Tree saved = after;
    std::erase_if(saved, [](const auto& file) { return file.first.find("Backups/") != std::string::npos; });
    EXPECT_EQ(differences(saved, cancelled), "");
    EXPECT_EQ(differences(before, undone), "");
    EXPECT_EQ(differences(saved, redone), "");
    EXPECT_NE(said.find("To undo this, go back to \"today "), std::string::npos) << said;
}

TEST_F(GoingBackWindowTest, PointsAreMadeAndDeleted) {
    start();
    const auto answerOk = [](HWND button) {
        const AnsweredBox box = answerNextBox(IDOK);
        clickButton(button);
        EXPECT_TRUE(box->shown);
    };
    use({[&](const auto& controls) { answerOk(controls.makeButton); },
         [&](const auto& controls) {
             EXPECT_EQ(listRestorePoints(points()).size(), 1U);
             EXPECT_NE(entryText(controls.pointList, 0).find("(made by hand)"), std::string::npos);
             EXPECT_EQ(textOf(controls.neighborhoodList), "All");
             EXPECT_EQ(entryText(controls.neighborhoodList, 1), "Neighborhood 1");
             answerOk(controls.deleteButton);
         }});
    EXPECT_EQ(listRestorePoints(points()).size(), 0U);
}

}  // namespace
