// The dates in the names of backups, and the clock that they come from.
#ifndef SAVE_BACKUP_NAMES_H
#define SAVE_BACKUP_NAMES_H

#include "platform/fixed_text.h"
#include "platform/win32.h"

using DateText = FixedText<15>;

// Year, month and day, or hour and minute, as decimal numbers without leading zeros or separators, as backups have
// always been named: 5 March 2002 is 200235, 14:07 is 147.
DateText dateText(const SYSTEMTIME& time);
DateText timeText(const SYSTEMTIME& time);

// The clock that dates backups: the system's, in UTC, unless it is stopped at a time.
class BackupClock {
 public:
    SYSTEMTIME now() const;
    void stopAt(const SYSTEMTIME& time);
    void followSystem() { stopped_ = false; }

 private:
    bool stopped_ = false;
    SYSTEMTIME time_{};
};

BackupClock& backupClock();

#endif
