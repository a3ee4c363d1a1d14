#include "include/time.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT double difftime(time_t t1, time_t t0) {
    return static_cast<double>(t1) - static_cast<double>(t0);
}
