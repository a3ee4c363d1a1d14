#include "math/double/asinacos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double acos_words(arg64 x) __asm__("acos");

double acos_words(arg64 x) {
    Trips trips;
    return asinacos_kernel(value(x, trips.n[0], trips.n[1]), 1);
}
