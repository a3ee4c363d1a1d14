#include "math/double/sincos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double sin_words(arg64 x) __asm__("sin");

double sin_words(arg64 x) {
    Trips trips;
    return sincos_kernel(value(x, trips.n[0], trips.n[1]), 0);
}
