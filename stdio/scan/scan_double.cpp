#include "stdio/scan/scan.h"
#include "stdio/x96/decimal_text.h"

#include <cstdint>

using namespace orv::scan;

namespace {

// The stream as the decimal readers see it: where the width is used up,
// the character in hand is no digit, point, sign or 'e'.
struct FieldCursor {
    scan_spec *spec;
    int c;
    int current() const { return spec->width != 0 ? c : end_of_input; }
    void advance() { c = take(spec); }
};

// The exact word behind a first letter: each further letter must match,
// and what was read stays consumed. Answers whether all of it matched.
bool exact_word(FieldCursor &in, const char *rest) {
    in.advance();
    for (; *rest != 0; ++rest) {
        if (in.c != *rest) return false;
        in.advance();
    }
    return true;
}

double from_bits(std::uint64_t bits) {
    double d;
    __builtin_memcpy(&d, &bits, sizeof d);
    return d;
}

} // namespace

// strtod over a character stream, within the width. INF and NaN are read
// in exactly these letters; a text that makes no number fails.
extern "C" int __scan_double(scan_spec *spec, int c, double *result) {
    FieldCursor in{spec, skip_space(spec, c)};
    if (spec->width == 0) {
        spec->failed = true;
        return in.c;
    }
    std::uint32_t sign = 0;
    if (in.c == '-' || in.c == '+') {
        sign = in.c == '-' ? 0x80000000u : 0;
        in.advance();
    }
    bool room_for_word = spec->width >= 3 || spec->width < 0;
    if (room_for_word && (in.c == 'I' || in.c == 'N')) {
        bool infinity = in.c == 'I';
        if (!exact_word(in, infinity ? "NF" : "aN")) spec->failed = true;
        else *result = from_bits(static_cast<std::uint64_t>(sign | (infinity ? 0x7FF00000u : 0x7FF80000u)) << 32);
        return in.c;
    }
    orv::decimal::Reading r;
    orv::decimal::read_number(in, r);
    if (!r.valid) spec->failed = true;
    else *result = from_bits(orv::decimal::to_double_bits(r, sign));
    return in.c;
}
