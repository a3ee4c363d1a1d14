#include "math/double/sincos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double cos_words(arg64 x) __asm__("cos");

double cos_words(arg64 x) {
    Trips trips;
    return sincos_kernel(value(x, trips.n[0], trips.n[1]), 1);
}
