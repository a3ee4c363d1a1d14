#include "include/stdlib.h"
#include "stdio/format/float_text.h"

using orv::fmt::TextArea;

namespace {

// Entry k is 0.5 times ten to the power -k.
constexpr double rounding[17] = {0.5,   5e-2,  5e-3,  5e-4,  5e-5,  5e-6,  5e-7,  5e-8, 5e-9,
                                 5e-10, 5e-11, 5e-12, 5e-13, 5e-14, 5e-15, 5e-16, 5e-17};

constexpr int digit_budget = 17; // what the double path can be trusted for

int biased_exponent(double x) {
    std::uint64_t bits;
    __builtin_memcpy(&bits, &x, sizeof bits);
    return static_cast<int>(bits >> 52) & 0x7FF;
}

// A double kept as one: the x87 holds wider exponents in its registers.
double stored(double x) {
    volatile double v = x;
    return v;
}

// The digits of a value in [1, 10): integer part in bits 52 to 55, each
// digit taken off and the rest multiplied by 10, exactly.
struct Register {
    std::uint64_t bits = 0;
    int budget = digit_budget;

    explicit Register(double value) {
        if (value == 0) return;
        std::uint64_t raw;
        __builtin_memcpy(&raw, &value, sizeof raw);
        bits = (raw & 0xFFFFFFFFFFFFFull) | (1ull << 52);
        int shift = biased_exponent(value) - 1023;
        if (shift > 0) bits <<= shift;
        else if (shift < 0) bits = shift > -64 ? bits >> -shift : 0;
    }

    char next_digit() {
        if (budget == 0) return '0';
        --budget;
        unsigned digit = static_cast<unsigned>(bits >> 52) & 15;
        bits &= (1ull << 52) - 1;
        bits = ((bits << 2) + bits) << 1;
        return static_cast<char>('0' + digit);
    }
};

} // namespace

extern "C" {

ORV_HIDDEN void __double_scale(double value, double_decimal *record) {
    record->negative = 0;
    record->exponent = 0;
    int c = __fp_class(value);
    if (c == 1 || c == 6 || c == 9 || c == 5) {
        record->negative = c == 5;
        record->value = value;
        return;
    }
    if (c == 2) {
        record->negative = 1;
        record->value = -value;
        return;
    }
    if (value < 0) {
        value = -value;
        record->negative = 1;
    }
    int e10 = (biased_exponent(value) - 1023) * 19728 / 65536;
    if (e10 != 0) {
        double power = __d_ten_to(static_cast<unsigned>(e10 < 0 ? -e10 : e10));
        value = stored(e10 < 0 ? value * power : value / power);
    }
    if (value >= 10.0) {
        value = stored(value / 10.0);
        ++e10;
    } else if (value < 1.0) {
        value = stored(value * 10.0);
        --e10;
    }
    record->exponent = e10;
    record->value = value;
}

// Half up at `digits` places behind the first digit; a sum landing exactly
// on 10 takes its addend back.
ORV_HIDDEN void __double_round(double_decimal *record, int digits) {
    int c = __fp_class(record->value);
    if (!(c == 3 || c == 4 || c == 7 || c == 8) || digits < 0) return;
    int k = digits > 16 ? 16 : digits;
    double sum = stored(record->value + rounding[k]);
    if (sum > 10.0) {
        sum = stored(sum / 10.0);
        ++record->exponent;
    } else if (sum == 10.0) {
        sum = stored(sum - rounding[k]);
    }
    record->value = sum;
}

// The fixed layout, with exponent + 1 digits before the point.
ORV_HIDDEN void __double_text(format_spec *spec, const double_decimal *record, TextArea *out) {
    int c = __fp_class(record->value);
    if (c == 1 || c == 2 || c == 9) {
        out->put(c == 1 ? "NaN" : record->negative ? "-INF" : "+INF");
        spec->numeric = false;
        spec->pad_blank = true;
        return;
    }
    orv::fmt::put_sign(*out, spec, record->negative);
    Register digits(record->value);
    int count = record->exponent + 1;
    if (count > 0) {
        for (; count > 0; --count) out->put(digits.next_digit());
    } else {
        out->put('0');
    }
    if (spec->precision != 0 || spec->alternate) out->put('.');
    for (int i = 0; i < spec->precision && out->length < orv::fmt::text_area - 1; ++i) {
        if (count < 0) {
            out->put('0');
            ++count;
        } else {
            out->put(digits.next_digit());
        }
    }
    orv::fmt::trim_for_g(*out, spec);
}

} // extern "C"

namespace orv::fmt {

namespace {

int fixed(format_spec *spec, _orv_sink *sink, double_decimal &record) {
    __double_round(&record, record.exponent + spec->precision);
    TextArea out;
    __double_text(spec, &record, &out);
    return __print_field(spec, sink, out.finish(), text_area);
}

int exponential(format_spec *spec, _orv_sink *sink, double_decimal &record) {
    __double_round(&record, spec->precision);
    int exponent = record.exponent;
    record.exponent = 0;
    TextArea out;
    __double_text(spec, &record, &out);
    if (__fp_is_finite(record.value)) put_exponent(out, spec, exponent);
    return __print_field(spec, sink, out.finish(), text_area);
}

} // namespace

int print_double(format_spec *spec, _orv_sink *sink, double value) {
    double_decimal record;
    char style = spec->conversion | 0x20;
    if (style != 'g') {
        if (spec->precision == -1) spec->precision = 6;
        __double_scale(value, &record);
        return style == 'f' ? fixed(spec, sink, record) : exponential(spec, sink, record);
    }
    int p = spec->precision == -1 ? 6 : spec->precision < 1 ? 1 : spec->precision;
    __double_scale(value, &record);
    int x = record.exponent;
    if (x >= -4 && x < p) {
        spec->precision = p - x - 1;
        return fixed(spec, sink, record);
    }
    spec->precision = p - 1;
    return exponential(spec, sink, record);
}

} // namespace orv::fmt
