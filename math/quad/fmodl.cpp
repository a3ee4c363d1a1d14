#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad fmodl(quad a, quad b) {
    if (eq(b.hi, 0.0)) return quad_nan();
    quad t = qint(qdiv(a, b));
    return qsub(a, qmul(t, b));
}
