// Decimal text to double through the x96 number, as strtod and the float
// scanner both read it: digits gather in a 96-bit integer, the power of ten
// is applied as an x96, and the result is rounded to double once.
//
// The readers walk any cursor that offers current() (the character in
// hand, or a non-digit where the text may not go on) and advance(); a
// string and a width-limited character stream read alike.
#pragma once

#include "clib/ctype/table.h"
#include "include/errno.h"
#include "stdio/x96/x96.h"

#include <cstdint>

namespace orv::decimal {

inline constexpr std::uint32_t digit_guard = 429496730; // one more than 0xFFFFFFFF / 10
inline constexpr std::uint32_t exponent_guard = 429496729;
inline constexpr int short_digits = 19; // fewer than 10^19 fit in 64 bits

// Texts of fewer than 19 digits, leading zeros counted, which is nearly
// all, gather in a 64-bit integer, which never reaches the digit guard and
// normalises with one shift; only longer ones go on digit by digit in the
// three words. Either way the mantissa comes out the same.
struct Reading {
    std::uint64_t short_mantissa = 0;      // while digits < short_digits
    std::uint32_t mantissa[3] = {0, 0, 0}; // from then on
    int digits = 0;                        // taken into the mantissa
    int exponent = 0;                      // decimal
    bool valid = false;                    // the text has made a number
    bool overflow = false;
};

inline bool is_digit(int c) { return ctype::bits(c) & _IS_DIG; }
inline bool is_short(const Reading &r) { return r.digits < short_digits; }
inline bool has_room(const Reading &r) { return is_short(r) || r.mantissa[0] < digit_guard; }

[[gnu::always_inline]] inline void take(Reading &r, int digit) {
    if (r.digits < 9) {
        // Below ten to the ninth the product fits in one word, where it is cheap.
        r.short_mantissa = static_cast<std::uint32_t>(r.short_mantissa) * 10u + (digit & 15);
    } else if (is_short(r)) {
        r.short_mantissa = r.short_mantissa * 10 + (digit & 15);
        if (r.digits + 1 == short_digits) {
            r.mantissa[1] = static_cast<std::uint32_t>(r.short_mantissa >> 32);
            r.mantissa[2] = static_cast<std::uint32_t>(r.short_mantissa);
        }
    } else {
        _mulx10(r.mantissa, static_cast<std::uint32_t>(digit));
    }
    ++r.digits;
}

template <class Cursor> void integer_digits(Cursor &in, Reading &r) {
    for (int c; is_digit(c = in.current()); in.advance()) {
        r.valid = true;
        if (has_room(r)) take(r, c);
        else ++r.exponent;
    }
}

// Zeros wait until a later digit needs them, so trailing zeros cost no room.
template <class Cursor> void fraction_digits(Cursor &in, Reading &r) {
    if (is_digit(in.current())) r.valid = true;
    unsigned pending = 0;
    for (int c; is_digit(c = in.current()); in.advance()) {
        if (!has_room(r)) continue;
        if (c == '0') {
            ++pending;
            continue;
        }
        for (; pending > 0 && has_room(r); --pending) {
            take(r, '0');
            --r.exponent;
        }
        pending = 0;
        if (has_room(r)) {
            take(r, c);
            --r.exponent;
        }
    }
}

// Behind the 'e'. A malformed exponent makes the whole text invalid, not
// just the 'e'.
template <class Cursor> void exponent_part(Cursor &in, Reading &r) {
    bool negative = false;
    int c = in.current();
    if (c == '+' || c == '-') {
        negative = c == '-';
        in.advance();
        if (!is_digit(in.current())) r.valid = false;
    } else if (!is_digit(c)) {
        r.valid = false;
    }
    // Below the guard one more digit can still take the value past the
    // range of int; such an exponent is out of range, as one past the guard.
    std::uint32_t value = 0;
    for (; is_digit(c = in.current()); in.advance()) {
        if (value < exponent_guard) value = value * 10 + (c - '0');
        else r.overflow = true;
    }
    std::int64_t exponent = r.exponent + (negative ? -std::int64_t{value} : std::int64_t{value});
    if (value > INT32_MAX || exponent < INT32_MIN || exponent > INT32_MAX) r.overflow = true;
    else r.exponent = static_cast<int>(exponent);
}

// Everything behind the sign: digits, point, fraction, exponent.
template <class Cursor> void read_number(Cursor &in, Reading &r) {
    integer_digits(in, r);
    if (in.current() == '.') {
        in.advance();
        fraction_digits(in, r);
    }
    int c = in.current();
    if (r.valid && (c == 'e' || c == 'E')) {
        in.advance();
        exponent_part(in, r);
    }
}

// x times 10 to the power, through the powers kept once made.
void multiply_by_ten_to(std::uint32_t *x, int power);

inline constexpr int lowest_step = -4930; // a power that stays in range
inline constexpr int highest_power = 4931;

// A short mantissa normalises as _normal96 would: the 64 bits shifted up to
// their leading one.
inline void normalise(Reading &r) {
    if (!is_short(r)) return _normal96(r.mantissa);
    if (r.short_mantissa == 0) return;
    int shift = __builtin_clzll(r.short_mantissa);
    std::uint64_t significand = r.short_mantissa << shift;
    r.mantissa[0] = x96f::make_head(0, x96f::kBias + 63 - shift);
    r.mantissa[1] = static_cast<std::uint32_t>(significand >> 32);
    r.mantissa[2] = static_cast<std::uint32_t>(significand);
}

// Two steps below the lowest power, so that the power itself stays in range.
inline void scale(Reading &r) {
    normalise(r);
    if (r.exponent < lowest_step) {
        multiply_by_ten_to(r.mantissa, r.exponent - lowest_step);
        r.exponent = lowest_step;
    }
    if (r.exponent > highest_power && (r.mantissa[1] | r.mantissa[2]) != 0) r.overflow = true;
    if (!r.overflow) multiply_by_ten_to(r.mantissa, r.exponent);
}

// Scales and rounds a reading to the bits of a double with the given sign
// (0 or 0x80000000): the 64-bit significand to 52 bits behind the leading
// one, to nearest with ties to even. Infinity with ERANGE above the range;
// +0.0 below the smallest normal, so no denormals and no negative zero.
inline std::uint64_t to_double_bits(Reading &r, std::uint32_t sign) {
    scale(r);
    int e = x96f::exponent_field(r.mantissa[0]) - x96f::kBias;
    if (e >= 1024 || r.overflow) {
        errno = ERANGE;
        return static_cast<std::uint64_t>(sign | 0x7FF00000u) << 32;
    }
    if (e <= -1023) return 0;
    std::uint32_t w1 = r.mantissa[1], w2 = r.mantissa[2];
    std::uint32_t high = (w1 >> 11) & 0xFFFFF;
    std::uint32_t low = (w1 << 21) | (w2 >> 11);
    if ((w2 & 0x400) && (w2 & 0xBFF)) _add64(&high, &low, 1);
    if (high & 0x100000) {
        high &= ~0x100000u;
        ++e;
    }
    high |= (static_cast<std::uint32_t>(e + 1023) << 20) | sign;
    return (static_cast<std::uint64_t>(high) << 32) | low;
}

} // namespace orv::decimal
