#include "save/backup_names.h"

#include "tests/save/saved_files.h"

namespace {

TEST(BackupNamesTest, HaveNoLeadingZerosSoThatSomeDaysShareTheirs) {
    const struct {
        SYSTEMTIME time;
        const char *date, *minute;
    } rows[] = {{timeOf(2002, 3, 5, 14, 7), "200235", "147"},
                {timeOf(2002, 12, 31, 0, 0), "20021231", "00"},
                {timeOf(2002, 1, 11, 11, 7), "2002111", "117"},
                {timeOf(2002, 11, 1, 1, 17), "2002111", "117"}};
    for (const auto& row : rows) {
        EXPECT_STREQ(dateText(row.time).c_str(), row.date);
        EXPECT_STREQ(timeText(row.time).c_str(), row.minute);
    }
    BackupClock clock;
    EXPECT_GE(clock.now().wYear, 2024);
}

}  // namespace
