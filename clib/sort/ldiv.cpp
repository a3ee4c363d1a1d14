#include "include/stdlib.h"
#include "runtime/export.h"

#include <cstddef>

static_assert(sizeof(ldiv_t) == 8 && offsetof(ldiv_t, quot) == 0 && offsetof(ldiv_t, rem) == 4);

extern "C" ORV_EXPORT ldiv_t ldiv(long numer, long denom) { return ldiv_t{numer / denom, numer % denom}; }
