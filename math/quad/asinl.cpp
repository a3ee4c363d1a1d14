#include "include/math.h"
#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

// The double arcsine refined by one Newton step through the quad sine, or,
// near |x| = 1 where the sine is flat, through the cosine of the angle
// whose cosine is sqrt(1 - x^2).
extern "C" ORV_EXPORT quad asinl(quad x) {
    if (!(ge(x.hi, -1.0) && ge(1.0, x.hi))) return quad_nan();  // a NaN fails both
    if (lt(absd(x.hi), 0.866)) {
        quad A = make(__asinacos(x.hi, 0), 0.0);
        return qadd(A, qdivd(qsub(x, __qtrig(A, 1)), fcos(A.hi)));
    }
    quad v = sqrtl(qsub(make(1.0, 0.0), qmul(x, x)));
    quad A = make(__asinacos(v.hi, 1), 0.0);
    quad r = qadd(A, qdivd(qsub(__qtrig(A, 2), v), fsin(A.hi)));
    return lt(x.hi, 0.0) ? negate(r) : r;
}
