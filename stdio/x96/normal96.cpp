// A wide integer to an x96, in place. Bits that fall off the bottom while
// the top word empties are dropped: no rounding, no sticky bit. The shift
// is counted from the leading one rather than taken a bit at a time.
#include <bit>

#include "stdio/x96/x96.h"

using namespace orv::x96f;

extern "C" ORV_EXPORT void _normal96(std::uint32_t* number) {
    std::uint32_t hi = number[0];
    std::uint64_t low = (static_cast<std::uint64_t>(number[1]) << 32) | number[2];
    if (hi == 0 && low == 0) return;
    int field = kBias + 63;  // an integer whose top bit is bit 63 of (mid, lo)
    if (hi != 0) {
        int s = 32 - std::countl_zero(hi);  // 1 to 32
        low = (low >> s) | (static_cast<std::uint64_t>(hi) << (64 - s));
        field += s;
    } else {
        int s = std::countl_zero(low);
        low <<= s;
        field -= s;
    }
    number[0] = make_head(0, field);
    number[1] = static_cast<std::uint32_t>(low >> 32);
    number[2] = static_cast<std::uint32_t>(low);
}
