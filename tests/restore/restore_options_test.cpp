#include "restore/restore_options.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(RestoreOptionsTest, OneThingIsDoneAtATime) {
    const struct {
        std::vector<const char*> arguments;
        const char* fault;
        const char* target;
        int neighborhood;
    } rows[] = {
        {{"--make", "--yes"}, "", "", 0},
        {{"--to", "2026-11-25 20.12.03", "--neighborhood", "3", "--yes"}, "", "2026-11-25 20.12.03", 3},
        {{"--neighborhood=100", "--to=a"}, "", "a", 100},
        {{"--to"}, "--to needs the name of a restore point, as --list shows it.", "", 0},
        {{"--to", "a", "--neighborhood", "101"}, "--neighborhood needs a number from 1 to 100.", "a", 101},
        {{"--to", "a", "--neighborhood", "1x"}, "--neighborhood needs a number from 1 to 100.", "a", 1},
        {{"--neighborhood", "1"}, "--neighborhood needs --to.", "", 1},
        {{"--list", "--make"}, "--list, --make and --to exclude each other.", "", 0},
        {{"--yes"}, "--yes needs --make or --to.", "", 0},
        {{"--list", "--game"}, "--game needs a directory.", "", 0},
        {{"--go"}, "There is no option --go.", "", 0},
    };
    for (const auto& row : rows) {
        std::vector<const char*> arguments = row.arguments;
        SCOPED_TRACE(arguments.front());
        arguments.insert(arguments.begin(), "tidewright-restore");
        const RestoreOptions options = restoreOptionsOf(static_cast<int>(arguments.size()), arguments.data());
        EXPECT_EQ(options.fault, row.fault);
        EXPECT_EQ(options.target, row.target);
        EXPECT_EQ(options.neighborhood, row.neighborhood);
    }
}

}  // namespace
