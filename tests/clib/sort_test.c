/* qsort's comparator calls, call by call, around the size where
   partitioning starts; bsearch's probes; division and magnitude.
   A call is traced as two letters, the element indices of its arguments
   ('a' is 0), with '*' for a pointer outside the array (the scratch copy,
   or bsearch's key). */
#include <stdlib.h>

#include "harness.h"
#include "lib_calls.h"
#include "platform/k32_faults.h"

static char trace[8192];
static unsigned calls;
static const int *array;
static unsigned length;

static char letter(const int *p) {
    return p >= array && p < array + length ? (char)('a' + (p - array)) : '*';
}

static int traced(const void *x, const void *y) {
    const int *a = x, *b = y;
    if (2 * calls + 2 < sizeof trace) {
        trace[2 * calls] = letter(a);
        trace[2 * calls + 1] = letter(b);
        trace[2 * calls + 2] = 0;
    }
    ++calls;
    return *a < *b ? -1 : *a > *b;
}

static void start(const int *v, unsigned n) {
    array = v;
    length = n;
    calls = 0;
    trace[0] = 0;
}

static int ascending(const int *v, unsigned n) {
    for (unsigned k = 1; k < n; ++k)
        if (v[k - 1] > v[k]) return 0;
    return 1;
}

/* Sorts v[0..n), checks the order, and answers the trace. */
static const char *sort(int *v, unsigned n) {
    start(v, n);
    qsort(v, n, sizeof *v, traced);
    CHECK(ascending(v, n));
    return trace;
}

static void fill(int *v, unsigned n, int first, int step) {
    for (unsigned k = 0; k < n; ++k) v[k] = first + step * (int)k;
}

static void comparator_calls(void) {
    int v[21];
    t_section("qsort: nine reversed, final pass only");
    fill(v, 9, 9, -1);
    CHECK_STR(sort(v, 9), "a*b*a*c*b*a*d*c*b*a*e*d*c*b*a*f*e*d*c*b*a*g*f*e*d*c*b*a*h*g*f*e*d*c*b*a*");

    t_section("qsort: ten and eleven, sorted, equal, reversed, mixed");
    for (int step = 0; step < 2; ++step) { /* equal keys run the scan up to j */
        fill(v, 10, 5, step);
        CHECK_STR(sort(v, 10), "ajbjcjdjejfjgjhjij" "a*b*c*d*e*f*g*h*i*");
        fill(v, 11, 3, step);
        CHECK_STR(sort(v, 11), "akbkckdkekfkgkhkikjk" "ajbjcjdjejfjgjhjij" "a*b*c*d*e*f*g*h*i*j*");
    }
    fill(v, 10, 9, -1);
    CHECK_STR(sort(v, 10), "ajijhjgjfjejdjcjbj"
                           "a*b*a*c*b*a*d*c*b*a*e*d*c*b*a*f*e*d*c*b*a*g*f*e*d*c*b*a*h*g*f*e*d*c*b*a*i*");
    int mixed[10] = {5, 1, 8, 3, 9, 2, 7, 0, 6, 4};
    /* Two exchanges in the scans, the pivot 4 compared in place at j. */
    CHECK_STR(sort(mixed, 10), "ajijhjbjcjgjfjdjej" "a*b*c*d*e*f*e*g*f*e*h*g*f*i*");

    fill(v, 11, 10, -1);
    CHECK_STR(sort(v, 11), "akjkikhkgkfkekdkckbk" "bkckdkekfkgkhkikjk"
                           "a*b*a*c*b*a*d*c*b*a*e*d*c*b*a*f*e*d*c*b*a*g*f*e*d*c*b*a*h*g*f*e*d*c*b*a*"
                           "i*h*g*f*e*d*c*b*a*j*");

    t_section("qsort: a tie defers the right side");
    fill(v, 10, 0, 1);
    fill(v + 10, 10, 11, 1);
    v[20] = 10; /* lands at index 10 with ten elements either side */
    CHECK_STR(sort(v, 21), "aubucudueufuguhuiujuku" "tusuruqupuounumulu" "ajbjcjdjejfjgjhjij"
                           "lu" "tusuruqupuounumu" "a*b*c*d*e*f*g*h*i*j*k*l*m*n*o*p*q*r*s*"
                           "t*s*r*q*p*o*n*m*l*"); /* 12 was left at the end */
}

static int by_first_byte(const void *x, const void *y) {
    return *(const char *)x - *(const char *)y;
}

/* The key lies above every element; gives up, as found, after 40 calls. */
static int past_each(const void *x, const void *y) {
    (void)x, (void)y;
    return ++calls < 40;
}

static void other_cases(void) {
    t_section("qsort: empty, single, no memory, larger");
    int v[12] = {3, 1, 2, 9, 8, 7, 6, 5, 4, 0, 11, 10};
    unsigned allocs = k32_call_count(K32_HeapAlloc);
    sort(v, 0);
    sort(v, 1);
    CHECK_EQ(calls, 0);
    CHECK_EQ(k32_call_count(K32_HeapAlloc) - allocs, 2); /* the scratch is still taken */
    k32_fail_call(K32_HeapAlloc, 1);
    start(v, 12);
    qsort(v, 12, sizeof v[0], traced);
    CHECK(calls == 0 && v[0] == 3 && v[11] == 10);  /* untouched */
    k32_clear_faults();

    static int big[3000];                           /* deep ranges, many equal keys */
    for (unsigned i = 0, seed = 1; i < 3000; ++i) big[i] = (int)((seed = seed * 1103515245u + 12345u) >> 16) % 500;
    sort(big, 3000);

    struct rec { char key, tag[2]; } recs[13];     /* a three-byte element */
    for (int i = 0; i < 13; ++i) recs[i] = (struct rec){(char)(i * 5 % 13), {(char)i, '!'}};
    qsort(recs, 13, sizeof recs[0], by_first_byte);
    int wrong = 0;
    for (int i = 0; i < 13; ++i) wrong += recs[i].key != i || recs[i].tag[0] != i * 8 % 13 || recs[i].tag[1] != '!';
    CHECK_EQ(wrong, 0);

    t_section("bsearch");
    int w[10], key;
    fill(w, 10, 0, 1);
    static const struct { int key; const char *probes; int found; } searches[] = {
        {3, "*e*b*c*d", 3}, {7, "*e*h", 7}, {10, "*e*h*i*j", -1}, {-1, "*e*b*a", -1},
    };
    for (unsigned k = 0; k < 4; ++k) {
        start(w, 10);
        key = searches[k].key;
        int *r = bsearch(&key, w, 10, sizeof w[0], traced);
        CHECK_STR(trace, searches[k].probes);
        CHECK(r == (searches[k].found < 0 ? 0 : w + searches[k].found));
    }
    fill(w, 3, 7, 0);
    key = 7;
    start(w, 3);
    CHECK(bsearch(&key, w, 3, sizeof w[0], traced) == w + 1); /* equal keys: the middle */
    CHECK(bsearch(&key, w, 0, sizeof w[0], traced) == 0);
    CHECK(bsearch(&key, w + 2, 1, sizeof w[0], traced) == w + 2);
    CHECK_STR(trace, "*b*c");
    /* More than 2^30 elements, of size 0 so that they fit: the middle of
       the upper half must not overflow into a negative index. */
    start(w, 0);
    CHECK(bsearch(&key, w, 0x7FFFFFFF, 0, past_each) == 0);
    CHECK_EQ(calls, 31);

    t_section("div ldiv abs labs");
    div_t d = div(-7, 2), e = div(7, -2);
    ldiv_t l = ldiv(-2147483647L - 1, 10L);
    CHECK(d.quot == -3 && d.rem == -1 && e.quot == -3 && e.rem == 1 && l.quot == -214748364L && l.rem == -8L);
    volatile int most = -2147483647 - 1;
    CHECK(abs(most) == most && labs(most) == most && abs(-5) + labs(-6L) + abs(7) == 18);
}

int main(void) {
    comparator_calls();
    other_cases();
    return t_finish();
}
