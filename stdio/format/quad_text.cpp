#include "include/math.h"
#include "include/quad.h"
#include "stdio/format/float_text.h"

using orv::fmt::TextArea;

namespace {

constexpr int made_digits = 35;
constexpr int kept_digits = 34;
constexpr int digit_budget = 31; // what the quad path can be trusted for

// Truncation toward zero under the control word 0x1E7F, the caller's put
// back afterwards.
int truncate(double x) {
    unsigned short saved;
    const unsigned short chop = 0x1E7F;
    int result;
    __asm__ volatile("fnstcw %0\n\tfldcw %2\n\tfistpl %1\n\tfldcw %0"
                     : "=m"(saved), "=m"(result)
                     : "m"(chop), "t"(x)
                     : "st");
    return result;
}

struct Digits {
    int d[made_digits];
    int e; // power of ten of the first digit
};

// Digits by subtraction and multiplication in quad arithmetic; the high
// double can round over the true value, so digits come out signed, or as
// 10 when what lies below the high double does not show in the digits
// made. They are brought into 0..9 from the end; a carry out of the first
// digit leaves 1 and zeros, the next power of ten.
void make_digits(quad v, Digits &out) {
    int e = truncate(floor(log10(fabs(v.hi))));
    v = qdiv(v, qpowi(quad{10.0, 0.0}, e));
    if (!(qsubd(v, 10.0).hi < 0)) {
        v = qdivd(v, 10.0);
        ++e;
    } else if (qsubd(v, 1.0).hi < 0) {
        v = qmuld(v, 10.0);
        --e;
    }
    for (int i = 0; i < made_digits; ++i) {
        int d = truncate(v.hi);
        out.d[i] = d;
        v = qmuld(qsubd(v, d), 10.0);
    }
    for (int i = made_digits - 1; i >= 1; --i) {
        if (out.d[i] < 0) {
            out.d[i] += 10;
            out.d[i - 1] -= 1;
        } else if (out.d[i] > 9) {
            out.d[i] -= 10;
            out.d[i - 1] += 1;
        }
    }
    if (out.d[0] > 9) {
        out.d[0] = 1;
        ++e;
    }
    out.e = e;
}

// Half up on the decimal digits at index p.
void round_at(Digits &digits, int p) {
    if (p > kept_digits - 1) p = kept_digits - 1;
    if (p <= 0 || digits.d[p] + 5 <= 9) return;
    digits.d[p] = 0;
    for (int i = p - 1;; --i) {
        if (i < 0) {
            digits.d[0] = 1;
            ++digits.e;
            return;
        }
        if (++digits.d[i] <= 9) return;
        digits.d[i] = 0;
    }
}

void copy_text(char *to, const char *text) {
    while (*text) *to++ = *text++;
}

} // namespace

extern "C" {

// `position` is the digit after the last printed; for f it is counted from
// the decimal point, once the exponent is known.
ORV_HIDDEN void __quad_digits(double high, double low, quad_decimal *record, int position, bool fixed) {
    *record = quad_decimal{};
    std::uint64_t bits;
    __builtin_memcpy(&bits, &high, sizeof bits);
    if (high == 0) {
        for (char &c : record->digits) c = '0';
        record->exponent = 1;
        return;
    }
    if (((bits >> 52) & 0x7FF) == 0x7FF) {
        record->special = 1;
        bool nan = (bits & 0xFFFFFFFFFFFFFull) != 0;
        copy_text(record->digits, nan ? "NaN" : (bits >> 63) ? "-INF" : "+INF");
        return;
    }
    quad v{high, low};
    if (high < 0) {
        record->negative = 1;
        v = qneg(v);
    }
    Digits digits;
    make_digits(v, digits);
    round_at(digits, fixed ? digits.e + 1 + position : position == 0 ? 1 : position);
    for (int i = 0; i < kept_digits; ++i) record->digits[i] = static_cast<char>('0' + digits.d[i]);
    record->exponent = digits.e + 1;
}

} // extern "C"

namespace orv::fmt {
namespace {

// Layout as the double path's, `before` digits in front of the point.
void quad_layout(format_spec *spec, const quad_decimal &record, int before, TextArea &out) {
    int budget = digit_budget, next = 0;
    auto digit = [&]() -> char {
        if (budget == 0 || next >= kept_digits) return '0';
        --budget;
        return record.digits[next++];
    };
    int count = before;
    if (count > 0) {
        for (; count > 0 && out.length < text_area - 1; --count) out.put(digit());
    } else {
        out.put('0');
    }
    if (spec->precision != 0 || spec->alternate) out.put('.');
    for (int i = 0; i < spec->precision && out.length < text_area - 1; ++i) {
        if (count < 0) {
            out.put('0');
            ++count;
        } else {
            out.put(digit());
        }
    }
    trim_for_g(out, spec);
}

// The sign comes first, for special values too.
int quad_text(format_spec *spec, _orv_sink *sink, const quad_decimal *record, bool exponential) {
    TextArea out;
    put_sign(out, spec, record->negative);
    if (record->special) {
        out.put(record->digits);
        spec->numeric = false;
        spec->pad_blank = true;
    } else {
        quad_layout(spec, *record, exponential ? 1 : record->exponent, out);
        if (exponential) put_exponent(out, spec, record->exponent - 1);
    }
    return __print_field(spec, sink, out.finish(), text_area);
}

} // namespace
} // namespace orv::fmt

extern "C" {

ORV_HIDDEN int __quad_text_f(format_spec *spec, _orv_sink *sink, const quad_decimal *record) {
    return orv::fmt::quad_text(spec, sink, record, false);
}

ORV_HIDDEN int __quad_text_e(format_spec *spec, _orv_sink *sink, const quad_decimal *record) {
    return orv::fmt::quad_text(spec, sink, record, true);
}

} // extern "C"

namespace orv::fmt {

int print_quad(format_spec *spec, _orv_sink *sink, double high, double low) {
    quad_decimal record;
    char style = spec->conversion | 0x20;
    if (spec->precision == -1) spec->precision = 6;
    if (style == 'f') {
        __quad_digits(high, low, &record, spec->precision, true);
        return __quad_text_f(spec, sink, &record);
    }
    if (style == 'e') {
        __quad_digits(high, low, &record, spec->precision + 1, false);
        return __quad_text_e(spec, sink, &record);
    }
    int p = spec->precision;
    __quad_digits(high, low, &record, p, false);
    int x = record.exponent - 1;
    if (!record.special && x >= -4 && x < p) {
        spec->precision = p - x - 1;
        return __quad_text_f(spec, sink, &record);
    }
    spec->precision = p - 1;
    return __quad_text_e(spec, sink, &record);
}

} // namespace orv::fmt
