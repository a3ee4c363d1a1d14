/* Decimal text to double through the 96-bit number: exact results, the
   range answers, the end pointer, and the powers of ten. */
#include <errno.h>
#include <stdlib.h>
#include <string.h>

#include "harness.h"

static unsigned long long bits_of(double d) {
    unsigned long long b;
    memcpy(&b, &d, sizeof b);
    return b;
}

static const struct {
    const char *text;
    unsigned long long bits;
    int used; /* characters *end moves over; -1: to the end of the text */
    int range_error;
} cases[] = {
    {"1", 0x3FF0000000000000ULL, -1, 0},           {"  +0.1", 0x3FB999999999999AULL, -1, 0},
    {"-2.5e-3x", 0xBF647AE147AE147BULL, 7, 0},     {"1.7976931348623157e308", 0x7FEFFFFFFFFFFFFFULL, -1, 0},
    {"0.30000000000000004", 0x3FD3333333333334ULL, -1, 0}, {"2.2250738585072014e-308", 0x0010000000000000ULL, -1, 0},
    {"1234567890123456789", 0x43B12210F47DE981ULL, -1, 0}, {"123456789012345678901234567890", 0x45F8EE90FF6C373EULL, -1, 0},
    /* 2^64 + 2049: the bit below the 64 kept is dropped, and what is left
       is a tie, which goes to even; the nearest double would be above */
    {"18446744073709553665", 0x43F0000000000000ULL, -1, 0},
    {"0000000000000000000018446744073709553665.000", 0x43F0000000000000ULL, -1, 0},
    /* forty fraction digits: the trailing zeros take no room */
    {"0.1250000000000000000000000000000000000000", 0x3FC0000000000000ULL, -1, 0},
    {"1e5000", 0x7FF0000000000000ULL, -1, 1},      {"-1e5000", 0xFFF0000000000000ULL, -1, 1},
    {"1e99999999999", 0x7FF0000000000000ULL, -1, 1}, /* exponent digits overflow */
    /* ten digits that pass the range of int below the guard: out of range
       too, whichever the sign */
    {"1e4294967289", 0x7FF0000000000000ULL, -1, 1},
    {"-1e-2147483648", 0xFFF0000000000000ULL, -1, 1},
    {"1e-2147483647", 0, -1, 0}, {"0e5000", 0, -1, 0}, {"1e-5000", 0, -1, 0},
    {"1e-320", 0, -1, 0},          /* no denormals */
    {"-0", 0, -1, 0},              /* and no negative zero */
    /* a malformed exponent: end is the text */
    {"1.5e", 0x3FF8000000000000ULL, 0, 0}, {"12e+", 0x4028000000000000ULL, 0, 0},
    {".", 0, 0, 0}, {"5.", 0x4014000000000000ULL, 2, 0}, {"", 0, 0, 0}, {"inf", 0, 0, 0}, {"0x10", 0, 1, 0},
};

int main(void) {
    for (unsigned i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        t_section(cases[i].text); /* strtod */
        char *end = NULL;
        errno = 0;
        double d = strtod(cases[i].text, &end);
        CHECK_HEX(bits_of(d), cases[i].bits);
        int used = cases[i].used < 0 ? (int)strlen(cases[i].text) : cases[i].used;
        CHECK_EQ(end - cases[i].text, used);
        CHECK_EQ(errno, cases[i].range_error ? ERANGE : 0);
    }
    t_section("strtod without an end pointer");
    CHECK_HEX(bits_of(strtod("0.5", NULL)), 0x3FE0000000000000ULL);

    t_section("atof leaves errno alone");
    errno = 77;
    CHECK_HEX(bits_of(atof("1e5000")), 0x7FF0000000000000ULL);
    CHECK_EQ(errno, 77);

    t_section("__d_ten_to");
    CHECK_HEX(bits_of(__d_ten_to(0)), 0x3FF0000000000000ULL);
    CHECK_HEX(bits_of(__d_ten_to(22)), 0x4480F0CF064DD592ULL); /* exact */
    CHECK_HEX(bits_of(__d_ten_to(512)), 0x3FF0000000000000ULL); /* bit 9 doesn't count */
    CHECK_HEX(bits_of(__d_ten_to(512 + 3)), 0x408F400000000000ULL);
    CHECK_HEX(bits_of(__d_ten_to(400)), 0x7FF0000000000000ULL);
    return t_finish();
}
