/* The formatted input engine: return values, the look-ahead given back,
   integers and their prefixes, characters, strings and sets, counts, the
   double and quad scanners, and the stream front ends. */
/* The formats are this library's, which the compiler's checks do not know. */
#pragma GCC diagnostic ignored "-Wformat"
#pragma GCC diagnostic ignored "-Wformat-extra-args"
#pragma GCC diagnostic ignored "-Wformat-zero-length"
#pragma GCC diagnostic ignored "-Wformat-contains-nul"
#include <errno.h>
#include <math.h>
#include <quad.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "harness.h"

static unsigned long long bits_of(double d) {
    unsigned long long b;
    memcpy(&b, &d, sizeof b);
    return b;
}

/* A source over a string that records what the engine gives back. */
static const char *src_text;
static int src_at, ungets, ungot;
static int src_get(void *context) {
    (void)context;
    return src_text[src_at] ? (unsigned char)src_text[src_at++] : -1;
}
static int src_unget(int c, struct _orv_source *source) {
    (void)source;
    ++ungets;
    ungot = c;
    --src_at;
    return c;
}
static int scan_source(const char *text, const char *format, void *arg) {
    struct _orv_source source = {0, src_get};
    src_text = text, src_at = ungets = 0, ungot = -2;
    return _scanf_(&source, src_unget, format, &arg);
}

static void results(void) {
    t_section("return values and the character given back");
    int x = 7, n = -1;
    CHECK_EQ(sscanf("", "%d", &x), -1);
    CHECK_EQ(sscanf("   ", "%d", &x), -1);
    CHECK_EQ(sscanf("", ""), -1); /* one read even for an empty format */
    CHECK_EQ(scan_source("abc", "%d", &x), 0);
    CHECK_EQ(x, 7);
    CHECK(ungets == 1 && ungot == 'a' && src_at == 0);
    CHECK_EQ(scan_source("12 34", "%d", &x), 1);
    CHECK(ungets == 1 && ungot == ' ' && src_at == 2);
    CHECK_EQ(scan_source("12", "%d", &x), 1);
    CHECK_EQ(ungets, 0); /* nothing in hand at the end of input */
    CHECK_EQ(sscanf("a", "%*c", &x), -1); /* consumed everything, assigned nothing */
    CHECK_EQ(sscanf("5,6", "%d;%d", &x, &n), 1);
    CHECK(sscanf("5 ,6", "%d , %d", &x, &n) == 2 && n == 6);
    CHECK_EQ(sscanf("%7", "%%%d", &x), 1);
    CHECK_EQ(sscanf(" %7", "%%%d", &x), 0); /* no white space skipped before %% */
    CHECK_EQ(sscanf("1.5", "%F", &x), 0);
    CHECK_EQ(sscanf("x", "x%"), -1); /* a format ending behind '%' */
    const char *volatile none = NULL;
    errno = 0;
    CHECK(sscanf(none, "%d", &x) == -1 && errno == EINVAL);
    errno = 0;
    CHECK(sscanf("1", none) == -1 && errno == EINVAL);
    errno = 0;
    CHECK(fscanf((FILE *)none, "%d", &x) == -1 && errno == EBADF);
    char word[8] = "zzzzzzz";
    /* The set ends at the terminator; the bytes behind it are not members. */
    static const char cut[] = "%[ab\0c]";
    CHECK_EQ(sscanf("abc", cut, word), 1);
    CHECK_STR(word, "ab");
}

static void integers(void) {
    t_section("integers");
    int a = 0, b = 0, n = 0;
    CHECK_EQ(sscanf("12345", "%3d%d", &a, &b), 2);
    CHECK(a == 123 && b == 45);
    static const struct { const char *text, *format; int value, used; } cases[] = {
        {"0x1F", "%i", 31, 4}, {"017", "%i", 15, 3}, {"19", "%i", 19, 2}, {"09", "%i", 9, 2},
        {"-0x10", "%i", -16, 5}, {"0x1F", "%x", 31, 4}, {"ff", "%X", 255, 2}, {"789", "%o", 7, 1},
        {"+42", "%u", 42, 3}, {"0x", "%1i", 0, 1}, {"1000", "%p", 0x1000, 4},
        {"99999999999", "%d", (int)1215752191, 11}, {"  -12", "%d", -12, 5},
    };
    for (unsigned i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        a = -99, n = -1;
        char format[16];
        strcpy(format, cases[i].format);
        strcat(format, "%n");
        sscanf(cases[i].text, format, &a, &n);
        CHECK_EQ(a, cases[i].value);
        CHECK_EQ(n, cases[i].used);
    }
    /* A 0x with no digit behind it fails; so does a lone sign, which stays consumed. */
    n = -1;
    CHECK_EQ(sscanf("0x ", "%x%n", &a, &n), 0);
    CHECK_EQ(n, 2);
    CHECK_EQ(sscanf("-", "%d%n", &a, &n), -1);
    CHECK_EQ(n, 1);
    CHECK_EQ(sscanf("5", "%0d", &a), 0);
    struct { short h; short guard; } s = {0, 0x5555};
    CHECK_EQ(sscanf("65537", "%hd", &s.h), 1);
    CHECK(s.h == 1 && s.guard == 0x5555);
    long long ll = 0;
    int words[2] = {0, 0x5555};
    CHECK_EQ(sscanf("-9223372036854775807 -2", "%lld%ld", &ll, words), 2);
    CHECK(ll == -9223372036854775807LL && words[0] == -2 && words[1] == 0x5555);
    CHECK_EQ(sscanf("18446744073709551617", "%lld", &ll), 1); /* wraps silently */
    CHECK_EQ(ll, 1);
    CHECK_EQ(sscanf("7 8", "%*d%d", &a), 1);
    CHECK_EQ(a, 8);
}

static void characters(void) {
    t_section("characters, strings and sets");
    char buf[16];
    memset(buf, 'z', sizeof buf);
    int n = 0;
    CHECK_EQ(sscanf("abc", "%5c", buf), 1);
    CHECK_MEM(buf, 4, "abcz", 4);
    CHECK_EQ(sscanf(" x", "%c", buf), 1);
    CHECK_EQ(buf[0], ' ');
    CHECK_EQ(sscanf("a", "%c%c", buf, buf + 1), 1);
    CHECK_EQ(sscanf("ab", "%c%n", buf, &n), 1); /* the count includes a pending %c */
    CHECK_EQ(n, 1);
    CHECK_EQ(sscanf("  word next", "%s%n", buf, &n), 1);
    CHECK_STR(buf, "word");
    CHECK_EQ(n, 6);
    CHECK_EQ(sscanf("abcdef", "%3s", buf), 1);
    CHECK_STR(buf, "abc");
    static const struct { const char *text, *format, *stored; } sets[] = {
        {"abcd", "%[abc]", "abc"},     {"x y,z", "%[^,]", "x y"},   {"]a]b", "%[]a]", "]a]"},
        {"abcd", "%[a-c]", "abc"},     {"c-ab", "%[c-a]", "c-a"},   {"a-b", "%[a-]", "a-"},
        {"-a^", "%[-a]", "-a"},        {"]-^x", "%[^^x]", "]-"},    {"\xff\xfe", "%[\xff]", "\xff"},
        {"bcd", "%[a-c-e]", "bcd"},    {"abab", "%3[ab]", "aba"},
    };
    for (unsigned i = 0; i < sizeof sets / sizeof sets[0]; ++i) {
        memset(buf, 'z', sizeof buf);
        CHECK_EQ(sscanf(sets[i].text, sets[i].format, buf), 1);
        CHECK_STR(buf, sets[i].stored);
    }
    CHECK_EQ(sscanf("d", "%[abc]", buf), 0);
}

static void counts(void) {
    t_section("%n");
    int a = 0, b = 0, n = -1, m = -1;
    CHECK_EQ(sscanf("  12  34", "%d%n %d%n", &a, &n, &b, &m), 2);
    CHECK(n == 4 && m == 8);
    n = -1;
    CHECK(sscanf("12", "%d%n", &a, &n) == 1 && n == 2); /* behind the end of input */
    n = -1;
    CHECK(sscanf("12x", "%d%d%n", &a, &b, &n) == 1 && n == 2); /* behind a failed conversion */
    short h = -1;
    CHECK(sscanf("abc", "abc%hn", &h) == -1 && h == 3);
    n = -1;
    CHECK(sscanf("1", "%*d%n", &n) == -1 && n == 1);
}

/* The double scanner is strtod's twin: the same bits, or a failure where
   strtod's end pointer would not move. */
static void doubles(void) {
    t_section("the double scanner");
    static const char *texts[] = {"0.1", "-2.5e-3", "1.7976931348623157e308", "123456789012345678901234567890",
                                  "0.1250000000000000000000000000000000000000", "1e-320", "-0", "5.", ".5e+2"};
    for (unsigned i = 0; i < sizeof texts / sizeof texts[0]; ++i) {
        double d = 0;
        CHECK_EQ(sscanf(texts[i], "%lf", &d), 1);
        CHECK_HEX(bits_of(d), bits_of(strtod(texts[i], NULL)));
    }
    /* Failures, widths and the exact INF and NaN forms. */
    static const struct { const char *text, *format; int result; unsigned long long bits; } cases[] = {
        {"-", "%lf", -1, 0},          {".", "%lf", -1, 0},          {"1e5", "%2lf", 0, 0},
        {"INF -INF", "%lf", 1, 0x7FF0000000000000ULL},              {"-INF", "%lf", 1, 0xFFF0000000000000ULL},
        {"-NaN", "%lf", 1, 0xFFF8000000000000ULL},                  {"inf", "%lf", 0, 0},
        {"INF", "%2lf", 0, 0},        {"1.2345", "%3lf", 1, 0x3FF3333333333333ULL},
    };
    for (unsigned i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        double d = 0;
        CHECK_EQ(sscanf(cases[i].text, cases[i].format, &d), cases[i].result);
        if (cases[i].result == 1) CHECK_HEX(bits_of(d), cases[i].bits);
    }
    double d = 3;
    int n = -1;
    CHECK_EQ(sscanf("12e", "%lf%n", &d, &n), -1); /* the e is consumed: input ended */
    CHECK(d == 3 && n == 3);
    CHECK_EQ(sscanf("INX", "%lf%n", &d, &n), 0); /* a wrong letter stays in hand */
    CHECK_EQ(n, 2);
    t_section("stored widths");
    unsigned char area[20];
    memset(area, 0xAA, sizeof area);
    CHECK_EQ(sscanf("1.5", "%f", area), 1);
    CHECK_MEM(area, 5, "\x00\x00\xc0\x3f\xaa", 5);
    memset(area, 0xAA, sizeof area);
    CHECK_EQ(sscanf("1.5", "%lf", area), 1);
    CHECK_MEM(area, 9, "\x00\x00\x00\x00\x00\x00\xf8\x3f\xaa", 9);
    memset(area, 0xAA, sizeof area);
    /* 1.5e1 needs no scaling, so the quad is exactly (15, +0). */
    CHECK_EQ(sscanf("1.5e1", "%Lf", area), 1);
    CHECK_MEM(area, 17, "\x00\x00\x00\x00\x00\x00\x2e\x40\x00\x00\x00\x00\x00\x00\x00\x00\xaa", 17);
    /* 2.5 is 25 times the pair nearest 1/10: the low part holds what
       that pair misses, far below the last place of the high part. */
    quad q = {0, 0};
    CHECK_EQ(sscanf("2.5", "%llg", &q), 1);
    CHECK(q.hi == 2.5 && q.lo > -1e-31 && q.lo < 1e-31);
}

static void quads(void) {
    t_section("the quad scanner");
    const struct { const char *text; double hi; int used; } cases[] = {
        {"100", 100, 3},   {"1.500", 1.5, 5},   {"12e", 12, 3},   {"1e", 1, 2},      {"-2.5E+2x", -250, 7},
        {"abc", 0, 0},     {"inf", HUGE_VAL, 3}, {"-Inf", -HUGE_VAL, 4}, {"0.000125", 0.000125, 8},
        {"1e-310", 1e-310, 6}, {"1e400", HUGE_VAL, 5},
    };
    for (unsigned i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        quad q = {-1, -1};
        int n = -1;
        CHECK_EQ(sscanf(cases[i].text, "%Lf%n", &q, &n), 1);
        CHECK(q.hi == cases[i].hi);
        CHECK_EQ(n, cases[i].used);
    }
    /* Beyond a double's digits, the low part carries the rest. */
    quad q;
    CHECK_EQ(sscanf("0.1", "%Lf", &q), 1);
    CHECK(q.hi == 0.1 && fabs(q.lo + 5.551115123125783e-18) < 1e-33);
    CHECK_EQ(sscanf("12345678901234567890123", "%Lf", &q), 1);
    CHECK(q.hi == 1.2345678901234568e22 && q.lo == 148683.0); /* exact below 2^106 */
    int n = -1;
    CHECK_EQ(sscanf("1.2.3", "%Lf%n", &q, &n), 0);
    CHECK_EQ(n, 3);
    CHECK_EQ(sscanf("1-2", "%Lf%n", &q, &n), 0);
    CHECK_EQ(sscanf("inx", "%Lf", &q), 0);
    CHECK_EQ(sscanf("NAN", "%Lf", &q), 1);
    CHECK(bits_of(q.hi) == 0x7FF8000000000000ULL && q.lo == 0);
    CHECK_EQ(sscanf("12345", "%3Lf%n", &q, &n), 1);
    CHECK(q.hi == 123 && n == 3);
}

static int scanf_then_getchar(void *arg) {
    (void)arg;
    int x = 0;
    if (scanf("%d", &x) != 1) return 100;
    int next = getchar();
    return x == 12 && next == ';' ? 0 : 101;
}

static void streams(void) {
    t_section("stream front ends");
    t_child child;
    t_run_child(&child, scanf_then_getchar, NULL, "  12;34", 7);
    CHECK(child.exited && child.status == 0);
    t_run_child_piped(&child, scanf_then_getchar, NULL, "12;", 3);
    CHECK(child.exited && child.status == 0);

    FILE *f = fopen("numbers.txt", "w");
    fputs("3 4.5 word\n", f);
    int x = 0;
    errno = 0;
    CHECK_EQ(fscanf(f, "%d", &x), -1);
    CHECK_EQ(errno, EBADF);
    fclose(f);
    f = fopen("numbers.txt", "r");
    double d = 0;
    char word[8];
    CHECK_EQ(fscanf(f, "%d%lf%s", &x, &d, word), 3);
    CHECK(x == 3 && d == 4.5);
    CHECK_STR(word, "word");
    CHECK_EQ(fgetc(f), '\n');
    CHECK_EQ(fscanf(f, "%d", &x), -1);
    fclose(f);
    remove("numbers.txt");
}

int main(void) {
    results();
    integers();
    characters();
    counts();
    doubles();
    quads();
    streams();
    return t_finish();
}
