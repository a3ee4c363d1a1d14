#include "include/time.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT char *ctime(const time_t *timer) { return asctime(localtime(timer)); }
