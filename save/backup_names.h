// The dated names of backups, and the clock behind them.
#ifndef SAVE_BACKUP_NAMES_H
#define SAVE_BACKUP_NAMES_H

#include "platform/fixed_text.h"
#include "platform/win32.h"

using DateText = FixedText<15>;

// Year, month and day, or hour and minute, in decimal without leading zeros and without a separator, as backups have
// always been named: 5 March 2002 is 200235, 14:07 is 147.
DateText dateText(const SYSTEMTIME& time);
DateText timeText(const SYSTEMTIME& time);

// The clock that dates backups: the system's, in UTC, until somebody sets it to stand still.
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
