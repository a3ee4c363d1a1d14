// x to an integer power by squaring, every product rounded to float.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float __orvane_ftoi_c(float x, int n) {
    if (n == 0) return 1.0f;
    float r = 1.0f;
    u32 m = n < 0 ? 0u - static_cast<u32>(n) : static_cast<u32>(n);
    for (;;) {
        const u32 b = m & 1;
        m >>= 1;
        if (m == 0) {
            x = to_float(static_cast<double>(x) * r);
            break;
        }
        if (b) r = to_float(static_cast<double>(r) * x);
        x = to_float(static_cast<double>(x) * x);
    }
    return n < 0 ? to_float(1.0 / x) : x;
}
