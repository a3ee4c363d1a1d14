#ifndef _ORV_TIME_H
#define _ORV_TIME_H

#include "_orv_defs.h"

_ORV_BEGIN

typedef long time_t;  /* signed seconds since 1970-01-01 00:00:00 UTC */
typedef long clock_t; /* milliseconds */

#define CLOCKS_PER_SEC 1000

/* tm_isdst holds 0 or the minutes of daylight shift that were added. */
struct tm {
    int tm_sec;
    int tm_min;
    int tm_hour;
    int tm_mday;
    int tm_mon;
    int tm_year;
    int tm_wday;
    int tm_yday;
    int tm_isdst;
    int __tm_reserved[2];
};

/* The zone record of gettz: UTC = local time + tz_minuteswest; tz_dsttime
   is the daylight shift in force now, in minutes. */
struct timezone {
    long tz_minuteswest;
    long tz_dsttime;
};

time_t time(time_t *tloc);
clock_t clock(void);
struct tm *gmtime(const time_t *timer);
struct tm *localtime(const time_t *timer);
time_t mktime(struct tm *tm);
char *asctime(const struct tm *tm);
char *ctime(const time_t *timer);
size_t strftime(char *s, size_t maxsize, const char *format, const struct tm *tm);
double difftime(time_t t1, time_t t0);

/* Calendar helpers; years count from 1900. */
int _daynum_(int year);
int _dpmonth_(int month, int year);
int _dstoff_(void);
int gettz(struct timezone *zone);

time_t _orv_time(time_t *tloc);
clock_t _orv_clock(void);
void __init_start_time(void);

_ORV_END

#endif
