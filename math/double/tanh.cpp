#include "math/double/exp.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double tanh_words(arg64 w) __asm__("tanh");

double tanh_words(arg64 w) {
    Trips trips;
    const double x = value(w, trips.n[0], trips.n[1]);
    const double y = absd(x);
    double r;
    if (!ge(19.0615474653985, y)) {
        r = 1.0;
    } else if (gt(y, 0.5493061443340549)) {  // ln 3 / 2
        r = (0.5 - 1.0 / (exp_kernel(y + y) + 1.0)) * 2.0;
    } else if (!ge(kEps, y)) {
        const double g = y * y;
        const double n = (-0.9643749277722548 * g - 99.22592967223608) * g - 1613.4119023996227;
        const double d = ((g + 112.74474380534949) * g + 2233.7720718962314) * g +
                         4840.235707198869;
        r = y + y * g * n / d;
    } else {
        r = y;
    }
    return lt(x, 0.0) ? -r : r;
}
