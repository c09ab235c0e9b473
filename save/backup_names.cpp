#include "save/backup_names.h"

#include <cstdio>

DateText dateText(const SYSTEMTIME& time) {
    char text[16];
    std::snprintf(text, sizeof text, "%u%u%u", unsigned{time.wYear}, unsigned{time.wMonth}, unsigned{time.wDay});
    return DateText(text);
}

DateText timeText(const SYSTEMTIME& time) {
    char text[16];
    std::snprintf(text, sizeof text, "%u%u", unsigned{time.wHour}, unsigned{time.wMinute});
    return DateText(text);
}

SYSTEMTIME BackupClock::now() const {
    if (stopped_) return time_;
    SYSTEMTIME time{};
    GetSystemTime(&time);
    return time;
}

void BackupClock::stopAt(const SYSTEMTIME& time) {
    stopped_ = true;
    time_ = time;
}

BackupClock& backupClock() {
    static BackupClock clock;
    return clock;
}
