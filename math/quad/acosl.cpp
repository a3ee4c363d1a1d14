#include "include/math.h"
#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

// The double arccosine refined by one Newton step through the quad cosine;
// near |x| = 1, twice the arcsine of sin(angle/2) = sqrt((1 - |x|)/2),
// refined through the sine.
extern "C" ORV_EXPORT quad acosl(quad x) {
    if (!(ge(x.hi, -1.0) && ge(1.0, x.hi))) return quad_nan();  // a NaN fails both
    if (lt(absd(x.hi), 0.866)) {
        quad A = make(__asinacos(x.hi, 1), 0.0);
        return qadd(A, qdivd(qsub(__qtrig(A, 2), x), fsin(A.hi)));
    }
    quad v = sqrtl(qdivd(qsub(make(1.0, 0.0), fabsl(x)), 2.0));
    quad A = make(__asinacos(v.hi, 0), 0.0);
    quad h = qsub(A, qdivd(qsub(__qtrig(A, 1), v), fcos(A.hi)));
    quad r = qmuld(h, 2.0);
    return lt(x.hi, 0.0) ? qsub(PI, r) : r;
}
