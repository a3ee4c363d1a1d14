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

constexpr PowSearch<u64, 52> search(pow_a1);

// Steps from the logarithm on, for a positive x given by its words (an
// infinity or a denormal reads as its fields stand).
template <double (*reduce)(double)>
double positive_power(const arg64 &x, double y) {
    // log2 x = m - p/16 + log2(g / A1[p]), g in [0.5, 1): g is x with the
    // exponent field 0x3FE, denormals not normalised.
    Trips trips;
    const int m = static_cast<int>(x.hi >> 20) - 1022;
    const double g = significand(x, trips.n[0]) * 0x1p-53;
    const int p = search((u64(0x3FE00000 | (x.hi & 0xFFFFF)) << 32) | x.lo);
    const double z = 2.0 * ((g - a1(p)) - kA2[(p - 1) / 2]) / (g + a1(p));
    const double v = z * z;
    const double r = z * v *
        (((0.0004344577567216312 * v + 0.002232142128592426) * v + 0.012500000000503799) * v +
         0.08333333333333322);
    constexpr double k = 0.4426950408889634;  // log2 e - 1
    const double u2 = z + ((r + r * k) + k * z);
    const double u1 = to_double(16 * m - p, trips.n[1]) * 0.0625;

    auto [i, w2] = sixteenths<reduce>(y, u1, u2, trips.n[2]);
    if (i > 16382) return kDoubleInf;
    if (i < -16350) return 0.0;
    // Unless 0 > W2, one sixteenth moves from W2 to I; without a branch.
    static constexpr double sixteenth[2] = {0.0, 0.0625};
    const unsigned move = !gt(0.0, w2);
    w2 = w2 - sixteenth[move];
    i += static_cast<i32>(move);
    const int big_m = i / 16 + static_cast<int>(i > 0);
    const int pp = 16 * big_m - i;
    const double zz = w2 * ((((((1.4928852680595609e-05 * w2 + 0.00015400290440989765) * w2 +
                                0.0013333541313585784) * w2 + 0.009618129059517241) * w2 +
                              0.055504108664085595) * w2 + 0.24022650695909537) * w2 +
                            0.6931471805599453);
    return scale2(a1(pp) + zz * a1(pp), big_m);
}

// Whether y, of unbiased exponent e >= 0, has no bit below the binary point.
bool integral(const arg64 &y, int e) {
    if (e >= 52) return true;
    return ((u64(y.hi & 0xFFFFF) << 32 | y.lo) & ((u64(1) << (52 - e)) - 1)) == 0;
}

// Every case, as the method takes them one by one.
[[gnu::noinline]] double general_power(const arg64 &xw, const arg64 &yw) {
    Trips trips;
    double x = value(xw, trips.n[0], trips.n[1]);
    const double y = value(yw, trips.n[2], trips.n[3]);
    if (eq(y, 0.0)) return 1.0;  // y NaN too
    if (eq(x, 1.0)) return x;    // a NaN x comes back

    // Integer powers by repeated squaring.
    const int e = static_cast<int>((yw.hi >> 20) & 0x7FF) - 1023;
    if (yw.lo == 0) {
        if (e >= 0 && ((e < 31 && (yw.hi & 0xFFFFF) == 0) || (e < 21 && integral(yw, e))))
            return __orvane_dtoi_c(x, to_i32(y));
    } else if (e > 20 && e < 31 && integral(yw, e)) {
        return __orvane_dtoi_c(x, to_i32(y));
    }
    if (lt(x, 0.0) && e >= 31 && integral(yw, e)) x = -x;  // result stays positive

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
    const double r = positive_power<reduce_any>(arg64{lo(x), hi(x)}, y);
    return negate ? -r : r;
}

}  // namespace

extern "C" ORV_EXPORT double pow_words(arg64 x, arg64 y) __asm__("pow");

double pow_words(arg64 x, arg64 y) {
    // The common case first: x positive, finite and not 1; y nonzero and
    // below 2^15 in magnitude, where no conversion of the method leaves
    // the 32-bit range, and not a whole number of 1 or more.
    const u32 ey = (y.hi >> 20) & 0x7FF;
    const bool x_plain = x.hi - 1 < 0x7FF00000 - 1 || (x.hi == 0 && x.lo != 0);
    const bool y_whole = ey >= 0x3FF && integral(y, static_cast<int>(ey) - 1023);
    if (x_plain && !(x.hi == 0x3FF00000 && x.lo == 0) && ey < 0x3FF + 15 &&
        ((y.hi << 1) | y.lo) != 0 && !y_whole) {
        Trips trips;
        return positive_power<reduce_small>(x, value(y, trips.n[0], trips.n[1]));
    }
    return general_power(x, y);
}
