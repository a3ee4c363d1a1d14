// Truncation to an integral value, on the bits alone.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace orv::m {

double dint(double x) {
    const int e = exp_field(x);
    u32 h = hi(x), l = lo(x);
    if (e > 0x433) return x;  // integral already, or infinity or NaN
    if (e < 0x3FF) return 0.0;  // a fraction: +0 whatever the sign
    if (e > 0x413) {
        l &= 0xFFFFFFFFu << (0x433 - e);
    } else if (e == 0x413) {
        l = 0;
    } else {
        l = 0;
        h &= 0xFFFFFFFFu << (0x413 - e);
    }
    return from_words(h, l);
}

}  // namespace orv::m

extern "C" ORV_EXPORT double __dint(double x) { return dint(x); }
