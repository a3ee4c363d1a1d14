#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad ldexpl(quad x, int n) {
    return make(ldexp_d(x.hi, n), ldexp_d(x.lo, n));
}
