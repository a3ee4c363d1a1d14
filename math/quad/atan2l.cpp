#include "math/fp.h"
#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

// The quadrant and a first guess from FPATAN, then one Newton step on the
// tangent: a - (tan a - y/x) cos^2 a.
extern "C" ORV_EXPORT quad atan2l(quad y, quad x) {
    if (eq(x.hi, 0.0)) {
        if (eq(y.hi, 0.0)) return make(0.0, 0.0);
        return lt(y.hi, 0.0) ? negate(PIO2) : PIO2;
    }
    quad A = make(orv::m::fpatan(y.hi, x.hi), 0.0);
    quad T = qdiv(y, x);
    double c = fcos(A.hi);
    return qsub(A, qmuld(qsub(__qtrig(A, 3), T), c * c));
}
