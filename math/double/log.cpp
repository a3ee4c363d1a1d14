// Table-driven: ln x = m ln 2 + ln F + ln(1 + f/F), with F the nearest
// multiple of 1/128; near 1 a separate kernel keeps the relative error.
#include "math/double/tables.h"
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace {

double log_near_one(double x) {
    const double f = x - 1.0;
    const double g = 1.0 / (f + 2.0);
    const double u = 2.0 * f * g;
    const double v = u * u;
    const double q = u * v *
        (((0.000434887777707615 * v + 0.00223213998791945) * v + 0.0125000000037718) * v +
         0.0833333333333318);
    const double u1 = from_bits(bits(u) & ~u64(0x1FFFFFFF));
    const double f1 = from_bits(bits(f) & ~u64(0x1FFFFFFF));
    const double f2 = f - f1;
    const double u2 = ((2.0 * (f - u1) - u1 * f1) - u1 * f2) * g;
    return u1 + (u2 + q);
}

}  // namespace

extern "C" ORV_EXPORT double log(double x) {
    if (!gt(x, 0.0)) {
        if (lt(x, 0.0)) return domain_error(kDoubleNan);  // also NaN
        return range_error(-kDoubleInf);
    }
    if (lt(from_bits(0x3FEE0FABFBC702A6), x) && lt(x, from_bits(0x3FF1082B577D34F0)))
        return log_near_one(x);
    const int m = exp_field(x) - 1023;
    if (m == 0x400) return kDoubleInf;
    // Y is x with the exponent field 0x3FF; a denormal keeps its fraction
    // field as if the hidden bit were set.
    const double y = m == -1023 ? with_exp_field(x, 0x3FF) : scale2(x, -m);
    int j = static_cast<int>((hi(x) >> 13) & 0x7F);
    double f = y - (1.0 + j * (1.0 / 128));
    if (lt(1.0 / 256, f)) {
        ++j;
        f = f - 1.0 / 128;
    }
    const double u = table(log_inv, j) * f;
    const double a = m * table(log_lead, 128) + table(log_lead, j);
    const double b = m * table(log_trail, 128) + table(log_trail, j);
    const double q = u * u *
        ((((-0.166670608463719 * u + 0.200003251399607) * u - 0.24999999996252) * u +
          0.333333333316143) * u - 0.5);
    return a + (u + (b + q));
}
