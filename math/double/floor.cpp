// floor and ceil call each other for negative arguments.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double floor(double x) {
    if (eq(x, 0.0)) return 0.0;
    if (lt(x, 0.0)) return -ceil(-x);
    return dint(x);
}
