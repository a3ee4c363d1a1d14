// A wide integer to an x96, in place. Bits that fall off the bottom while
// the top word empties are dropped: no rounding, no sticky bit.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

extern "C" ORV_EXPORT void _normal96(std::uint32_t* number) {
    std::uint32_t hi = number[0], mid = number[1], lo = number[2];
    if ((hi | mid | lo) == 0) return;
    int field = kBias + 63;  // an integer whose top bit is bit 63 of (mid, lo)
    while (hi != 0) {
        shift_right96(hi, mid, lo);
        ++field;
    }
    while (!(mid & kLeadingOne)) {
        mid = (mid << 1) | (lo >> 31);
        lo <<= 1;
        --field;
    }
    number[0] = make_head(0, field);
    number[1] = mid;
    number[2] = lo;
}
