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
    const double y = value(yw, trips.n[0]), x = value(xw, trips.n[1]);
    if (eq(x, 0.0)) {  // a NaN x counts as zero
        if (eq(y, 0.0)) return domain_error(0.0);
        return lt(y, 0.0) ? -1.5707963267948966 : 1.5707963267948966;
    }
    return quadrant(absd(y / x), lt(x, 0.0), yw.hi >> 31);
}

}  // namespace

extern "C" ORV_EXPORT double atan2_words(arg64 yw, arg64 xw) __asm__("atan2");

double atan2_words(arg64 yw, arg64 xw) {
    // Both normal, and the quotient within reach of one scaling: |y / x| as
    // the quotient of the significands times 2^(ey - ex), which is exact
    // and commutes with the rounding of the division.
    const u32 ey = (yw.hi >> 20) & 0x7FF, ex = (xw.hi >> 20) & 0x7FF;
    const int d = static_cast<int>(ey) - static_cast<int>(ex);
    if (ey - 1 < 0x7FE && ex - 1 < 0x7FE && d >= -1040 && d <= 1071) {
        Trips trips;
        const double q = significand(yw, trips.n[0]) / significand(xw, trips.n[1]);
        return quadrant(scale2(q, d), xw.hi >> 31, yw.hi >> 31);
    }
    return general_atan2(yw, xw);
}
