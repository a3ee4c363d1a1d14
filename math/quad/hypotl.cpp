#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad hypotl(quad x, quad y) {
    quad X = fabsl(x), Y = fabsl(y);
    if (eq(Y.hi, 0.0)) return X;
    if (eq(X.hi, 0.0)) return Y;
    // The smaller over the larger, so that no square can overflow.
    quad d = qsub(X, Y);
    if (gt(d.hi, 0.0)) {
        quad r = qdiv(Y, X);
        return qmul(X, sqrtl(qaddd(qmul(r, r), 1.0)));
    }
    quad r = qdiv(X, Y);
    return qmul(Y, sqrtl(qaddd(qmul(r, r), 1.0)));
}
