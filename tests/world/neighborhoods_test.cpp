// The walk over the installation's "UserData" directories.
#include "world/neighborhoods.h"

#include <gtest/gtest.h>

#include "sample/neighborhood_file.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"
#include "ui/status_line.h"

namespace {

TEST(Neighborhoods, OneThatCannotBeReadIsToldAndHidesTheRest) {
    const TempDirectory files;
    // The only family of each bears the directory's name.
    for (int number = 1; number <= 101; ++number) {
        const std::string name = "UserData" + (number == 1 ? "" : std::to_string(number));
        const Bytes file = makeNeighborhoodFile({.families = {{.name = name}}}).bytes;
        files.write(number == 2 ? name : name + "/neighborhood.iff", file);
    }
    const AnsweredBox box = answerNextBox(IDOK);
    loadNeighborhoods((files.path() + "\\").c_str(), "C:\\tools");
    EXPECT_EQ(box.title() + ": " + box.text(), "Loading Error: Error loading Neighborhood 2");
    EXPECT_EQ(listedNeighborhoodCount(), 1);
    ASSERT_TRUE(!neighborhoods[1] && neighborhoods[99]) << "read, though nobody will see it";
    EXPECT_STREQ(neighborhoods[99]->family(0)->name(), "UserData100");
    EXPECT_EQ(statusLine(), "Loading Neighborhood 100") << "the last";
}

}  // namespace
