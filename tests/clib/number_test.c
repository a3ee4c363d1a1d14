/* Integer text: prefixes and bases, overflow at both limits, where the end
   pointer lands, and what errno says. */
#include <errno.h>
#include <stdlib.h>

#include "harness.h"

static const struct {
    const char *text;
    int base;
    long value;
    int used; /* characters taken, 0: *end is the text */
    int error;
} signed_cases[] = {
    {"0x10", 16, 16, 4, 0},       {"0x10", 0, 16, 4, 0},       {"0x10", 10, 0, 1, 0},
    {"010", 0, 8, 3, 0},          {"010", 16, 16, 3, 0},       {"019", 0, 1, 2, 0},
    {"0x", 0, 0, 0, 0},           {"0xg", 16, 0, 0, 0},        {"0", 0, 0, 1, 0},
    {"0x10", 15, 0, 1, 0},        {"0x12", 36, 42806, 4, 0},   {"+-1", 10, 0, 0, 0},
    {"", 10, 0, 0, 0},            {" \t\n-0x7fffffff!", 0, -2147483647, 14, 0},
    {"12", 1, 12, 2, EDOM},       {"0x1A", 40, 26, 4, EDOM},   {"017", -5, 15, 3, EDOM},
    {"12", 37, 12, 2, EDOM},      {"12", 36, 38, 2, 0},
    {"2147483647", 10, 2147483647, 10, 0},  {"2147483648x", 10, 2147483647, 10, ERANGE},
    {"-2147483648", 10, -2147483647 - 1, 11, 0},
    {"-2147483649", 10, -2147483647 - 1, 11, ERANGE},
    {"99999999999999999999999 ", 10, 2147483647, 23, ERANGE},
    {"-0x80000000", 0, -2147483647 - 1, 11, 0}, {"0x80000000", 0, 2147483647, 10, ERANGE},
    {"zik0zj", 36, 2147483647, 6, 0},           {"zik0zk", 36, 2147483647, 6, ERANGE},
};

static const struct {
    const char *text;
    int base;
    unsigned long value;
    int error;
} unsigned_cases[] = {
    {"-1", 10, 0xFFFFFFFFu, 0},          {"4294967295", 10, 0xFFFFFFFFu, 0},
    {"4294967296", 10, 0xFFFFFFFFu, ERANGE}, {"-4294967296", 10, 1, ERANGE},
    {"-4294967295", 10, 1, 0},           {"0x100000000", 0, 0xFFFFFFFFu, ERANGE},
    {"4294967300", 10, 0xFFFFFFFFu, ERANGE}, {"4294967290", 10, 4294967290u, 0},
    {"  +777 ", 0, 777, 0},              {"0x10", 1, 16, EDOM},
};

int main(void) {
    char *end;
    for (unsigned k = 0; k < sizeof signed_cases / sizeof signed_cases[0]; ++k) {
        const char *text = signed_cases[k].text;
        t_section(text); /* strtol */
        errno = 0;
        CHECK_EQ(strtol(text, &end, signed_cases[k].base), signed_cases[k].value);
        CHECK_EQ(errno, signed_cases[k].error);
        CHECK_EQ(end - text, signed_cases[k].used);
    }
    t_section("strtol without an end pointer");
    CHECK_EQ(strtol("123", 0, 10), 123);
    for (unsigned k = 0; k < sizeof unsigned_cases / sizeof unsigned_cases[0]; ++k) {
        t_section(unsigned_cases[k].text); /* strtoul */
        errno = 0;
        CHECK_HEX(strtoul(unsigned_cases[k].text, 0, unsigned_cases[k].base), unsigned_cases[k].value);
        CHECK_EQ(errno, unsigned_cases[k].error);
    }

    t_section("atoi atol");
    errno = 0;
    CHECK_EQ(atoi("4294967297"), 1);            /* wraps, with no test */
    CHECK_EQ(atoi("2147483648"), -2147483647 - 1);
    CHECK_EQ(atoi("  -42abc") + atoi("+7") + atoi("x7") + atoi("-") + atoi("0x10"), -35);
    CHECK_EQ(atol("\v\f\r 123456789"), 123456789L);
    CHECK_EQ(atoi("\xE9" "5"), 0);              /* 0xE9 is no space */
    CHECK_EQ(errno, 0);
    return t_finish();
}
