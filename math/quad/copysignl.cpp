#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad copysignl(quad x, quad y) {
    // Each half is treated by itself: the pair's value is not carried over.
    constexpr std::uint64_t sign = 0x8000000000000000ull;
    if (eq(y.hi, 0.0))
        return make(from_bits(bits(x.hi) & ~sign), from_bits(bits(x.lo) & ~sign));
    return make(from_bits((bits(x.hi) & ~sign) | (bits(y.hi) & sign)),
                from_bits((bits(x.lo) & ~sign) | (bits(y.lo) & sign)));
}
