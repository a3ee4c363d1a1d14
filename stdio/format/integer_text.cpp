#include "arith/orvane.h"
#include "stdio/format/format.h"

namespace {

using orv::fmt::text_area;

// Room kept in front of the digits for a sign or a 0x prefix.
constexpr int prefix_room = 3;

// The area is the limit: a precision beyond it makes no more digits.
int minimum_digits(const format_spec *spec) {
    int most = text_area - 1 - prefix_room;
    return spec->precision > most ? most : spec->precision;
}

// The zero shortcut: 0 with a precision of 0 prints nothing at all.
bool zero_shortcut(const format_spec *spec, std::uint64_t value) {
    return value == 0 && spec->precision == 0;
}

int field(const format_spec *spec, _orv_sink *sink, const char *text) {
    return __print_field(spec, sink, text, text_area);
}

} // namespace

// The digits of base^k fit a 32-bit word: the wide part of a value costs
// one helper division per k digits, the rest is 32-bit work.
extern "C" char *__digit_string(char *end, std::uint64_t value, int minimum, unsigned base) {
    unsigned k = 0;
    std::uint32_t chunk = 1;
    while (chunk <= 0xFFFFFFFFu / base) chunk *= base, ++k;
    *end = 0;
    char *p = end;
    int made = 0;
    while (value >> 32) {
        std::uint64_t high = _orvane_uldiv(value, chunk);
        std::uint32_t low = static_cast<std::uint32_t>(value) - static_cast<std::uint32_t>(high) * chunk;
        for (unsigned i = 0; i < k; ++i, ++made, low /= base) *--p = static_cast<char>('0' + low % base);
        value = high;
    }
    std::uint32_t v = static_cast<std::uint32_t>(value);
    do {
        *--p = static_cast<char>('0' + v % base);
        v /= base;
        ++made;
    } while (v != 0 || made < minimum);
    return p;
}

extern "C" int __print_unsigned(const format_spec *spec, _orv_sink *sink, std::uint64_t value) {
    if (zero_shortcut(spec, value)) return 0;
    char area[text_area];
    return field(spec, sink, __digit_string(area + text_area - 1, value, minimum_digits(spec), 10));
}

extern "C" int __print_signed(const format_spec *spec, _orv_sink *sink, std::int64_t value) {
    if (zero_shortcut(spec, static_cast<std::uint64_t>(value))) return 0;
    char area[text_area];
    bool negative = value < 0;
    std::uint64_t magnitude = negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    char *p = __digit_string(area + text_area - 1, magnitude, minimum_digits(spec), 10);
    if (negative) *--p = '-';
    else if (spec->plus) *--p = '+';
    else if (spec->space) *--p = ' ';
    return field(spec, sink, p);
}

extern "C" int __print_octal(const format_spec *spec, _orv_sink *sink, std::uint64_t value) {
    if (zero_shortcut(spec, value)) return 0;
    char area[text_area];
    char *p = __digit_string(area + text_area - 1, value, minimum_digits(spec), 8);
    if (spec->alternate && *p != '0') *--p = '0';
    return field(spec, sink, p);
}

// Digits by 4-bit shifts; %p comes here too, with no zero shortcut.
extern "C" int __print_hex(const format_spec *spec, _orv_sink *sink, std::uint64_t value) {
    if (spec->conversion != 'p' && zero_shortcut(spec, value)) return 0;
    const char *digits = spec->conversion == 'x' ? "0123456789abcdef" : "0123456789ABCDEF";
    char area[text_area];
    char *p = area + text_area - 1;
    *p = 0;
    int made = 0, minimum = minimum_digits(spec);
    do {
        *--p = digits[value & 15];
        value >>= 4;
        ++made;
    } while (value != 0 || made < minimum);
    if (spec->alternate) {
        *--p = spec->conversion;
        *--p = '0';
    }
    return field(spec, sink, p);
}
