#include "math/double/exp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double exp_words(arg64 x) __asm__("exp");

double exp_words(arg64 x) {
    Trips trips;
    return exp_kernel(value(x, trips.n[0], trips.n[1]));
}
