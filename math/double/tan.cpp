// Reduction by multiples of pi/2 on the signed argument, then a rational
// kernel whose numerator and denominator swap on odd quadrants.
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double tan_words(arg64 w) __asm__("tan");

double tan_words(arg64 w) {
    Trips trips;
    const double x = value(w, trips.n[0], trips.n[1]);
    if (!ge(149078417.58088, absd(x))) return 0.0;
    // |x| 2/pi + 1/2 stays below 10^8 here; the sign does not change the
    // parity of n.
    const double xa = trunc_small_pos(absd(x) * 0.6366197723675814 + 0.5);
    const double xn = xa * kSign[gt(0.0, x)];
    const i32 n = integral_to_i32(xa, trips.n[2]);
    const double f = (x - xn * 1.57080078125) - xn * -4.454455103380769e-06;
    double num = f, den = 1.0;
    if (!lt(absd(f), kEps)) {
        const double g = f * f;
        num = f + f * g *
            ((-1.7861707342254428e-05 * g + 0.003424887823589059) * g - 0.13338350006421962);
        den = (((4.981943399378651e-07 * g - 0.00031181531907010027) * g +
                0.025663832289440112) * g - 0.46671683339755293) * g + 1.0;
    }
    // num / den on even n, den / -num on odd n, chosen without a branch
    const double parts[3] = {num, den, -num};
    return parts[n & 1] / parts[1 + (n & 1)];
}
