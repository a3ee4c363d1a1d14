#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double copysign(double x, double y) {
    constexpr u64 sign = u64(1) << 63;
    if (eq(y, 0.0)) return absd(x);  // -0 and NaN too
    return from_bits((bits(x) & ~sign) | (bits(y) & sign));
}
