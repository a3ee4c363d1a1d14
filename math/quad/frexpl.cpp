#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad frexpl(quad x, int *e) {
    if (eq(x.hi, 0.0)) {
        *e = 0;
        return make(0.0, 0.0);
    }
    int E = exponent_field(x.hi) - 1022;
    *e = E;
    double hi = with_exponent_field(x.hi, exponent_field(x.hi) - E);
    double lo = x.lo;
    if (!eq(lo, 0.0)) {
        int f = exponent_field(lo);
        lo = E < f ? with_exponent_field(lo, f - E) : 0.0;
    }
    return make(hi, lo);
}
