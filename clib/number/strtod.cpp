#include "clib/number/integer_text.h"
#include "include/errno.h"
#include "include/stdlib.h"
#include "runtime/export.h"
#include "stdio/x96/x96.h"

#include <cstdint>

// Decimal text to double through the 96-bit number: the digits gather in a
// wide integer, which is scaled by its power of ten as an x96 and rounded
// to double once. No floating-point instruction but the final load.
//
// Texts of fewer than 19 digits, leading zeros counted, which is nearly
// all, gather in a 64-bit integer, which never reaches the digit guard and
// normalises with one shift; only longer ones go on digit by digit in the
// three words. Either way the mantissa comes out the same.
namespace {

using std::uint32_t;
using orv::ctype::bits;

constexpr uint32_t digit_guard = 429496730; // one more than 0xFFFFFFFF / 10
constexpr std::uint32_t exponent_guard = 429496729;
constexpr int lowest_step = -4930;           // a power that stays in range
constexpr int highest_power = 4931;

constexpr int short_digits = 19; // fewer than 10^19 fit in 64 bits

struct Reading {
    std::uint64_t short_mantissa = 0; // while digits < short_digits
    uint32_t mantissa[3] = {0, 0, 0}; // from then on
    int digits = 0;                   // taken into the mantissa
    int exponent = 0;                 // decimal
    bool valid = false;               // the text has made a number
    bool overflow = false;
};

bool is_digit(unsigned char c) { return bits(c) & _IS_DIG; }
bool is_short(const Reading &r) { return r.digits < short_digits; }
bool has_room(const Reading &r) { return is_short(r) || r.mantissa[0] < digit_guard; }

[[gnu::always_inline]] inline void take(Reading &r, unsigned char digit) {
    if (r.digits < 9) {
        // Below ten to the ninth the product fits in one word, where it is cheap.
        r.short_mantissa = static_cast<uint32_t>(r.short_mantissa) * 10u + (digit & 15);
    } else if (is_short(r)) {
        r.short_mantissa = r.short_mantissa * 10 + (digit & 15);
        if (r.digits + 1 == short_digits) {
            r.mantissa[1] = static_cast<uint32_t>(r.short_mantissa >> 32);
            r.mantissa[2] = static_cast<uint32_t>(r.short_mantissa);
        }
    } else {
        _mulx10(r.mantissa, digit);
    }
    ++r.digits;
}

const unsigned char *integer_digits(const unsigned char *p, Reading &r) {
    for (; is_digit(*p); ++p) {
        r.valid = true;
        if (has_room(r)) take(r, *p);
        else ++r.exponent;
    }
    return p;
}

// Zeros wait until a later digit needs them, so trailing zeros cost no room.
const unsigned char *fraction_digits(const unsigned char *p, Reading &r) {
    if (is_digit(*p)) r.valid = true;
    unsigned pending = 0;
    for (; is_digit(*p); ++p) {
        if (!has_room(r)) continue;
        if (*p == '0') {
            ++pending;
            continue;
        }
        for (; pending > 0 && has_room(r); --pending) {
            take(r, '0');
            --r.exponent;
        }
        pending = 0;
        if (has_room(r)) {
            take(r, *p);
            --r.exponent;
        }
    }
    return p;
}

// A malformed exponent makes the whole text invalid, not just the 'e'.
const unsigned char *exponent_part(const unsigned char *p, Reading &r) {
    bool negative = false;
    if (*p == '+' || *p == '-') {
        negative = *p++ == '-';
        if (!is_digit(*p)) r.valid = false;
    } else if (!is_digit(*p)) {
        r.valid = false;
    }
    // Below the guard one more digit can still take the value past the
    // range of int; such an exponent is out of range, as one past the guard.
    std::uint32_t value = 0;
    for (; is_digit(*p); ++p) {
        if (value < exponent_guard) value = value * 10 + (*p - '0');
        else r.overflow = true;
    }
    std::int64_t exponent = r.exponent + (negative ? -std::int64_t{value} : std::int64_t{value});
    if (value > INT32_MAX || exponent < INT32_MIN || exponent > INT32_MAX) r.overflow = true;
    else r.exponent = static_cast<int>(exponent);
    return p;
}

// The powers that texts in the range of double need are kept once made:
// the same words _cmath_xtoi gives, without its squarings and reciprocal
// on every call.
constexpr int kept_powers = 350;
uint32_t kept[2 * kept_powers + 1][3];
bool made[2 * kept_powers + 1];

const uint32_t *ten_to(int power, uint32_t *scratch) {
    if (power < -kept_powers || power > kept_powers) {
        _cmath_xtoi(orv::x96f::kTen.word, power, scratch);
        return scratch;
    }
    uint32_t *slot = kept[power + kept_powers];
    // Two threads may both make a power; they write the same words.
    if (!__atomic_load_n(&made[power + kept_powers], __ATOMIC_ACQUIRE)) {
        _cmath_xtoi(orv::x96f::kTen.word, power, slot);
        __atomic_store_n(&made[power + kept_powers], true, __ATOMIC_RELEASE);
    }
    return slot;
}

// A product with ten to the 0, one, is the number itself, exactly.
void multiply_by_ten_to(uint32_t *x, int power) {
    if (power == 0) return;
    uint32_t scratch[3];
    _mulx(x, ten_to(power, scratch), x);
}

// A short mantissa normalises as _normal96 would: the 64 bits shifted up to
// their leading one.
void normalise(Reading &r) {
    if (!is_short(r)) return _normal96(r.mantissa);
    if (r.short_mantissa == 0) return;
    int shift = __builtin_clzll(r.short_mantissa);
    std::uint64_t significand = r.short_mantissa << shift;
    r.mantissa[0] = orv::x96f::make_head(0, orv::x96f::kBias + 63 - shift);
    r.mantissa[1] = static_cast<uint32_t>(significand >> 32);
    r.mantissa[2] = static_cast<uint32_t>(significand);
}

// Two steps below the lowest power, so that the power itself stays in range.
void scale(Reading &r) {
    normalise(r);
    if (r.exponent < lowest_step) {
        multiply_by_ten_to(r.mantissa, r.exponent - lowest_step);
        r.exponent = lowest_step;
    }
    if (r.exponent > highest_power && (r.mantissa[1] | r.mantissa[2]) != 0) r.overflow = true;
    if (!r.overflow) multiply_by_ten_to(r.mantissa, r.exponent);
}

// Round the 64-bit significand to 52 bits behind the leading one, to
// nearest with ties to even; no denormals, and no negative zero.
std::uint64_t to_double_bits(const Reading &r, uint32_t sign) {
    int e = orv::x96f::exponent_field(r.mantissa[0]) - orv::x96f::kBias;
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

} // namespace

extern "C" ORV_EXPORT double strtod(const char *text, char **end) {
    const unsigned char *p = orv::inttext::skip_space(reinterpret_cast<const unsigned char *>(text));
    uint32_t sign = 0;
    if (*p == '+' || *p == '-') sign = *p++ == '-' ? 0x80000000u : 0;
    Reading r;
    p = integer_digits(p, r);
    if (*p == '.') p = fraction_digits(p + 1, r);
    if (r.valid && (*p == 'e' || *p == 'E')) p = exponent_part(p + 1, r);
    scale(r);
    std::uint64_t result = to_double_bits(r, sign);
    if (end != nullptr) *end = const_cast<char *>(r.valid ? reinterpret_cast<const char *>(p) : text);
    double d;
    __builtin_memcpy(&d, &result, sizeof d);
    return d;
}

extern "C" ORV_EXPORT double atof(const char *text) {
    int saved = errno;
    double d = strtod(text, nullptr);
    errno = saved;
    return d;
}
