// The x96 quotient by restoring division, one quotient bit a pass. The
// first bit is made to be 1, so 95 passes leave the leading one at bit 94
// and 31 bits below the 64 of the result to round with. The remainder is
// not consulted for rounding. A zero divisor is not tested.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

namespace orv {
namespace {

struct Wide {
    std::uint32_t hi, mid, lo;
};

// A significand shifted right by one within 96 bits, leaving room for the
// remainder's doubling.
Wide halved_significand(const std::uint32_t* x) {
    return {x[1] >> 1, (x[1] << 31) | (x[2] >> 1), x[2] << 31};
}

bool at_least(const Wide& r, const Wide& d) {
    if (r.hi != d.hi) return r.hi > d.hi;
    if (r.mid != d.mid) return r.mid > d.mid;
    return r.lo >= d.lo;
}

constexpr int kPasses = 95;

}  // namespace
}  // namespace orv

extern "C" ORV_EXPORT void _divx(const std::uint32_t* a, const std::uint32_t* b,
                                 std::uint32_t* result) {
    using namespace orv;
    int difference = exponent_field(a[0]) - exponent_field(b[0]);
    if (difference < -16382) {
        set_zero(result);
        return;
    }
    std::uint32_t sign = (a[0] ^ b[0]) & kSign;
    Wide r = halved_significand(a), d = halved_significand(b);
    Wide q = {0, 0, 0};
    for (int pass = 0; pass < kPasses; ++pass) {
        bool take = at_least(r, d);
        if (pass == 0 && !take) {
            shift_left96(r.hi, r.mid, r.lo);
            --difference;
            take = true;
        }
        if (take) {
            sub96(r.hi, r.mid, r.lo, d.lo);
            sub64(r.hi, r.mid, d.mid);
            r.hi -= d.hi;
        }
        shift_left96(q.hi, q.mid, q.lo);
        q.lo |= take ? 1 : 0;
        shift_left96(r.hi, r.mid, r.lo);
    }
    // Bit 30 of the low word is the rounding bit, bit 31 the last kept.
    bool tie_on_even = (q.lo & 0xBFFFFFFFu) == 0;
    if ((q.lo & 0x40000000u) && !tie_on_even) {
        add96(q.hi, q.mid, q.lo, 0x80000000u);
        if (q.hi & 0x80000000u) {
            shift_right96(q.hi, q.mid, q.lo);
            ++difference;
        }
    }
    result[0] = make_head(sign, difference + kBias);
    result[1] = (q.hi << 1) | (q.mid >> 31);
    result[2] = (q.mid << 1) | (q.lo >> 31);
}
