#include "include/errno.h"
#include "runtime/export.h"

ORV_EXPORT constinit int errno = 0;
