#include "stdio/x96/decimal_text.h"

#include "include/errno.h"

namespace orv::decimal {
namespace {

using std::uint32_t;

constexpr int lowest_step = -4930; // a power that stays in range
constexpr int highest_power = 4931;

// The powers ordinary texts need are kept once made: the same words
// _cmath_xtoi gives, without its squarings on every call.
constexpr int kept_powers = 48;
uint32_t kept[2 * kept_powers + 1][3];
bool made[2 * kept_powers + 1];

const uint32_t *ten_to(int power, uint32_t *scratch) {
    if (power < -kept_powers || power > kept_powers) {
        _cmath_xtoi(x96f::kTen.word, power, scratch);
        return scratch;
    }
    uint32_t *slot = kept[power + kept_powers];
    // Two threads may both make a power; they write the same words.
    if (!__atomic_load_n(&made[power + kept_powers], __ATOMIC_ACQUIRE)) {
        _cmath_xtoi(x96f::kTen.word, power, slot);
        __atomic_store_n(&made[power + kept_powers], true, __ATOMIC_RELEASE);
    }
    return slot;
}

void multiply_by_ten_to(uint32_t *x, int power) {
    uint32_t scratch[3];
    _mulx(x, ten_to(power, scratch), x);
}

// Two steps below the lowest power, so that the power itself stays in range.
void scale(Reading &r) {
    _normal96(r.mantissa);
    if (r.exponent < lowest_step) {
        multiply_by_ten_to(r.mantissa, r.exponent - lowest_step);
        r.exponent = lowest_step;
    }
    if (r.exponent > highest_power && (r.mantissa[1] | r.mantissa[2]) != 0) r.overflow = true;
    if (!r.overflow) multiply_by_ten_to(r.mantissa, r.exponent);
}

} // namespace

// Round the 64-bit significand to 52 bits behind the leading one, to
// nearest with ties to even; no denormals, and no negative zero.
std::uint64_t to_double_bits(Reading &r, uint32_t sign) {
    scale(r);
    int e = x96f::exponent_field(r.mantissa[0]) - x96f::kBias;
    if (e >= 1024 || r.overflow) {
        errno = ERANGE;
        return static_cast<std::uint64_t>(sign | 0x7FF00000u) << 32;
    }
    if (e <= -1023) return 0;
    uint32_t w1 = r.mantissa[1], w2 = r.mantissa[2];
    uint32_t high = (w1 >> 11) & 0xFFFFF;
    uint32_t low = (w1 << 21) | (w2 >> 11);
    if ((w2 & 0x400) && (w2 & 0xBFF)) _add64(&high, &low, 1);
    if (high & 0x100000) {
        high &= ~0x100000u;
        ++e;
    }
    high |= (static_cast<uint32_t>(e + 1023) << 20) | sign;
    return (static_cast<std::uint64_t>(high) << 32) | low;
}

} // namespace orv::decimal
