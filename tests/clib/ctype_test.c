/* The class table against its published contents; the functions and the
   macros that read it; case changes. */
#include <ctype.h>

#include "harness.h"

/* The class functions themselves, not the header's macros or the
   compiler's built-in idea of them. */
#define FN(n) extern int fn_##n(int) __asm__(#n);
FN(isupper) FN(islower) FN(isalpha) FN(isdigit) FN(isalnum) FN(isspace) FN(ispunct)
FN(isgraph) FN(iscntrl) FN(isprint) FN(isxdigit) FN(isascii) FN(toascii) FN(tolower) FN(toupper)

/* The classes as ranges; a later row overrides an earlier one. */
static const int rows[][3] = {
    {0x00, 0x1F, 0x20}, {0x7F, 0x7F, 0x20}, {0x09, 0x0D, 0x28}, {0x20, 0x20, 0x48},
    {0x21, 0x7E, 0x10}, {'0', '9', 0x84},   {'A', 'F', 0x81},   {'G', 'Z', 0x01},
    {'a', 'f', 0x82},   {'g', 'z', 0x02},   {0x80, 0xFF, 0x00},
};

static int expected(int c) {
    int bits = 0;
    for (unsigned r = 0; c >= 0 && r < sizeof rows / sizeof rows[0]; ++r)
        if (c >= rows[r][0] && c <= rows[r][1]) bits = rows[r][2];
    return bits;
}

int main(void) {
    static const struct { int (*fn)(int); int mask; } classes[] = {
        {fn_isupper, 0x01}, {fn_islower, 0x02}, {fn_isalpha, 0x03}, {fn_isdigit, 0x04},
        {fn_isalnum, 0x07}, {fn_isspace, 0x08}, {fn_ispunct, 0x10}, {fn_isgraph, 0x17},
        {fn_iscntrl, 0x20}, {fn_isprint, 0x57}, {fn_isxdigit, 0x80},
    };
    t_section("table and classes");
    int wrong = 0, changed = 0;
    for (int c = -1; c < 256; ++c) {
        if ((unsigned char)_ctype[c + 1] != expected(c)) ++wrong;
        for (unsigned k = 0; k < sizeof classes / sizeof classes[0]; ++k)
            if (classes[k].fn(c) != (expected(c) & classes[k].mask)) ++wrong;
        if (isalnum(c) != fn_isalnum(c) || isprint(c) != fn_isprint(c) || isspace(c) != fn_isspace(c))
            ++wrong;
        changed += (fn_tolower(c) != c) + (fn_toupper(c) != c);
        if (c >= 'a' && c <= 'z' && (fn_toupper(c) != c - 32 || fn_tolower(c - 32) != c)) ++wrong;
    }
    CHECK_EQ(wrong, 0);
    CHECK_EQ(changed, 52); /* only letters change, EOF and 0x80 up included */
    CHECK_EQ(fn_isdigit('7'), 4);
    CHECK_EQ(isxdigit('7'), 0x80);
    CHECK_EQ(fn_isalnum('a'), 2);

    t_section("ascii");
    CHECK(fn_toascii(0xE9) == 0x69 && toascii(0xE9) == 0x69);
    CHECK(fn_isascii(128) == 0 && fn_isascii(127) == 1 && fn_isascii(-1) == 0 && isascii(-1) == 0);
    return t_finish();
}
