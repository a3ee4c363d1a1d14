// The text of floating-point numbers for the e, f and g conversions: the
// double path scales in double arithmetic and reads digits off a fixed-point
// register, the quad path makes digits in quad arithmetic.
#pragma once

#include "stdio/format/format.h"

#include <cstdint>

struct double_decimal {
    std::int32_t negative;
    std::int32_t exponent; // power of ten of the first digit
    double value;          // in [1, 10), or the input for zero, infinity, NaN
};

struct quad_decimal {
    std::int32_t negative;
    std::int32_t exponent; // digits before the decimal point
    std::int32_t special;  // NaN or infinity: digits holds the text
    char digits[34];
};

extern "C" {
// Classes 1 NaN, 2 -inf, 3 -normal, 4 -denormal, 5 -0, 6 +0, 7 +denormal,
// 8 +normal, 9 +inf.
ORV_HIDDEN int __fp_class(double x);
// Classes 3 to 8.
ORV_HIDDEN bool __fp_is_finite(double x);
}

namespace orv::fmt {

// Builds floating text in a fixed area; never writes past it.
struct TextArea {
    char text[text_area];
    int length = 0;
    void put(char c) {
        if (length < text_area - 1) text[length++] = c;
    }
    void put(const char *s) {
        while (*s) put(*s++);
    }
    const char *finish() {
        text[length] = 0;
        return text;
    }
};

// The sign in front of a number, by the flags.
inline void put_sign(TextArea &out, const format_spec *spec, bool negative) {
    if (negative) out.put('-');
    else if (spec->plus) out.put('+');
    else if (spec->space) out.put(' ');
}

// "e+05", "E-100": the sign, a hundreds digit when needed, two digits.
void put_exponent(TextArea &out, const format_spec *spec, int exponent);

// Removes trailing zeros and then a trailing point, for g without '#'.
void trim_for_g(TextArea &out, const format_spec *spec);

int print_double(format_spec *spec, _orv_sink *sink, double value);
int print_quad(format_spec *spec, _orv_sink *sink, double high, double low);

} // namespace orv::fmt
