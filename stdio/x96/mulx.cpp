// The x96 product. The result is defined by 16-bit limbs: of the sixteen
// limb products, only those that reach the top 96 bits of the 128-bit
// product count, and the three of limb sums 0 and 1 are left out, so the
// bottom of the low word is short by their carries. The same words come
// from the full product of 32-bit words less those three products: they
// agree with it modulo 2^32, so the difference has nothing below bit 32.
// Rounding looks at the low word before normalisation: to nearest, ties
// to even, when the product is below 2 and one shift follows; otherwise
// it rounds up only when the top two bits of the low word are both set.
// Exponents out of range saturate.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

namespace orv {
namespace {

inline std::uint64_t wide_product(std::uint32_t x, std::uint32_t y) {
    return static_cast<std::uint64_t>(x) * y;
}

struct Top96 {
    std::uint32_t hi, mid, lo;
};

// Bits 32 to 127 of a times b, less the limb products of sums 0 and 1.
Top96 top_of_product(const std::uint32_t* a, const std::uint32_t* b) {
    std::uint64_t ll = wide_product(a[2], b[2]), lh = wide_product(a[2], b[1]);
    std::uint64_t hl = wide_product(a[1], b[2]), hh = wide_product(a[1], b[1]);
    std::uint64_t mid = (ll >> 32) + static_cast<std::uint32_t>(lh) + static_cast<std::uint32_t>(hl);
    std::uint64_t high = hh + (lh >> 32) + (hl >> 32) + (mid >> 32);
    Top96 t = {static_cast<std::uint32_t>(high >> 32), static_cast<std::uint32_t>(high),
               static_cast<std::uint32_t>(mid)};
    // What the three left-out products add from bit 32 up.
    std::uint32_t a0 = a[2] & 0xFFFF, a1 = a[2] >> 16, b0 = b[2] & 0xFFFF, b1 = b[2] >> 16;
    std::uint64_t sum1 = wide_product(a0, b1) + wide_product(a1, b0);
    sub96(t.hi, t.mid, t.lo, static_cast<std::uint32_t>((wide_product(a0, b0) + (sum1 << 16)) >> 32));
    return t;
}

}  // namespace
}  // namespace orv

extern "C" ORV_EXPORT void _mulx(const std::uint32_t* a, const std::uint32_t* b,
                                 std::uint32_t* result) {
    using namespace orv;
    int fa = exponent_field(a[0]), fb = exponent_field(b[0]);
    if (fa == 0 || fb == 0) {
        set_zero(result);
        return;
    }
    std::uint32_t sign = (a[0] ^ b[0]) & kSign;
    int exponent = fa + fb - 32765;
    Top96 p = top_of_product(a, b);
    std::uint32_t p_hi = p.hi, p_mid = p.mid, p_lo = p.lo;

    if ((p_lo & 0x40000000u) && (p_lo & 0xBFFFFFFFu)) add96(p_hi, p_mid, p_lo, 0x80000000u);
    // Significands in [1, 2) give a product in [1, 4): one shift at most.
    if (!(p_hi & kLeadingOne)) {
        shift_left96(p_hi, p_mid, p_lo);
        --exponent;
    }
    // Out of the field's range the product saturates: zero below, the
    // largest field above, so that a scaling far out of range reads as
    // underflow or overflow rather than wrapping.
    int field = exponent + kBias;
    if (field <= 0) {
        set_zero(result);
        return;
    }
    if (field > 0x7FFF) field = 0x7FFF;
    result[0] = make_head(sign, field);
    result[1] = p_hi;
    result[2] = p_mid;
}
