#include "stdio/format/format.h"

namespace {

// What a character of a conversion can be, looked up once.
enum : unsigned char { flag_char = 1, digit_char = 2, integer_conv = 4, floating_conv = 8 };

struct Kinds {
    unsigned char of[256];
    constexpr Kinds() : of() {
        mark(" #+-0", flag_char);
        mark("0123456789", digit_char);
        mark("diouxX", integer_conv);
        mark("gGfFeE", floating_conv);
    }
    constexpr void mark(const char *chars, unsigned char bit) {
        for (; *chars; ++chars) of[static_cast<unsigned char>(*chars)] |= bit;
    }
};
constexpr Kinds kinds{};

unsigned kind(char c) { return kinds.of[static_cast<unsigned char>(c)]; }

// Digits accumulate with no overflow test, as they always have.
const char *digits(const char *p, int &value) {
    unsigned v = 0;
    while (kind(*p) & digit_char) v = v * 10 + static_cast<unsigned>(*p++ - '0');
    value = static_cast<int>(v);
    return p;
}

const char *flags(format_spec *spec, const char *p) {
    for (; kind(*p) & flag_char; ++p) {
        switch (*p) {
        case ' ': spec->space = true; break;
        case '#': spec->alternate = true; break;
        case '+': spec->plus = true; break;
        case '-': spec->right_justify = false; break;
        default: spec->pad_blank = false; break;
        }
    }
    return p;
}

} // namespace

// Starts behind the '%'; answers the position behind the conversion letter.
// A format that ends early leaves `conversion` 0 and the position on the
// terminator, so nothing past the format is read.
extern "C" const char *__parse_conversion(format_spec *spec, const char *p, orv::fmt::Arguments *arguments) {
    *spec = format_spec{};
    p = flags(spec, p);
    if (*p == '*') {
        int w = arguments->take<int>();
        if (w < 0) {
            spec->right_justify = false;
            w = static_cast<int>(0u - static_cast<unsigned>(w));
        }
        spec->width = w;
        ++p;
    } else if (kind(*p) & digit_char) {
        p = digits(p, spec->width);
    }
    if (*p == '.') {
        ++p;
        if (*p == '*') {
            int q = arguments->take<int>();
            spec->precision = q < 0 ? -1 : q;
            ++p;
        } else {
            p = digits(p, spec->precision);
        }
    }
    if (p[0] == 'l' && p[1] == 'l') {
        p += 2;
        (kind(*p) & floating_conv ? spec->quad_flag : spec->long_long) = true;
    } else if (*p == 'l' || *p == 'L') {
        spec->long_flag = true;
        ++p;
    } else if (*p == 'h') {
        spec->short_flag = true;
        ++p;
    }
    spec->conversion = *p;
    if (*p) ++p;
    unsigned k = kind(spec->conversion);
    if (!spec->right_justify) spec->pad_blank = true;
    if (k & integer_conv) {
        if (spec->precision >= 0) spec->pad_blank = true;
    } else if (!(k & floating_conv)) {
        spec->numeric = false;
        spec->pad_blank = true;
    }
    return p;
}
