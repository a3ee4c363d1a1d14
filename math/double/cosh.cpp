#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double cosh(double x) {
    const double z = exp(absd(x));
    return (z + 1.0 / z) * 0.5;
}
