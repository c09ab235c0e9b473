#include <time.h>

#include "platform/native/api/system.h"

namespace {

SYSTEMTIME systemTime(const tm& time, WORD milliseconds) {
    return {static_cast<WORD>(time.tm_year + 1900), static_cast<WORD>(time.tm_mon + 1),
            static_cast<WORD>(time.tm_wday),        static_cast<WORD>(time.tm_mday),
            static_cast<WORD>(time.tm_hour),        static_cast<WORD>(time.tm_min),
            static_cast<WORD>(time.tm_sec),         milliseconds};
}

}  // namespace

void GetSystemTime(SYSTEMTIME* time) {
    constexpr long nanosecondsPerMillisecond = 1'000'000;
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    tm utc = {};
    gmtime_r(&now.tv_sec, &utc);
    *time = systemTime(utc, static_cast<WORD>(now.tv_nsec / nanosecondsPerMillisecond));
}

BOOL SystemTimeToTzSpecificLocalTime(const TIME_ZONE_INFORMATION* zone, const SYSTEMTIME* utc, SYSTEMTIME* local) {
    tm calendar = {};
    calendar.tm_year = utc->wYear - 1900;
    calendar.tm_mon = utc->wMonth - 1;
    calendar.tm_mday = utc->wDay;
    calendar.tm_hour = utc->wHour;
    calendar.tm_min = utc->wMinute;
    calendar.tm_sec = utc->wSecond;
    const time_t seconds = timegm(&calendar);
    tzset();
    tm there = {};
    if (zone != nullptr || utc->wMonth - 1 != calendar.tm_mon || localtime_r(&seconds, &there) == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    *local = systemTime(there, utc->wMilliseconds);
    return TRUE;
}
