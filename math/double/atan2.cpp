// The quadrant from the signs, the angle from the processor's FPATAN.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double atan2(double y, double x) {
    if (eq(x, 0.0)) {  // a NaN x counts as zero
        if (eq(y, 0.0)) return domain_error(0.0);
        return lt(y, 0.0) ? -1.5707963267948966 : 1.5707963267948966;
    }
    double r = to_double(fpatan(absd(y / x), 1.0));
    if (lt(x, 0.0)) r = 3.141592653589793 - r;
    if (hi(y) >> 31) r = -r;  // the sign bit: -0 counts as negative
    return r;
}
