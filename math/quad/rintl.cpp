#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad rintl(quad x) {
    double h = rint_d(x.hi);
    if (eq(h, x.hi)) return normal_sum(h, rint_d(x.lo));
    // hi stood at a half: the low part says on which side of it x lies.
    double off = h - x.hi;
    if ((eq(off, 0.5) || eq(off, -0.5)) && lt(x.lo, 0.0)) h -= 1.0;
    return make(h, 0.0);
}
