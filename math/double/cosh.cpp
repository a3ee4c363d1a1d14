#include "math/double/exp.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double cosh_words(arg64 w) __asm__("cosh");

double cosh_words(arg64 w) {
    Trips trips;
    const double x = value(w, trips.n[0], trips.n[1]);
    const double z = exp_kernel(absd(x));
    return (z + 1.0 / z) * 0.5;
}
