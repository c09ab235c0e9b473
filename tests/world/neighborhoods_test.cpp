// The walk over the installation's "UserData" directories.
#include "world/neighborhoods.h"

#include <gtest/gtest.h>

#include "gamefiles/neighborhood_file.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/status_line.h"

namespace {

TEST(Neighborhoods, OneThatCannotBeReadIsToldAndHidesTheRest) {
    const TempDirectory files;
    for (int number = 1; number <= 101; ++number) {
        const std::string directory = "UserData" + (number == 1 ? "" : std::to_string(number));
        files.write(directory + (number == 2 ? "" : "/neighborhood.iff"), makeNeighborhoodFile({}).bytes);
    }
    const AnsweredBox box = answerNextBox(IDOK);
    loadNeighborhoods((files.path() + "\\").c_str(), "C:\\tools");
    EXPECT_EQ(box->title + ": " + box->text, "Loading Error: Error loading Neighborhood 2");
    EXPECT_EQ(listedNeighborhoodCount(), 1);
    EXPECT_TRUE(!neighborhoods[1] && neighborhoods[99]) << "read, but never shown";
    EXPECT_EQ(statusLine(), "Loading Neighborhood 100") << "the last";
    files.remove("UserData2");
    loadNeighborhoods((files.path() + "\\").c_str(), "C:\\tools");
    EXPECT_EQ(statusLine(), "Loading Neighborhood 1") << "a gap ends the walk";
}

}  // namespace
