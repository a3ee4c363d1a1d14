#ifndef _ORV_SYS_UTIME_H
#define _ORV_SYS_UTIME_H

#include "../time.h"

struct utimbuf {
    time_t actime;
    time_t modtime;
};

_ORV_BEGIN

int _utime(const char *path, const struct utimbuf *times);

_ORV_END

#endif
