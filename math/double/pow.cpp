// x^y as 2^(y log2 x), with log2 x split into a multiple of 1/16 and a
// small remainder, and the product carried in sixteenths so that the
// integral part of the result's exponent is exact.
#include "include/math.h"
#include "math/double/tables.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace {

// The parts of 2^(-(2k+1)/16) that the odd entries of A1 leave out.
constexpr double kA2[8] = {
    -5.312590645178972e-17, 1.4799359654427136e-17, 1.235990476633475e-17,
    -1.745565497701662e-17, 3.848917712323541e-17,  2.325613659981407e-17,
    4.456070928915423e-17,  4.277177570455315e-17,
};

double a1(int j) { return table(pow_a1, j); }

// The value truncated to a multiple of 1/16.
double reduce(double v) {
    i32 n;
    return trunc_i32(16.0 * v, &n) * 0.0625;
}

// Whether y, of unbiased exponent e >= 0, has no bit below the binary point.
bool integral(double y, int e) {
    if (e >= 52) return true;
    return (bits(y) & ((u64(1) << (52 - e)) - 1)) == 0;
}

}  // namespace

extern "C" ORV_EXPORT double pow(double x, double y) {
    if (eq(y, 0.0)) return 1.0;  // y NaN too
    if (eq(x, 1.0)) return x;    // a NaN x comes back

    // Integer powers by repeated squaring.
    const u32 yh = hi(y), yl = lo(y);
    const int e = exp_field(y) - 1023;
    if (yl == 0) {
        if (e >= 0 && ((e < 31 && (yh & 0xFFFFF) == 0) || (e < 21 && integral(y, e))))
            return __orvane_dtoi_c(x, to_i32(y));
    } else if (e > 20 && e < 31 && integral(y, e)) {
        return __orvane_dtoi_c(x, to_i32(y));
    }
    if (lt(x, 0.0) && e >= 31 && integral(y, e)) x = -x;  // result stays positive

    bool negate = false;
    if (!gt(x, 0.0)) {
        if (lt(x, 0.0)) {
            const i32 k = to_i32(y);
            if (ne(static_cast<double>(k), y)) return domain_error(kDoubleNan);
            x = -x;
            negate = k & 1;
        } else {
            if (ge(y, 0.0)) return 0.0;
            return domain_error(kDoubleInf);
        }
    }

    // log2 x = m - p/16 + log2(g / A1[p]), g in [0.5, 1).
    const int field = exp_field(x);
    const int m = field - 1022;
    // Denormals and infinities by their bits: neither is normalised.
    const double g = field == 0 || field == 0x7FF ? with_exp_field(x, 0x3FE) : scale2(x, -m);
    int p = 0;
    if (ge(a1(8), g)) p = 8;
    if (ge(a1(p + 4), g)) p += 4;
    if (ge(a1(p + 2), g)) p += 2;
    p += 1;
    const double z = 2.0 * ((g - a1(p)) - kA2[(p - 1) / 2]) / (g + a1(p));
    const double v = z * z;
    const double r = z * v *
        (((0.0004344577567216312 * v + 0.002232142128592426) * v + 0.012500000000503799) * v +
         0.08333333333333322);
    constexpr double k = 0.4426950408889634;  // log2 e - 1
    const double u2 = z + ((r + r * k) + k * z);
    const double u1 = (16 * m - p) * 0.0625;

    // y log2 x in sixteenths: I/16 + W2.
    const double y1 = reduce(y);
    const double y2 = y - y1;
    double w = u2 * y + y2 * u1;
    double w1 = reduce(w);
    double w2 = w - w1;
    w = w1 + u1 * y1;
    w1 = reduce(w);
    w2 = w2 + (w - w1);
    const double r16 = reduce(w2);
    i32 i = integral_to_i32(16.0 * (w1 + r16));  // sixteenths: integral already
    w2 = w2 - r16;
    if (i > 16382) return kDoubleInf;
    if (i < -16350) return 0.0;  // also every conversion out of range above
    // Unless 0 > W2, one sixteenth moves from W2 to I; without a branch.
    constexpr double sixteenth[2] = {0.0, 0.0625};
    const unsigned move = !gt(0.0, w2);
    w2 = w2 - sixteenth[move];
    i += static_cast<i32>(move);
    const int big_m = i / 16 + static_cast<int>(i > 0);
    const int pp = 16 * big_m - i;
    const double zz = w2 * ((((((1.4928852680595609e-05 * w2 + 0.00015400290440989765) * w2 +
                                0.0013333541313585784) * w2 + 0.009618129059517241) * w2 +
                              0.055504108664085595) * w2 + 0.24022650695909537) * w2 +
                            0.6931471805599453);
    const double res = scale2(a1(pp) + zz * a1(pp), big_m);
    return negate ? -res : res;
}
