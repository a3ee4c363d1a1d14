#include "include/stdlib.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT long labs(long value) {
    return value >= 0 ? value : static_cast<long>(0ul - static_cast<unsigned long>(value));
}
