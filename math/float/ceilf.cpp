#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float ceilf(float x) {
    if (eq(x, 0.0)) return 0.0f;
    if (lt(x, 0.0)) return -floorf(-x);
    const float t = aint(x);
    return eq(t, x) ? t : to_float(t + 1.0);
}
