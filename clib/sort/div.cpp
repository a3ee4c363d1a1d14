#include "include/stdlib.h"
#include "runtime/export.h"

#include <cstddef>

static_assert(sizeof(div_t) == 8 && offsetof(div_t, quot) == 0 && offsetof(div_t, rem) == 4);

// One truncating division; a zero divisor traps as the processor does.
extern "C" ORV_EXPORT div_t div(int numer, int denom) { return div_t{numer / denom, numer % denom}; }
