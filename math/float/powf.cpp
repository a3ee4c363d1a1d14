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

double reduce(double v) { return to_i32(16.0 * v) * 0.0625; }

constexpr double F(float v) { return v; }

}  // namespace

extern "C" ORV_EXPORT float powf(float xf, float yf) {
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

    const float xs = static_cast<float>(x);  // exact: x is a float or its negation
    const int m = fexp_field(xs) - 126;
    const double g = with_fexp_field(xs, 0x7E);
    int p = 0;
    if (ge(a1(8), g)) p = 8;
    if (ge(a1(p + 4), g)) p += 4;
    if (ge(a1(p + 2), g)) p += 2;
    p += 1;
    const double z = 2.0 * ((g - a1(p)) - F(kA2[(p - 1) / 2])) / (g + a1(p));
    const double v = z * z;
    const double r = z * v * F(0.08335754f);
    const double k = F(0.44269505f);
    const double u2 = z + ((r + r * k) + k * z);
    const double u1 = (16 * m - p) * 0.0625;

    const double y1 = reduce(y);
    const double y2 = y - y1;
    double w = u2 * y + y2 * u1;
    double w1 = reduce(w);
    double w2 = w - w1;
    w = w1 + u1 * y1;
    w1 = reduce(w);
    w2 = w2 + (w - w1);
    const double r16 = reduce(w2);
    i32 i = to_i32(16.0 * (w1 + r16));
    w2 = w2 - r16;
    if (i > 2046) return kFloatInf;
    if (i < -2014) return 0.0f;
    w2 = to_float(w2);
    if (!gt(0.0, w2)) {
        w2 = w2 - 0.0625;
        ++i;
    }
    w2 = to_float(w2);
    const int big_m = i / 16 + (i > 0 ? 1 : 0);
    const int pp = 16 * big_m - i;
    const double zz = w2 * ((F(0.054360382f) * w2 + F(0.2401851f)) * w2 + F(0.69314677f));
    const float res = add_fexp(to_float(a1(pp) + zz * a1(pp)), big_m);
    return negate ? -res : res;
}
