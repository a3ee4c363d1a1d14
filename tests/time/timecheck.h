/* What the time tests share: a calendar record as one comparable text,
   and tables of integer answers. */
#ifndef ORV_TEST_TIMECHECK_H
#define ORV_TEST_TIMECHECK_H

#include <time.h>

#include "harness.h"

/* A row: a call made as the table is built, named as written, and the
   integer it must answer. */
typedef struct { const char *what; int line; long long got, want; } irow;
#define IR(call, want) {#call, __LINE__, (long long)(call), want}
static inline void check_irows(const irow *r, unsigned n, const char *file) {
    for (; n--; ++r) t_check_int(r->got, r->want, r->what, file, r->line);
}
#define CHECK_IROWS(rows) check_irows(rows, sizeof rows / sizeof rows[0], __FILE__)

/* "Y-M-D h:m:s wday yday isdst", in a buffer of its own. */
static inline const char *text_of(const struct tm *r) {
    static char buf[96];
    char *p = buf;
    const int v[9] = {r->tm_year + 1900, r->tm_mon + 1, r->tm_mday, r->tm_hour, r->tm_min,
                      r->tm_sec, r->tm_wday, r->tm_yday, r->tm_isdst};
    static const char sep[] = "-- ::   ";
    for (int i = 0; i < 9; ++i) {
        char d[12];
        int n = 0, x = v[i] < 0 ? -v[i] : v[i];
        do d[n++] = (char)('0' + x % 10); while (x /= 10);
        if (v[i] < 0) *p++ = '-';
        while (n) *p++ = d[--n];
        if (i < 8) *p++ = sep[i];
    }
    *p = 0;
    return buf;
}

#endif
