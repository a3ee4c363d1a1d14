// The x96 quotient. Its bits are those of restoring division, one
// quotient bit a pass: the first bit is made to be 1, so 95 passes leave
// the leading one at bit 94 and 31 bits below the 64 of the result to
// round with. The remainder is not consulted for rounding, and a zero
// divisor is not tested.
//
// For normalised operands the 95 bits are floor(a' 2^94 / b), a' being
// a's significand, doubled when it is below b's; long division by 32-bit
// words gives them in three steps. Operands without their leading one (a
// zero, or words that are no x96 at all) take the passes themselves,
// whose answer the steps alone define.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

namespace orv {
namespace {

struct Wide {
    std::uint32_t hi, mid, lo;
};

inline std::uint64_t significand(const std::uint32_t* x) {
    return (static_cast<std::uint64_t>(x[1]) << 32) | x[2];
}

// (hi:lo) / d for hi < d: one processor division.
inline std::uint32_t divide_word(std::uint32_t hi, std::uint32_t lo, std::uint32_t d,
                                 std::uint32_t& remainder) {
    std::uint32_t q;
    __asm__("divl %4" : "=a"(q), "=d"(remainder) : "a"(lo), "d"(hi), "rm"(d) : "cc");
    return q;
}

// One quotient word of (r:next) / v, for r < v and v's top bit set; the
// remainder is left in r. The estimate from the top words is corrected
// against v's low word, which makes it exact for a two-word divisor.
std::uint32_t quotient_word(std::uint64_t& r, std::uint32_t next, std::uint64_t v) {
    std::uint32_t u2 = static_cast<std::uint32_t>(r >> 32), u1 = static_cast<std::uint32_t>(r);
    std::uint32_t v1 = static_cast<std::uint32_t>(v >> 32), v0 = static_cast<std::uint32_t>(v);
    std::uint32_t q, rhat;
    bool rhat_wide = false;
    if (u2 == v1) {  // the estimate would not fit a word
        q = 0xFFFFFFFFu;
        rhat = u1 + v1;
        rhat_wide = rhat < v1;
    } else {
        q = divide_word(u2, u1, v1, rhat);
    }
    while (!rhat_wide &&
           static_cast<std::uint64_t>(q) * v0 > ((static_cast<std::uint64_t>(rhat) << 32) | next)) {
        --q;
        rhat += v1;
        rhat_wide = rhat < v1;
    }
    r = ((static_cast<std::uint64_t>(u1) << 32) | next) - q * v;
    return q;
}

// The 95 quotient bits for normalised significands, a doubled when it is
// below b.
Wide long_quotient(std::uint64_t a, bool doubled, std::uint64_t b) {
    // a' 2^30 in three words, divided by b with two zero words behind.
    int shift = doubled ? 31 : 30;
    std::uint32_t top = static_cast<std::uint32_t>(a >> (64 - shift));
    std::uint64_t low = a << shift;
    std::uint64_t rem = (static_cast<std::uint64_t>(top) << 32) | (low >> 32);
    Wide q;
    q.hi = quotient_word(rem, static_cast<std::uint32_t>(low), b);
    q.mid = quotient_word(rem, 0, b);
    q.lo = quotient_word(rem, 0, b);
    return q;
}

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

// Restoring division pass by pass; returns the quotient and adjusts the
// exponent difference for a first compare that fails.
Wide pass_quotient(const std::uint32_t* a, const std::uint32_t* b, int& difference) {
    Wide r = halved_significand(a), d = halved_significand(b);
    Wide q = {0, 0, 0};
    for (int pass = 0; pass < 95; ++pass) {
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
    return q;
}

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
    Wide q;
    if ((a[1] & b[1]) & kLeadingOne) {
        std::uint64_t sa = significand(a), sb = significand(b);
        bool doubled = sa < sb;
        difference -= doubled;
        q = long_quotient(sa, doubled, sb);
    } else {
        q = pass_quotient(a, b, difference);
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
