// What strtol and strtoul share: the lead-in of white space and sign, the
// base and its prefix, and the digits.
#pragma once

#include "clib/ctype/table.h"
#include "include/errno.h"

namespace orv::inttext {

struct lead_in {
    const unsigned char *p; // first candidate digit
    bool negative;
    bool digit_seen;        // a leading 0 taken as a prefix counts
    unsigned base;
};

inline const unsigned char *skip_space(const unsigned char *p) {
    while (ctype::bits(*p) & _IS_SP) ++p;
    return p;
}

// Bases below 2, 16 and 37 up read a prefix; any of them but 0 and 16 is
// reported as EDOM and read as 0.
inline lead_in read_lead_in(const char *text, int base) {
    lead_in in{skip_space(reinterpret_cast<const unsigned char *>(text)), false, false, 0};
    if (*in.p == '+' || *in.p == '-') in.negative = *in.p++ == '-';
    if (base >= 2 && base <= 36 && base != 16) {
        in.base = static_cast<unsigned>(base);
        return in;
    }
    if (base != 0 && base != 16) {
        errno = EDOM;
        base = 0;
    }
    if (*in.p == '0') {
        ++in.p;
        if (*in.p == 'x' || *in.p == 'X') {
            ++in.p;
            in.base = 16;
        } else {
            in.digit_seen = true;
            in.base = base == 16 ? 16 : 8;
        }
    } else {
        in.base = base == 16 ? 16 : 10;
    }
    return in;
}

inline constexpr unsigned not_a_digit = 99;

// The value of an alphanumeric character, else not_a_digit.
inline unsigned digit_value(unsigned char c) {
    int bits = ctype::bits(c);
    if (bits & _IS_DIG) return c - '0';
    if (bits & _IS_LOW) return c - 87u;
    if (bits & _IS_UPP) return c - 55u;
    return not_a_digit;
}

// Where the caller's end pointer goes: behind the digits if there were any.
inline void set_end(char **end, const char *text, const unsigned char *stop, bool digit_seen) {
    if (end != nullptr) *end = digit_seen ? reinterpret_cast<char *>(const_cast<unsigned char *>(stop))
                                          : const_cast<char *>(text);
}

} // namespace orv::inttext
