#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float floorf(float x) {
    if (eq(x, 0.0)) return 0.0f;
    if (lt(x, 0.0)) return -ceilf(-x);
    return aint(x);
}
