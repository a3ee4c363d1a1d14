// x to an integer power by squaring, from the low bit of the exponent.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double __orvane_dtoi_c(double x, int n) {
    if (n == 0) return 1.0;
    double r = 1.0;
    u32 m = n < 0 ? 0u - static_cast<u32>(n) : static_cast<u32>(n);
    for (;;) {
        const u32 b = m & 1;
        m >>= 1;
        if (m == 0) {
            x = x * r;
            break;
        }
        if (b) r = r * x;
        x = x * x;
    }
    return n < 0 ? 1.0 / x : x;
}
