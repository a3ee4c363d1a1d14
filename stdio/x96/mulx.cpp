// The x96 product. The significands are split in 16-bit limbs and only
// the partial products that reach the top 96 bits of the 128-bit product
// are formed: the three of limb sums 0 and 1 are left out, so the bottom of
// the low word is short by their carries. Rounding looks at that low word
// before normalisation: to nearest, ties to even, when the product is below
// 2 and one shift follows; otherwise it rounds up only when the top two
// bits of the low word are both set. Exponents out of range saturate.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

namespace orv {
namespace {

struct Limbs {
    std::uint32_t l[4];  // l[0] lowest
};

Limbs limbs_of(const std::uint32_t* x) {
    return {{x[2] & 0xFFFF, x[2] >> 16, x[1] & 0xFFFF, x[1] >> 16}};
}

// Sum of the partial products of one limb sum; for the odd sums this is
// a 64-bit pair, which the caller shifts left by 16.
void gather(const Limbs& a, const Limbs& b, int sum, std::uint32_t& hi, std::uint32_t& lo) {
    hi = lo = 0;
    for (int i = 0; i < 4; ++i) {
        int j = sum - i;
        if (j >= 0 && j < 4) add64(hi, lo, a.l[i] * b.l[j]);
    }
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
    Limbs la = limbs_of(a), lb = limbs_of(b);

    // The top 96 bits: limb sum s weighs 2^(16 s - 32).
    std::uint32_t p_hi = 0, p_mid = 0, p_lo = 0, g_hi, g_lo;
    gather(la, lb, 2, g_hi, g_lo);
    add96(p_hi, p_mid, p_lo, g_lo);
    add64(p_hi, p_mid, g_hi);
    gather(la, lb, 3, g_hi, g_lo);
    add96(p_hi, p_mid, p_lo, g_lo << 16);
    add64(p_hi, p_mid, (g_hi << 16) | (g_lo >> 16));
    gather(la, lb, 4, g_hi, g_lo);
    add64(p_hi, p_mid, g_lo);
    p_hi += g_hi;
    gather(la, lb, 5, g_hi, g_lo);
    add64(p_hi, p_mid, g_lo << 16);
    p_hi += (g_hi << 16) | (g_lo >> 16);
    gather(la, lb, 6, g_hi, g_lo);
    p_hi += g_lo;

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
