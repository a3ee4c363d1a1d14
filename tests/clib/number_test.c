/* Integer text: prefixes and bases, the overflow limits in both
   directions, where the end pointer lands, and what errno says. */
#include <errno.h>
#include <stdlib.h>

#include "harness.h"
#include "lib_calls.h"

static char *end;

static long sl(const char *text, int base) {
    errno = 0;
    return strtol(text, &end, base);
}

static unsigned long sul(const char *text, int base) {
    errno = 0;
    return strtoul(text, &end, base);
}

static void prefixes(void) {
    t_section("strtol prefixes");
    const char *t = "0x10";
    CHECK_EQ(sl(t, 16), 16);
    CHECK(end == t + 4);
    CHECK_EQ(sl(t, 0), 16);
    CHECK_EQ(sl(t, 10), 0);
    CHECK(end == t + 1);                /* stops at the x */
    t = "010";
    CHECK_EQ(sl(t, 0), 8);
    CHECK_EQ(sl(t, 16), 16);
    CHECK_EQ(sl(t, 10), 10);
    CHECK_EQ(sl("0X1f", 0), 31);
    CHECK_EQ(sl("019", 0), 1);          /* 9 is no octal digit */
    t = "0x";
    CHECK_EQ(sl(t, 0), 0);
    CHECK(end == t);                    /* no digit behind the prefix */
    t = "0xg";
    CHECK_EQ(sl(t, 16), 0);
    CHECK(end == t);
    t = "0";
    CHECK_EQ(sl(t, 0), 0);
    CHECK(end == t + 1);                /* the lone 0 is a digit */
    t = "  \t\n-0x7fffffff!";
    CHECK_EQ(sl(t, 0), -2147483647);
    CHECK(end == t + 15);
    CHECK_EQ(errno, 0);
    CHECK_EQ(sl("0x12", 36), 33 * 36 * 36 + 36 + 2); /* 0, x, 1, 2 are all digits */
    CHECK_EQ(sl("zZ", 36), 35 * 36 + 35);
    CHECK_EQ(sl("z", 35), 0);
    CHECK_EQ(sl("1010", 2), 10);
    CHECK_EQ(sl("0x10", 15), 0);        /* no prefix outside the prefix bases */
    t = "+-1";
    CHECK_EQ(sl(t, 10), 0);
    CHECK(end == t);
    t = "";
    CHECK_EQ(sl(t, 10), 0);
    CHECK(end == t);
    CHECK_EQ(strtol("123", 0, 10), 123); /* a null end is allowed */

    t_section("bad bases");
    CHECK_EQ(sl("12", 1), 12);
    CHECK_EQ(errno, EDOM);
    CHECK_EQ(sl("0x1A", 40), 26);
    CHECK_EQ(errno, EDOM);
    CHECK_EQ(sl("017", -5), 15);
    CHECK_EQ(errno, EDOM);
    CHECK_EQ(sl("12", 37), 12);
    CHECK_EQ(errno, EDOM);
    CHECK_EQ(sl("12", 36), 38);
    CHECK_EQ(errno, 0);
    CHECK_EQ(sul("0x10", 1), 16);
    CHECK_EQ(errno, EDOM);
}

static void limits(void) {
    t_section("strtol limits");
    const char *t = "2147483648xyz";
    CHECK_EQ(sl(t, 10), 2147483647);
    CHECK_EQ(errno, ERANGE);
    CHECK(end == t + 10);
    CHECK_EQ(sl("2147483647", 10), 2147483647);
    CHECK_EQ(errno, 0);
    CHECK_EQ(sl("-2147483648", 10), -2147483647 - 1);
    CHECK_EQ(errno, 0);
    CHECK_EQ(sl("-2147483649", 10), -2147483647 - 1);
    CHECK_EQ(errno, ERANGE);
    t = "99999999999999999999999 ";
    CHECK_EQ(sl(t, 10), 2147483647);
    CHECK_EQ(errno, ERANGE);
    CHECK(end == t + 23);               /* digits after the overflow are read */
    CHECK_EQ(sl("-0x80000000", 0), -2147483647 - 1);
    CHECK_EQ(errno, 0);
    CHECK_EQ(sl("0x80000000", 0), 2147483647);
    CHECK_EQ(errno, ERANGE);
    CHECK_EQ(sl("-10000000000000000000000000000000", 2), -2147483647 - 1);
    CHECK_EQ(errno, 0);
    CHECK_EQ(sl("zik0zj", 36), 2147483647);  /* 36^5 range, exactly the maximum */
    CHECK_EQ(errno, 0);
    CHECK_EQ(sl("zik0zk", 36), 2147483647);
    CHECK_EQ(errno, ERANGE);

    t_section("strtoul limits");
    CHECK_HEX(sul("-1", 10), 0xFFFFFFFFu);
    CHECK_EQ(errno, 0);
    CHECK_HEX(sul("4294967295", 10), 0xFFFFFFFFu);
    CHECK_EQ(errno, 0);
    CHECK_HEX(sul("4294967296", 10), 0xFFFFFFFFu);
    CHECK_EQ(errno, ERANGE);
    CHECK_HEX(sul("-4294967296", 10), 1);
    CHECK_EQ(errno, ERANGE);
    CHECK_HEX(sul("-4294967295", 10), 1);
    CHECK_EQ(errno, 0);
    CHECK_HEX(sul("0xFFFFFFFF", 0), 0xFFFFFFFFu);
    CHECK_HEX(sul("0x100000000", 0), 0xFFFFFFFFu);
    CHECK_EQ(errno, ERANGE);
    CHECK_HEX(sul("4294967290", 10), 4294967290u);
    CHECK_HEX(sul("4294967300", 10), 0xFFFFFFFFu); /* the last digit overflows the add */
    CHECK_EQ(errno, ERANGE);
    CHECK_HEX(sul("2147483648", 10), 0x80000000u);
    t = "  +777 ";
    CHECK_EQ(sul(t, 0), 777);          /* no leading 0: decimal */
    CHECK(end == t + 6);
}

static void plain(void) {
    t_section("atoi atol");
    errno = 0;
    CHECK_EQ(atoi("4294967297"), 1);    /* wraps, no test */
    CHECK_EQ(atoi("2147483648"), -2147483647 - 1);
    CHECK_EQ(atoi("  -42abc"), -42);
    CHECK_EQ(atoi("+7"), 7);
    CHECK_EQ(atoi("x7"), 0);
    CHECK_EQ(atoi("-"), 0);
    CHECK_EQ(atoi("0x10"), 0);
    CHECK_EQ(atol("\v\f\r 123456789"), 123456789L);
    CHECK_EQ(atol("-2147483648"), -2147483647L - 1);
    CHECK_EQ(atol("99999999999"), (long)(99999999999LL & 0xFFFFFFFF) );
    CHECK_EQ(errno, 0);
    CHECK_EQ(atoi("\xE9" "5"), 0);       /* a byte above 0x7F is no space */
}

int main(void) {
    prefixes();
    limits();
    plain();
    return t_finish();
}
