#include "sample/installation.h"

#include "tests/support/iff_walk.h"
#include "tests/support/temp_directory.h"

namespace {

using namespace std::string_literals;

TEST(NeighborhoodFileTest, ARecordGoesOnBehindThePersonData) {
    const Bytes record = sampleNeighborRecord({.neighborId = 0x0102, .relationships = {{7, {-1}}}});
    EXPECT_EQ(textAt(record, 186), "\2\1\x01\x11WT\xFF\xFF\xFF\xFF\1\0\0\0\1\0\0\0\7\0\0\0\1\0\0\0\xFF\xFF\xFF\xFF"s);
    const std::string later = textAt(sampleNeighborRecord({.later = true, .recordName = "robots", .gapByte = 7}));
    EXPECT_EQ(later.substr(0, 32), "\1\0\0\0\x0A\0\0\0\x09\0\0\0robots\0\0\0\0\0\0\7\0\0\0\7\7\7\7"s);
    EXPECT_EQ(later.substr(188), std::string(352, '\7') + "\1\0\x01\x11WT\xFF\xFF\xFF\xFF\0\0\0\0"s);
    EXPECT_EQ(textAt(sampleFamilyChunk({.number = 3, .members = {}}).content, 4, 32),
              "\4\0\0\0IMAF\1\0\0\0\3\0\0\0\x20\x4E\0\0\x98\x3A\0\0\2\0\0\0\x09\0\0\0"s);
}

TEST(InstallationTest, IsNeverWrittenOverThatOfOthers) {
    const TempDirectory files;
    files.write("others/system.reg", "a player's own");
    EXPECT_FALSE(writeInstallation(files.path("others")));
    EXPECT_EQ(treeOf(files.path("others")), (Tree{{"system.reg", bytesFrom("a player's own")}}));
}

}  // namespace
