// The quadrant from the signs, the angle from the processor's FPATAN.
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double atan2_words(arg64 yw, arg64 xw) __asm__("atan2");

double atan2_words(arg64 yw, arg64 xw) {
    Trips trips;
    const double y = value(yw, trips.n[0]), x = value(xw, trips.n[1]);
    if (eq(x, 0.0)) {  // a NaN x counts as zero
        if (eq(y, 0.0)) return domain_error(0.0);
        return lt(y, 0.0) ? -1.5707963267948966 : 1.5707963267948966;
    }
    const double r = round53(fpatan(absd(y / x), 1.0));
    // pi - r for x < 0, as 0 + r or pi + r times -1, exact; then -r when
    // the sign bit of y is set (-0 counts as negative). Without a branch.
    static constexpr double base[2] = {0.0, 3.141592653589793};
    const unsigned left = lt(x, 0.0);
    return negate_if(base[left] + r * kSign[left], yw.hi >> 31);
}
