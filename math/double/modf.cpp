#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double modf(double x, double *ip) {
    const double t = dint(x);
    *ip = t;
    return x - t;
}
