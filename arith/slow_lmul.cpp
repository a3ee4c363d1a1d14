// The slow product: magnitudes, the low words' product from 16-bit
// partial products, the high words' contributions modulo 2^32, and the sign
// last. The result is the product modulo 2^64, so it serves unsigned
// operands too.
#include "arith/orvane.h"

namespace orv {
namespace {

// x + y with the carry out detected from the top bits of the operands and
// the sum, as word arithmetic without flags would.
std::uint32_t add_carry(std::uint32_t x, std::uint32_t y, std::uint32_t* carry) {
    std::uint32_t sum = x + y;
    *carry = ((x & y) | ((x ^ y) & ~sum)) >> 31;
    return sum;
}

// The full 64-bit product of two 32-bit words.
std::uint64_t word_product(std::uint32_t x, std::uint32_t y) {
    std::uint32_t x0 = x & 0xFFFF, x1 = x >> 16;
    std::uint32_t y0 = y & 0xFFFF, y1 = y >> 16;
    std::uint32_t mid_carry, lo_carry;
    std::uint32_t mid = add_carry(x0 * y1, x1 * y0, &mid_carry);
    std::uint32_t lo = add_carry(x0 * y0, mid << 16, &lo_carry);
    std::uint32_t hi = x1 * y1 + (mid >> 16) + (mid_carry << 16) + lo_carry;
    return make64(hi, lo);
}

std::uint64_t magnitude(long long v) {
    std::uint64_t u = static_cast<std::uint64_t>(v);
    return v < 0 ? 0 - u : u;
}

}  // namespace
}  // namespace orv

extern "C" ORV_EXPORT long long _orvane_slow_lmul(long long a, long long b) {
    using namespace orv;
    std::uint64_t ua = magnitude(a), ub = magnitude(b);
    std::uint32_t ah = hi_word(ua), al = lo_word(ua);
    std::uint32_t bh = hi_word(ub), bl = lo_word(ub);
    std::uint64_t p = word_product(al, bl);
    // ah * bh lies wholly above bit 63; the cross terms count modulo 2^32.
    if (ah != 0 && bh != 0)
        p = make64(hi_word(p) + ah * bl + al * bh, lo_word(p));
    else if (ah != 0)
        p = make64(hi_word(p) + ah * bl, lo_word(p));
    else if (bh != 0)
        p = make64(hi_word(p) + al * bh, lo_word(p));
    if ((a < 0) != (b < 0)) p = 0 - p;
    return static_cast<long long>(p);
}
