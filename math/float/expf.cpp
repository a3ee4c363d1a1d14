// As exp, with a shorter kernel; the result is rounded to float before
// the exponent is added.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float expf(float xf) {
    const double x = xf;
    if (!ge(from_fbits(0x42B00F35), x)) return static_cast<float>(range_error(kFloatInf));
    if (gt(from_fbits(0xC2AFF02E), x)) return 0.0f;
    Trips trips;
    const double t = x * static_cast<double>(1.442695f);
    // Nearest, ties away from zero; |t| stays below 128 here.
    const double xn = trunc_small(t + kHalf[ge(t, 0.0)]);
    const i32 n = integral_to_i32(xn, trips.n[0]);
    const double g = (x - xn * 0.693359375) - xn * static_cast<double>(-0.00021219444f);
    const double z = g * g;
    const double gp = g * (static_cast<double>(0.0041602887f) * z + 0.25);
    const double q = static_cast<double>(0.04998718f) * z + 0.5;
    const double r = 0.5 + gp / (q - gp);
    // r lies in [0.35, 0.71], so from n + 1 = -124 up the result is a
    // normal float, and adding n + 1 to the exponent field of the stored r
    // is scaling by 2^(n+1), which commutes with the rounding. Below, the
    // field can reach 0 and the bits tell what comes.
    if (n + 1 >= -124) return to_float(scale2(r, n + 1), trips.f[0]);
    return add_fexp(to_float(r, trips.f[0]), n + 1);
}
