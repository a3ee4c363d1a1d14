// The natural logarithm, Tang's table-driven method: ln x = m ln 2 + ln F
// + ln(1 + f/F), with F the nearest multiple of 1/128 to the significand;
// near 1 a separate kernel keeps the relative error. Inline, so that log10
// shares it without a call.
#pragma once

#include "math/double/tables.h"
#include "math/fp.h"

namespace orv::m {

inline double log_near_one(double x) {
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

// The table step for m = exponent field - 1023 and the fraction bits of x,
// read as if the hidden bit were set (so denormals are not normalised).
inline double log_table(const arg64 &x) {
    Trips trips;
    const i32 m = static_cast<i32>(x.hi >> 20) - 1023;
    // j: the top 7 fraction bits; f = Y - F, exact, is the fraction below
    // them. Above 2^-8 F moves up to the next multiple of 1/128 and f goes
    // negative by 2^-7; a tie stays below. All on the integer 2^52 f,
    // whose high part FILD takes with a carry for the signed low word.
    const u32 low13 = x.hi & 0x1FFF;
    const u32 up = (low13 > 0x1000) | ((low13 == 0x1000) & (x.lo != 0));
    const int j = static_cast<int>(((x.hi >> 13) & 0x7F) + up);
    const i32 top = static_cast<i32>(low13 - (up << 13)) + static_cast<i32>(x.lo >> 31);
    const double f = (to_double(top, trips.n[0]) * 4294967296.0 +
                      fild(reinterpret_cast<const i32 &>(x.lo))) * 0x1p-52;
    const double md = to_double(m, trips.n[1]);
    const double u = table(log_inv, j) * f;
    const double a = md * table(log_lead, 128) + table(log_lead, j);
    const double b = md * table(log_trail, 128) + table(log_trail, j);
    const double q = u * u *
        ((((-0.166670608463719 * u + 0.200003251399607) * u - 0.24999999996252) * u +
          0.333333333316143) * u - 0.5);
    return a + (u + (b + q));
}

inline double log_kernel(const arg64 &w) {
    Trips trips;
    const u64 b = (u64(w.hi) << 32) | w.lo;
    // Positive and finite, denormals included: the table step, or near 1
    // (between exp(-1/16) and exp(1/16), bounds excluded) its own kernel.
    if (b - 1 < 0x7FF0000000000000 - 1) {
        if (b - 0x3FEE0FABFBC702A7 < 0x3FF1082B577D34F0 - 0x3FEE0FABFBC702A7)
            return log_near_one(normal_value(w, trips.n[0]));
        return log_table(w);
    }
    const double x = stored_value(w.hi, w.lo);
    if (!gt(x, 0.0)) {
        if (lt(x, 0.0)) return domain_error(kDoubleNan);  // also NaN
        return range_error(-kDoubleInf);
    }
    return kDoubleInf;  // m = 0x400
}

}  // namespace orv::m
