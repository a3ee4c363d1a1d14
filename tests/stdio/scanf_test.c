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

/* Rows of conversions into int: what sscanf answers and what the first
   `set` of the four int arguments hold after it; the rest stay untouched
   (U). */
#define U -99
static const struct { const char *text, *format; int result, set, v[4]; } int_rows[] = {
    {"", "%d", -1, 0, {0}},           {"   ", "%d", -1, 0, {0}},
    {"", "", -1, 0, {0}},             /* one read even for an empty format */
    {"a", "%*c", -1, 0, {0}},         /* consumed everything, assigned nothing */
    {"5,6", "%d;%d", 1, 1, {5}},      {"5 ,6", "%d , %d", 2, 2, {5, 6}},
    {"%7", "%%%d", 1, 1, {7}},        {" %7", "%%%d", 0, 0, {0}}, /* no white space skipped before %% */
    {"1.5", "%F", 0, 0, {0}},         {"x", "x%", -1, 0, {0}},    /* a format ending behind '%' */
    {"12345", "%3d%d", 2, 2, {123, 45}}, {"0x1F", "%i%n", 1, 2, {31, 4}},
    {"017", "%i%n", 1, 2, {15, 3}},   {"19", "%i%n", 1, 2, {19, 2}},   {"09", "%i%n", 1, 2, {9, 2}},
    {"-0x10", "%i%n", 1, 2, {-16, 5}}, {"0x1F", "%x%n", 1, 2, {31, 4}}, {"ff", "%X%n", 1, 2, {255, 2}},
    {"789", "%o%n", 1, 2, {7, 1}},    {"+42", "%u%n", 1, 2, {42, 3}},  {"0x", "%1i%n", 1, 2, {0, 1}},
    {"1000", "%p%n", 1, 2, {0x1000, 4}}, {"99999999999", "%d%n", 1, 2, {(int)1215752191, 11}},
    {"  -12", "%d%n", 1, 2, {-12, 5}}, {"5", "%0d", 0, 0, {0}},     {"7 8", "%*d%d", 1, 1, {8}},
    /* A 0x with no digit behind it fails; so does a lone sign, which stays consumed. */
    {"0x ", "%x%n", 0, 2, {U, 2}},    {"-", "%d%n", -1, 2, {U, 1}},
    /* %n's count: behind the end of input, behind a failed conversion. */
    {"  12  34", "%d%n %d%n", 2, 4, {12, 4, 34, 8}}, {"12", "%d%n", 1, 2, {12, 2}},
    {"12x", "%d%d%n", 1, 3, {12, U, 2}}, {"1", "%*d%n", -1, 1, {1}},
};

/* "format | text" as the section name of a row, so that a failure names it. */
static void row_section(const char *format, const char *text) {
    static char name[80];
    unsigned n = 0;
    for (const char *p = format; *p && n < 30;) name[n++] = *p++;
    name[n++] = ' ', name[n++] = '|', name[n++] = ' ';
    for (const char *p = text; *p && n < 78;) name[n++] = *p++;
    name[n] = 0;
    t_section(name);
}

static void int_conversions(void) {
    for (unsigned i = 0; i < sizeof int_rows / sizeof int_rows[0]; ++i) {
        row_section(int_rows[i].format, int_rows[i].text);
        int v[4] = {U, U, U, U};
        CHECK_EQ(sscanf(int_rows[i].text, int_rows[i].format, v, v + 1, v + 2, v + 3), int_rows[i].result);
        for (int k = 0; k < 4; ++k) CHECK_EQ(v[k], k < int_rows[i].set ? int_rows[i].v[k] : U);
    }
    t_section("integer widths");
    struct { short h; short guard; } s = {0, 0x5555};
    CHECK_EQ(sscanf("65537", "%hd", &s.h), 1);
    CHECK(s.h == 1 && s.guard == 0x5555);
    long long ll = 0;
    int words[2] = {0, 0x5555};
    CHECK_EQ(sscanf("-9223372036854775807 -2", "%lld%ld", &ll, words), 2);
    CHECK(ll == -9223372036854775807LL && words[0] == -2 && words[1] == 0x5555);
    CHECK_EQ(sscanf("18446744073709551617", "%lld", &ll), 1); /* wraps silently */
    CHECK_EQ(ll, 1);
    short h = -1;
    CHECK(sscanf("abc", "abc%hn", &h) == -1 && h == 3);
}

static void source_and_arguments(void) {
    t_section("the character given back");
    int x = 7;
    CHECK_EQ(scan_source("abc", "%d", &x), 0);
    CHECK(x == 7 && ungets == 1 && ungot == 'a' && src_at == 0);
    CHECK_EQ(scan_source("12 34", "%d", &x), 1);
    CHECK(ungets == 1 && ungot == ' ' && src_at == 2);
    CHECK_EQ(scan_source("12", "%d", &x), 1);
    CHECK_EQ(ungets, 0); /* nothing in hand at the end of input */
    t_section("no text, no format, no stream");
    const char *volatile none = NULL;
    errno = 0;
    CHECK(sscanf(none, "%d", &x) == -1 && errno == EINVAL);
    errno = 0;
    CHECK(sscanf("1", none) == -1 && errno == EINVAL);
    errno = 0;
    CHECK(fscanf((FILE *)none, "%d", &x) == -1 && errno == EBADF);
}

/* Characters, strings and sets into a buffer of 'z's, with %n's count
   behind them (U: untouched). */
static const struct { const char *text, *format; int result; const char *stored; int used; } char_rows[] = {
    {"abc", "%5c", 1, "abczzzzz", U}, {" x", "%c", 1, " zzzzzzz", U}, {"a", "%c%c", 1, "azzzzzzz", U},
    {"ab", "%c%n", 1, "azzzzzzz", 1}, /* the count includes a pending %c */
    {"  word next", "%s%n", 1, "word", 6}, {"abcdef", "%3s", 1, "abc", U},
    {"abcd", "%[abc]", 1, "abc", U},  {"x y,z", "%[^,]", 1, "x y", U}, {"]a]b", "%[]a]", 1, "]a]", U},
    {"abcd", "%[a-c]", 1, "abc", U},  {"c-ab", "%[c-a]", 1, "c-a", U}, {"a-b", "%[a-]", 1, "a-", U},
    {"-a^", "%[-a]", 1, "-a", U},     {"]-^x", "%[^^x]", 1, "]-", U}, {"\xff\xfe", "%[\xff]", 1, "\xff", U},
    {"bcd", "%[a-c-e]", 1, "bcd", U}, {"abab", "%3[ab]", 1, "aba", U}, {"d", "%[abc]", 0, "zzzzzzzz", U},
    /* The set ends at the terminator; the bytes behind it are not members. */
    {"abc", "%[ab\0c]", 1, "ab", U},
};

static void characters(void) {
    for (unsigned i = 0; i < sizeof char_rows / sizeof char_rows[0]; ++i) {
        row_section(char_rows[i].format, char_rows[i].text);
        char buf[16] = "zzzzzzzz";
        int n = U;
        CHECK_EQ(sscanf(char_rows[i].text, char_rows[i].format, buf, &n), char_rows[i].result);
        CHECK_STR(buf, char_rows[i].stored);
        CHECK_EQ(n, char_rows[i].used);
    }
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
    /* Failures, widths and the exact INF and NaN forms; bits 0: the 3 the
       argument held before. */
    static const struct { const char *text, *format; int result; unsigned long long bits; int used; } rows[] = {
        {"-", "%lf", -1, 0, U},   {".", "%lf", -1, 0, U},   {"1e5", "%2lf", 0, 0, U},   {"inf", "%lf", 0, 0, U},
        {"INF", "%2lf", 0, 0, U}, {"INF -INF", "%lf", 1, 0x7FF0000000000000ULL, U},
        {"-INF", "%lf", 1, 0xFFF0000000000000ULL, U}, {"-NaN", "%lf", 1, 0xFFF8000000000000ULL, U},
        {"1.2345", "%3lf", 1, 0x3FF3333333333333ULL, U},
        {"12e", "%lf%n", -1, 0, 3}, /* the e is consumed: input ended */
        {"INX", "%lf%n", 0, 0, 2},  /* a wrong letter stays in hand */
    };
    for (unsigned i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        row_section(rows[i].format, rows[i].text);
        double d = 3;
        int n = U;
        CHECK_EQ(sscanf(rows[i].text, rows[i].format, &d, &n), rows[i].result);
        CHECK_HEX(bits_of(d), rows[i].bits ? rows[i].bits : bits_of(3));
        CHECK_EQ(n, rows[i].used);
    }
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
    /* The high part (-1: untouched) and %n's count. */
    const struct { const char *text, *format; int result; double hi; int used; } rows[] = {
        {"100", "%Lf%n", 1, 100, 3},   {"1.500", "%Lf%n", 1, 1.5, 5},   {"12e", "%Lf%n", 1, 12, 3},
        {"1e", "%Lf%n", 1, 1, 2},      {"-2.5E+2x", "%Lf%n", 1, -250, 7}, {"abc", "%Lf%n", 1, 0, 0},
        {"inf", "%Lf%n", 1, HUGE_VAL, 3}, {"-Inf", "%Lf%n", 1, -HUGE_VAL, 4}, {"1e400", "%Lf%n", 1, HUGE_VAL, 5},
        {"0.000125", "%Lf%n", 1, 0.000125, 8}, {"1e-310", "%Lf%n", 1, 1e-310, 6}, {"12345", "%3Lf%n", 1, 123, 3},
        {"1.2.3", "%Lf%n", 0, -1, 3},  {"1-2", "%Lf", 0, -1, U},        {"inx", "%Lf", 0, -1, U},
    };
    for (unsigned i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        row_section(rows[i].format, rows[i].text);
        quad q = {-1, -1};
        int n = U;
        CHECK_EQ(sscanf(rows[i].text, rows[i].format, &q, &n), rows[i].result);
        CHECK(q.hi == rows[i].hi);
        CHECK_EQ(n, rows[i].used);
    }
    t_section("the quad scanner's low part");
    /* Beyond a double's digits, the low part carries the rest. */
    quad q;
    CHECK_EQ(sscanf("0.1", "%Lf", &q), 1);
    CHECK(q.hi == 0.1 && fabs(q.lo + 5.551115123125783e-18) < 1e-33);
    CHECK_EQ(sscanf("12345678901234567890123", "%Lf", &q), 1);
    CHECK(q.hi == 1.2345678901234568e22 && q.lo == 148683.0); /* exact below 2^106 */
    CHECK_EQ(sscanf("NAN", "%Lf", &q), 1);
    CHECK(bits_of(q.hi) == 0x7FF8000000000000ULL && q.lo == 0);
}

static int scanf_then_getchar(void *arg) {
    int x = 0;
    (void)arg;
    return scanf("%d", &x) == 1 && x == 12 && getchar() == ';' ? 0 : 1;
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
    int_conversions();
    source_and_arguments();
    characters();
    doubles();
    quads();
    streams();
    return t_finish();
}
