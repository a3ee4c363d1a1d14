#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad sqrtl(quad x) {
    if (!ge(x.hi, 0.0)) return quad_nan();
    if (eq(x.hi, 0.0)) return make(0.0, 0.0);
    double r = x.hi;
    __asm__("fsqrt" : "+t"(r));
    // One Newton step from the double root, its error term exact in the
    // leading bits: (x - r^2) / 2r.
    quad sq = __orvane_qprod_c(r, r);
    double d = (((x.hi - sq.hi) - sq.lo) + x.lo) * 0.5;
    double c = d / r;
    double s = r + c;
    return make(s, (r - s) + c);
}
