#include "math/double/asinacos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double asin_words(arg64 x) __asm__("asin");

double asin_words(arg64 x) {
    Trips trips;
    return asinacos_kernel(value(x, trips.n[0], trips.n[1]), 0);
}
