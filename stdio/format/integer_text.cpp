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

// The text runs from p to the end of the area; the field printer needs
// not measure it again.
int field(const format_spec *spec, _orv_sink *sink, const char *p, const char *end) {
    return orv::fmt::print_text(spec, sink, p, static_cast<int>(end - p));
}

// Base^k is the largest power that fits a 32-bit word.
template <unsigned base> constexpr unsigned chunk_digits() {
    unsigned k = 0;
    for (std::uint64_t c = base; c <= 0xFFFFFFFFu; c *= base) ++k;
    return k;
}
template <unsigned base> constexpr std::uint32_t chunk_value() {
    std::uint32_t c = 1;
    for (unsigned i = 0; i < chunk_digits<base>(); ++i) c *= base;
    return c;
}

// Decimal digits go two at a time.
struct DigitPairs {
    char text[200];
    constexpr DigitPairs() : text() {
        for (int i = 0; i < 100; ++i) {
            text[2 * i] = static_cast<char>('0' + i / 10);
            text[2 * i + 1] = static_cast<char>('0' + i % 10);
        }
    }
};
constexpr DigitPairs pairs{};

// The digits of v in front of p, at least one.
template <unsigned base> char *word_digits(char *p, std::uint32_t v) {
    if constexpr (base == 10) {
        for (; v >= 100; v /= 100) {
            p -= 2;
            __builtin_memcpy(p, pairs.text + 2 * (v % 100), 2);
        }
        if (v >= 10) {
            p -= 2;
            __builtin_memcpy(p, pairs.text + 2 * v, 2);
            return p;
        }
    } else {
        for (; v >= base; v /= base) *--p = static_cast<char>('0' + v % base);
    }
    *--p = static_cast<char>('0' + v);
    return p;
}

// The base is a constant in each instance, so that the divisions by it are
// multiplications. The wide part of a value costs one helper division per
// chunk of digits, which are all written, zeros included; the rest is
// 32-bit work.
template <unsigned base> char *digits_in(char *end, std::uint64_t value, int minimum) {
    char *p = end;
    while (value >> 32) {
        std::uint64_t high = _orvane_uldiv(value, chunk_value<base>());
        std::uint32_t low = static_cast<std::uint32_t>(value) - static_cast<std::uint32_t>(high) * chunk_value<base>();
        char *chunk = word_digits<base>(p, low);
        while (p - chunk < static_cast<int>(chunk_digits<base>())) *--chunk = '0';
        p = chunk;
        value = high;
    }
    p = word_digits<base>(p, static_cast<std::uint32_t>(value));
    while (end - p < minimum) *--p = '0';
    return p;
}

} // namespace

// The printers' two bases have instances of their own; any other base
// divides at run time.
extern "C" char *__digit_string(char *end, std::uint64_t value, int minimum, unsigned base) {
    *end = 0;
    if (base == 10) return digits_in<10>(end, value, minimum);
    if (base == 8) return digits_in<8>(end, value, minimum);
    char *p = end;
    int made = 0;
    do {
        std::uint64_t next = _orvane_uldiv(value, base);
        *--p = static_cast<char>('0' + static_cast<std::uint32_t>(value - next * base));
        value = next;
        ++made;
    } while (value != 0 || made < minimum);
    return p;
}

extern "C" int __print_unsigned(const format_spec *spec, _orv_sink *sink, std::uint64_t value) {
    if (zero_shortcut(spec, value)) return 0;
    char area[text_area];
    char *end = area + text_area - 1;
    return field(spec, sink, __digit_string(end, value, minimum_digits(spec), 10), end);
}

extern "C" int __print_signed(const format_spec *spec, _orv_sink *sink, std::int64_t value) {
    if (zero_shortcut(spec, static_cast<std::uint64_t>(value))) return 0;
    char area[text_area];
    char *end = area + text_area - 1;
    bool negative = value < 0;
    std::uint64_t magnitude = negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    char *p = __digit_string(end, magnitude, minimum_digits(spec), 10);
    if (negative) *--p = '-';
    else if (spec->plus) *--p = '+';
    else if (spec->space) *--p = ' ';
    return field(spec, sink, p, end);
}

extern "C" int __print_octal(const format_spec *spec, _orv_sink *sink, std::uint64_t value) {
    if (zero_shortcut(spec, value)) return 0;
    char area[text_area];
    char *end = area + text_area - 1;
    char *p = __digit_string(end, value, minimum_digits(spec), 8);
    if (spec->alternate && *p != '0') *--p = '0';
    return field(spec, sink, p, end);
}

namespace {

// Hex digits of a value of the word type in front of p.
template <class Word> char *hex_digits(char *p, Word value, const char *digits, char *least) {
    do {
        *--p = digits[value & 15];
        value >>= 4;
    } while (value != 0 || p > least);
    return p;
}

} // namespace

// Digits by 4-bit shifts, on a 32-bit word when the value fits one; %p
// comes here too, with no zero shortcut.
extern "C" int __print_hex(const format_spec *spec, _orv_sink *sink, std::uint64_t value) {
    if (spec->conversion != 'p' && zero_shortcut(spec, value)) return 0;
    const char *digits = spec->conversion == 'x' ? "0123456789abcdef" : "0123456789ABCDEF";
    char area[text_area];
    char *end = area + text_area - 1;
    *end = 0;
    char *least = end - minimum_digits(spec); // where the digits must reach at least
    char *p = value >> 32 ? hex_digits(end, value, digits, least)
                          : hex_digits(end, static_cast<std::uint32_t>(value), digits, least);
    if (spec->alternate) {
        *--p = spec->conversion;
        *--p = '0';
    }
    return field(spec, sink, p, end);
}
