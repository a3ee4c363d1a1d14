#include "stdio/format/format.h"

namespace {

bool is_floating(char c) {
    return c == 'g' || c == 'G' || c == 'f' || c == 'F' || c == 'e' || c == 'E';
}

bool is_integer(char c) {
    return c == 'd' || c == 'i' || c == 'o' || c == 'u' || c == 'x' || c == 'X';
}

// Digits accumulate with no overflow test, as they always have.
const char *digits(const char *p, int &value) {
    unsigned v = 0;
    while (*p >= '0' && *p <= '9') v = v * 10 + static_cast<unsigned>(*p++ - '0');
    value = static_cast<int>(v);
    return p;
}

} // namespace

// Starts behind the '%'; answers the position behind the conversion letter.
// A format that ends early leaves `conversion` 0 and the position on the
// terminator, so nothing past the format is read.
extern "C" const char *__parse_conversion(format_spec *spec, const char *p, orv::fmt::Arguments *arguments) {
    *spec = format_spec{};
    for (;; ++p) {
        if (*p == ' ') spec->space = true;
        else if (*p == '#') spec->alternate = true;
        else if (*p == '+') spec->plus = true;
        else if (*p == '-') spec->right_justify = false;
        else if (*p == '0') spec->pad_blank = false;
        else break;
    }
    if (*p == '*') {
        int w = arguments->take<int>();
        if (w < 0) {
            spec->right_justify = false;
            w = -w;
        }
        spec->width = w;
        ++p;
    } else if (*p >= '0' && *p <= '9') {
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
        (is_floating(*p) ? spec->quad_flag : spec->long_long) = true;
    } else if (*p == 'l' || *p == 'L') {
        spec->long_flag = true;
        ++p;
    } else if (*p == 'h') {
        spec->short_flag = true;
        ++p;
    }
    spec->conversion = *p;
    if (*p) ++p;
    bool right = spec->right_justify;
    if (!right && !spec->pad_blank) spec->pad_blank = true;
    if (is_integer(spec->conversion)) {
        if (spec->precision >= 0) spec->pad_blank = true;
    } else if (!is_floating(spec->conversion)) {
        spec->numeric = false;
        spec->pad_blank = true;
    }
    return p;
}
