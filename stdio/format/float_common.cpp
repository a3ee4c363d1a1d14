#include "stdio/format/float_text.h"

extern "C" int __fp_class(double x) {
    std::uint64_t bits;
    __builtin_memcpy(&bits, &x, sizeof bits);
    bool negative = bits >> 63;
    unsigned biased = static_cast<unsigned>(bits >> 52) & 0x7FF;
    std::uint64_t fraction = bits & 0xFFFFFFFFFFFFFull;
    if (biased == 0x7FF) return fraction != 0 ? 1 : negative ? 2 : 9;
    if (biased == 0) {
        if (fraction == 0) return negative ? 5 : 6;
        return negative ? 4 : 7;
    }
    return negative ? 3 : 8;
}

extern "C" bool __fp_is_finite(double x) {
    int c = __fp_class(x);
    return c >= 3 && c <= 8;
}

namespace orv::fmt {

void put_exponent(TextArea &out, const format_spec *spec, int exponent) {
    bool upper = spec->conversion >= 'A' && spec->conversion <= 'Z';
    out.put(upper ? 'E' : 'e');
    out.put(exponent < 0 ? '-' : '+');
    unsigned e = exponent < 0 ? 0u - static_cast<unsigned>(exponent) : static_cast<unsigned>(exponent);
    if (e >= 100) out.put(static_cast<char>('0' + e / 100 % 10));
    out.put(static_cast<char>('0' + e / 10 % 10));
    out.put(static_cast<char>('0' + e % 10));
}

void trim_for_g(TextArea &out, const format_spec *spec) {
    bool is_g = spec->conversion == 'g' || spec->conversion == 'G';
    if (spec->precision == 0 || spec->alternate || !is_g) return;
    while (out.length > 0 && out.text[out.length - 1] == '0') --out.length;
    if (out.length > 0 && out.text[out.length - 1] == '.') --out.length;
}

} // namespace orv::fmt
