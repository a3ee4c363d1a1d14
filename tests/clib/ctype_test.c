/* The class table against its published contents, and the functions and
   macros that read it. */
#include <ctype.h>

#include "harness.h"
#include "lib_calls.h"

#ifndef EOF
#define EOF (-1)
#endif

struct row { int lo, hi, bits; };

/* The classes as ranges, later rows overriding earlier ones. */
static const struct row rows[] = {
    {0x00, 0x1F, 0x20}, {0x7F, 0x7F, 0x20}, {0x09, 0x0D, 0x28}, {0x20, 0x20, 0x48},
    {0x21, 0x7E, 0x10}, {'0', '9', 0x84},   {'A', 'F', 0x81},   {'G', 'Z', 0x01},
    {'a', 'f', 0x82},   {'g', 'z', 0x02},   {0x80, 0xFF, 0x00},
};

static int expected_bits(int c) {
    int bits = -1;
    for (unsigned r = 0; r < sizeof rows / sizeof rows[0]; ++r)
        if (c >= rows[r].lo && c <= rows[r].hi) bits = rows[r].bits;
    return bits;
}

static void table_contents(void) {
    t_section("table");
    CHECK_EQ(_ctype[0], 0);
    int wrong = 0;
    for (int c = 0; c < 256; ++c)
        if ((unsigned char)_ctype[c + 1] != expected_bits(c)) {
            CHECK_HEX((unsigned char)_ctype[c + 1], expected_bits(c));
            if (++wrong > 5) break;
        }
    CHECK_EQ(wrong, 0);
    CHECK_EQ(sizeof _ctype, 257);
}

/* Every function answers the table entry under its mask, as do the macros. */
static void class_functions(void) {
    t_section("class functions");
    static const struct { int (*fn)(int); int mask; const char *name; } classes[] = {
        {fn_isupper, 0x01, "isupper"}, {fn_islower, 0x02, "islower"}, {fn_isalpha, 0x03, "isalpha"},
        {fn_isdigit, 0x04, "isdigit"}, {fn_isalnum, 0x07, "isalnum"}, {fn_isspace, 0x08, "isspace"},
        {fn_ispunct, 0x10, "ispunct"}, {fn_isgraph, 0x17, "isgraph"}, {fn_iscntrl, 0x20, "iscntrl"},
        {fn_isprint, 0x57, "isprint"}, {fn_isxdigit, 0x80, "isxdigit"},
    };
    int wrong = 0;
    for (unsigned k = 0; k < sizeof classes / sizeof classes[0]; ++k)
        for (int c = EOF; c < 256; ++c) {
            int want = c == EOF ? 0 : expected_bits(c) & classes[k].mask;
            if (classes[k].fn(c) != want) {
                t_note(classes[k].name);
                CHECK_HEX(classes[k].fn(c), want);
                ++wrong;
                break;
            }
        }
    CHECK_EQ(wrong, 0);

    /* The macros read the same table. */
    for (int c = EOF; c < 256; ++c) {
        if (isalnum(c) != fn_isalnum(c) || isprint(c) != fn_isprint(c) ||
            isxdigit(c) != fn_isxdigit(c) || isspace(c) != fn_isspace(c) ||
            iscntrl(c) != fn_iscntrl(c) || isgraph(c) != fn_isgraph(c)) {
            CHECK_EQ(c, -2);
            break;
        }
    }

    CHECK_EQ(isdigit('7'), 4);
    CHECK_EQ(fn_isdigit('7'), 4);
    CHECK_EQ(fn_isxdigit('7'), 0x80);
    CHECK_EQ(fn_isxdigit('g'), 0);
    CHECK_EQ(fn_isalnum('a'), 2);
    CHECK(fn_isprint(' ') != 0);
    CHECK_EQ(fn_isgraph(' '), 0);
    CHECK_EQ(fn_isspace(' '), 8);
    CHECK_EQ(fn_ispunct(' '), 0);
    CHECK(fn_iscntrl(0x7F) != 0);
    CHECK_EQ(fn_isalpha(0xE9), 0);
    CHECK_EQ(fn_isalpha(EOF), 0);
    int spaces = 0;
    for (int c = 0; c < 256; ++c)
        if (fn_isspace(c)) spaces += c;
    CHECK_EQ(spaces, 0x09 + 0x0A + 0x0B + 0x0C + 0x0D + 0x20);
}

static void case_and_ascii(void) {
    t_section("case and ascii");
    CHECK_EQ(fn_toupper(EOF), EOF);
    CHECK_EQ(fn_tolower(EOF), EOF);
    CHECK_EQ(fn_tolower('Z'), 'z');
    CHECK_EQ(fn_toupper('a'), 'A');
    CHECK_EQ(fn_toupper('z'), 'Z');
    int changed = 0;
    for (int c = 0; c < 256; ++c) {
        if (fn_tolower(c) != c) ++changed;
        if (fn_toupper(c) != c) ++changed;
        if (c >= 'A' && c <= 'Z') CHECK_EQ(fn_tolower(c), c + 32);
    }
    CHECK_EQ(changed, 52); /* only the 26 letters each way, nothing above 0x7F */
    CHECK_EQ(fn_toupper(0xE9), 0xE9);
    CHECK_EQ(fn_toupper('['), '[');

    CHECK_EQ(toascii(0xE9), 0x69);
    CHECK_EQ(fn_toascii(0xE9), 0x69);
    CHECK_EQ(fn_isascii(128), 0);
    CHECK_EQ(fn_isascii(127), 1);
    CHECK_EQ(fn_isascii(0), 1);
    CHECK_EQ(fn_isascii(-1), 0);
    CHECK_EQ(isascii(-1), 0);
}

int main(void) {
    table_contents();
    class_functions();
    case_and_ascii();
    return t_finish();
}
