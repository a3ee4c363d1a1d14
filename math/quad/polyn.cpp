#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad _orvane_polyN(quad x, quad *c, int n) {
    quad r = c[0];
    for (int k = 1; k <= n; ++k) r = qadd(qmul(r, x), c[k]);
    return r;
}
