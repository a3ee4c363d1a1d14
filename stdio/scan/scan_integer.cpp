#include "arith/orvane.h"
#include "stdio/scan/scan.h"

using namespace orv::scan;

namespace {

bool is_hex_letter(char conversion) { return conversion == 'x' || conversion == 'X' || conversion == 'p'; }

// The digit test goes by the letter, not the base: so %i behind a leading
// 0 takes 8 and 9, and computes with them in base 8.
bool is_digit_for(char conversion, int c) {
    if (is_hex_letter(conversion)) return orv::ctype::bits(c) & _IS_HEX;
    if (conversion == 'o') return c >= '0' && c <= '7';
    return orv::ctype::bits(c) & _IS_DIG;
}

int digit_value(int c) { return c <= '9' ? c - '0' : (c | 0x20) - 87; }

} // namespace

// Reads an integer of the conversion's letter into *result. No range test: the
// value wraps in 64 bits, and errno is not touched.
extern "C" int __scan_integer(scan_spec *spec, int c, long long *result) {
    c = skip_space(spec, c);
    bool negative = false;
    if (spec->conversion != 'p' && spec->width != 0 && (c == '-' || c == '+')) {
        negative = c == '-';
        c = take(spec);
    }
    bool digit_seen = false;
    long long base = spec->conversion == 'o' ? 8 : 10;
    char letter = spec->conversion;
    if (letter == 'i' || is_hex_letter(letter)) {
        if (c == '0' && spec->width != 0) {
            digit_seen = true;
            base = 8;
            c = take(spec);
            if (spec->width != 0 && (c == 'x' || c == 'X')) {
                spec->conversion = static_cast<char>(c);
                c = take(spec);
                digit_seen = false;
            }
        }
        if (is_hex_letter(spec->conversion)) base = 16;
    }
    unsigned long long value = 0;
    while (spec->width != 0 && is_digit_for(spec->conversion, c)) {
        value = static_cast<unsigned long long>(_orvane_lmul(static_cast<long long>(value), base)) + digit_value(c);
        digit_seen = true;
        c = take(spec);
    }
    if (negative) value = 0 - value;
    if (!digit_seen) spec->failed = true;
    *result = static_cast<long long>(value);
    return c;
}
