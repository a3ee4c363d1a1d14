// As pow, with float tables and shorter kernels; the integer powers are
// recognised on the 32-bit pattern of y.
#include "include/math.h"
#include "math/float/tables.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace {

constexpr float kA2[8] = {
    4.922664e-09f, -4.617885e-09f, 4.9181086e-09f, -2.2504494e-08f,
    -5.0616746e-09f, 2.248419e-08f, 2.6931112e-08f, 2.416735e-08f,
};

double a1(int j) { return table(powf_a1, j); }

constexpr PowSearch<u32, 23> search(powf_a1);

constexpr double F(float v) { return v; }

// Steps from the logarithm on, for a positive x given by its bits (a
// denormal reads as its fields stand).
template <double (*reduce)(double)>
float positive_power(u32 x, double y) {
    Trips trips;
    // g is x with the exponent field 0x7E, in [0.5, 1).
    const int m = static_cast<int>(x >> 23) - 126;
    const double g = to_double(static_cast<i32>((x & 0x7FFFFF) | 0x800000), trips.n[0]) * 0x1p-24;
    const int p = search(0x3F000000 | (x & 0x7FFFFF));
    const double z = 2.0 * ((g - a1(p)) - F(kA2[(p - 1) / 2])) / (g + a1(p));
    const double v = z * z;
    const double r = z * v * F(0.08335754f);
    const double k = F(0.44269505f);
    const double u2 = z + ((r + r * k) + k * z);
    const double u1 = to_double(16 * m - p, trips.n[1]) * 0.0625;

    auto [i, w2] = sixteenths<reduce>(y, u1, u2, trips.n[2]);
    if (i > 2046) return kFloatInf;
    if (i < -2014) return 0.0f;
    w2 = to_float(w2, trips.f[0]);
    // Unless 0 > W2, one sixteenth moves from W2 to I; without a branch.
    static constexpr double sixteenth[2] = {0.0, 0.0625};
    const unsigned move = !gt(0.0, w2);
    w2 = to_float(w2 - sixteenth[move], trips.f[1]);
    i += static_cast<i32>(move);
    const int big_m = i / 16 + (i > 0 ? 1 : 0);
    const int pp = 16 * big_m - i;
    const double zz = w2 * ((F(0.054360382f) * w2 + F(0.2401851f)) * w2 + F(0.69314677f));
    // r is stored as a float and M added to its exponent field: the result
    // is a normal float for every I that gets here, so scaling by 2^M
    // before the rounding gives the same.
    return to_float(scale2(a1(pp) + zz * a1(pp), big_m), trips.f[2]);
}

// The arguments as the caller left them: the bits and the value are both
// read from there, rather than from copies that the compiler would make.
union arg32 {
    float value;
    u32 bits;
};

// Every case, as the method takes them one by one.
[[gnu::noinline]] float general_power(const arg32 &xa, const arg32 &ya) {
    const float xf = xa.value, yf = ya.value;
    const double y = yf;
    double x = xf;
    if (eq(y, 0.0)) return 1.0f;
    if (eq(x, 1.0)) return xf;

    const int e = fexp_field(yf) - 127;
    const u32 frac = fbits(yf) & 0x7FFFFF;
    if (e >= 0 && ((e < 31 && frac == 0) ||
                   (e < 24 && (e >= 23 || (frac & ((u32(1) << (23 - e)) - 1)) == 0))))
        return __orvane_ftoi_c(xf, to_i32(y));
    if (e >= 31 && lt(x, 0.0)) x = -x;

    bool negate = false;
    if (!gt(x, 0.0)) {
        if (lt(x, 0.0)) {
            const i32 k = to_i32(y);
            if (ne(static_cast<double>(k), y)) return static_cast<float>(domain_error(kFloatNan));
            x = -x;
            negate = k & 1;
        } else {
            if (gt(y, 0.0)) return 0.0f;
            return static_cast<float>(domain_error(kFloatInf));
        }
    }
    // exact: x is a float or its negation
    const float res = positive_power<reduce_any>(fbits(static_cast<float>(x)), y);
    return negate ? -res : res;
}

}  // namespace

extern "C" ORV_EXPORT float powf_words(arg32 x, arg32 y) __asm__("powf");

float powf_words(arg32 x, arg32 y) {
    // The common case first: x positive, finite and not 1; y nonzero and
    // below 2^15 in magnitude, where no conversion of the method leaves
    // the 32-bit range, and not a whole number of 1 or more.
    const u32 ey = (y.bits >> 23) & 0xFF;
    const bool y_whole =
        ey >= 127 && (ey >= 150 || (y.bits & ((u32(1) << (150 - ey)) - 1)) == 0);
    if (x.bits - 1 < 0x7F800000 - 1 && x.bits != 0x3F800000 && ey < 127 + 15 &&
        (y.bits << 1) != 0 && !y_whole)
        return positive_power<reduce_small>(x.bits, y.value);
    return general_power(x, y);
}
