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
    const double t = x * static_cast<double>(1.442695f);
    i32 n;
    const double xn = trunc_i32(t + kHalf[ge(t, 0.0)], &n);
    const double g = (x - xn * 0.693359375) - xn * static_cast<double>(-0.00021219444f);
    const double z = g * g;
    const double gp = g * (static_cast<double>(0.0041602887f) * z + 0.25);
    const double q = static_cast<double>(0.04998718f) * z + 0.5;
    return add_fexp(to_float(0.5 + gp / (q - gp)), n + 1);
}
