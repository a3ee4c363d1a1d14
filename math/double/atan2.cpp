// The quadrant from the signs, the angle from the processor's FPATAN.
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace {

// The angle of the quotient q = |y / x|, then the quadrant: pi - r for
// x < 0, as 0 + r or pi + r times -1, and -r when the sign bit of y is set
// (-0 counts as negative); without a branch. The arctangent comes with a
// 64-bit significand, and its product by 1 or -1 is what rounds it to
// double.
double quadrant(double q, unsigned left, unsigned y_sign) {
    static constexpr double base[2] = {0.0, 3.141592653589793};
    const double r = fpatan(q, 1.0);
    return negate_if(base[left] + r * kSign[left], y_sign);
}

[[gnu::noinline]] double general_atan2(const arg64 &yw, const arg64 &xw) {
    Trips trips;
    const double y = value(yw, trips.n[0], trips.n[1]), x = value(xw, trips.n[2], trips.n[3]);
    if (eq(x, 0.0)) {  // a NaN x counts as zero
        if (eq(y, 0.0)) return domain_error(0.0);
        return lt(y, 0.0) ? -1.5707963267948966 : 1.5707963267948966;
    }
    return quadrant(absd(y / x), lt(x, 0.0), yw.hi >> 31);
}

}  // namespace

extern "C" ORV_EXPORT double atan2_words(arg64 yw, arg64 xw) __asm__("atan2");

double atan2_words(arg64 yw, arg64 xw) {
    // Both of ordinary size: no zero, infinity or NaN to weigh.
    if (ordinary_size(yw) && ordinary_size(xw)) {
        Trips trips;
        const double y = value(yw, trips.n[0], trips.n[1]), x = value(xw, trips.n[2], trips.n[3]);
        return quadrant(absd(y / x), xw.hi >> 31, yw.hi >> 31);
    }
    return general_atan2(yw, xw);
}
