#include "math/double/exp.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double sinh_words(arg64 w) __asm__("sinh");

double sinh_words(arg64 w) {
    Trips trips;
    const double x = value(w, trips.n[0], trips.n[1]);
    const bool negative = gt(0.0, x);
    const double y = absd(x);
    if (!ge(1.0, y)) {
        const double z = exp_kernel(y);
        const double r = (z - 1.0 / z) * 0.5;
        return negative ? -r : r;
    }
    if (gt(y, kEps)) {
        const double g = x * x;
        const double n = (((-0.789661274173571 * g - 163.7579820263075) * g -
                           11563.521196851769) * g - 351812.8343017712) * g * x;
        const double d = ((g - 277.735231196507) * g + 36162.72310942184) * g -
                         2110877.0058106272;
        return x + n / d;
    }
    return x;
}
