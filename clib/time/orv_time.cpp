#include "clib/time/stamp.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT time_t _orv_time(time_t *tloc) {
    time_t seconds = orv::cal::current_stamp().seconds;
    if (tloc) *tloc = seconds;
    return seconds;
}

extern "C" ORV_EXPORT time_t time(time_t *tloc) { return _orv_time(tloc); }
