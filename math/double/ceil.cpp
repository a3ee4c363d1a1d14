#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double ceil(double x) {
    if (eq(x, 0.0)) return 0.0;
    if (lt(x, 0.0)) return -floor(-x);
    const double t = dint(x);
    return eq(t, x) ? t : t + 1.0;
}
