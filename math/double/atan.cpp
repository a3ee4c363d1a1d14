// Reduction to [0, 2 - sqrt 3] by 1/x and by the pi/6 identity, then a
// rational kernel.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double atan_words(arg64 w) __asm__("atan");

double atan_words(arg64 w) {
    Trips trips;
    double x = value(w, trips.n[0], trips.n[1]);
    const bool negative = gt(0.0, x);
    if (negative) x = -x;
    int n = 0;
    if (gt(x, 1.0)) {
        x = 1.0 / x;
        n = 2;
    }
    if (!ge(0.2679491924311227, x)) {
        ++n;
        x = (((0.7320508075688773 * x - 0.5) - 0.5) + x) / (x + 1.7320508075688772);
    }
    if (gt(absd(x), kEps)) {
        const double g = x * x;
        const double pg = (((-0.8375829936815006 * g - 8.494624035132068) * g -
                            20.505855195861653) * g - 13.688768894191927) * g;
        const double qg = (((g + 15.024001160028575) * g + 59.57843614259735) * g +
                           86.15734959713025) * g + 41.06630668257578;
        x = x + x * pg / qg;
    }
    if (n > 1) x = -x;
    if (n == 1) x = x + 0.5235987755982989;
    else if (n == 2) x = x + 1.5707963267948966;
    else if (n == 3) x = x + 1.0471975511965979;
    return negative ? -x : x;
}
