// Truncation of a float to an integral value, on the bits alone.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace orv::m {

float aint(float x) {
    const int e = fexp_field(x);
    if (e > 0x96) return x;   // integral already, or infinity or NaN
    if (e < 0x7F) return 0.0f;  // a fraction: +0 whatever the sign
    return from_fbits(fbits(x) & (0xFFFFFFFFu << (0x96 - e)));
}

}  // namespace orv::m

extern "C" ORV_EXPORT float __aint(float x) { return aint(x); }
