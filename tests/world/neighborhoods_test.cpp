// The walk over the installation's "UserData" directories.
#include "world/neighborhoods.h"

#include <gtest/gtest.h>

#include "sample/neighborhood_file.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/status_line.h"

namespace {

class NeighborhoodsTest : public testing::Test {
 protected:
    ~NeighborhoodsTest() override {
        for (auto& slot : neighborhoods)
            slot.reset();
    }

    // The only family of each bears the directory's name.
    void install(const std::string& name) const {
        files_.write(name + "/neighborhood.iff", makeNeighborhoodFile({.families = {{.name = name}}}).bytes);
    }
    void load() const { loadNeighborhoods((files_.path() + "\\").c_str(), "C:\\tools"); }

    TempDirectory files_;
};

TEST_F(NeighborhoodsTest, OneThatCannotBeReadIsToldAndHidesTheRest) {
    neighborhoods[0] = std::make_unique<Neighborhood>();
    load();
    EXPECT_EQ(listedNeighborhoodCount(), 0) << "no directory, no neighborhood";
    files_.write("UserData2", "a file, not a directory");
    for (const char* name : {"UserData", "UserData3", "UserData5"})
        install(name);
    const AnsweredBox box = answerNextBox(IDOK);
    load();
    EXPECT_EQ(box.title(), "Loading Error");
    EXPECT_EQ(box.text(), "Error loading Neighborhood 2");
    EXPECT_EQ(box.buttons(), std::vector<std::string>{"OK"});
    EXPECT_EQ(listedNeighborhoodCount(), 1);
    EXPECT_STREQ(neighborhoods[0]->family(0)->name(), "UserData");
    EXPECT_STREQ(neighborhoods[0]->toolDirectory(), "C:\\tools");
    ASSERT_TRUE(neighborhoods[2]) << "read, though nobody will see it";
    EXPECT_STREQ(neighborhoods[2]->family(0)->name(), "UserData3");
    EXPECT_FALSE(neighborhoods[1] || neighborhoods[3] || neighborhoods[4]) << "behind the gap nothing is looked at";
    EXPECT_EQ(statusLine(), "Loading Neighborhood 3");
}

TEST_F(NeighborhoodsTest, TheHundredthIsTheLast) {
    install("UserData");
    for (int number = 2; number <= 101; ++number)
        install("UserData" + std::to_string(number));
    load();
    EXPECT_EQ(listedNeighborhoodCount(), 100);
    EXPECT_STREQ(neighborhoods[99]->family(0)->name(), "UserData100");
    EXPECT_EQ(statusLine(), "Loading Neighborhood 100");
}

}  // namespace
