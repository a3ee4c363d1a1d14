/* qsort's comparator calls, call by call, on arrays around the size where
   partitioning starts; bsearch's probe order; division and magnitude. */
#include <stdlib.h>

#include "harness.h"
#include "lib_calls.h"
#include "platform/k32_faults.h"

/* One comparator call: where each argument points (an index into the
   array, or -1 outside it) and the two values compared. */
struct call { int first, second, a, b; };

static struct call trace[4096];
static int calls;
static int *array;
static unsigned length;

static int where(const int *p) {
    return p >= array && p < array + length ? (int)(p - array) : -1;
}

static int traced(const void *x, const void *y) {
    const int *a = x, *b = y;
    if (calls < 4096) trace[calls] = (struct call){where(a), where(b), *a, *b};
    ++calls;
    return *a < *b ? -1 : *a > *b;
}

static void sort(int *values, unsigned n) {
    array = values;
    length = n;
    calls = 0;
    qsort(values, n, sizeof *values, traced);
}

static int ascending(const int *v, unsigned n) {
    for (unsigned k = 1; k < n; ++k)
        if (v[k - 1] > v[k]) return 0;
    return 1;
}

/* Checks calls[from..] against (first index, second index, first value)
   triples; the second value is the pivot's or the scratch copy's. */
static void expect_calls(int from, const int (*want)[3], int count) {
    for (int k = 0; k < count; ++k) {
        struct call c = trace[from + k];
        if (c.first != want[k][0] || c.second != want[k][1] || c.a != want[k][2]) {
            CHECK_EQ(from + k, -1);
            CHECK_EQ(c.first, want[k][0]);
            CHECK_EQ(c.second, want[k][1]);
            CHECK_EQ(c.a, want[k][2]);
            return;
        }
    }
}

/* Every call from `from` on is the final pass: element first, the scratch
   copy (outside the array) second. */
static void expect_final_pass(int from) {
    int bad = 0;
    for (int k = from; k < calls; ++k)
        if (trace[k].first < 0 || trace[k].second != -1) ++bad;
    CHECK_EQ(bad, 0);
}

static void small_arrays(void) {
    t_section("qsort: nine elements, final pass only");
    int v9[9] = {9, 8, 7, 6, 5, 4, 3, 2, 1};
    sort(v9, 9);
    CHECK(ascending(v9, 9));
    CHECK_EQ(calls, 36); /* 1 + 2 + ... + 8 */
    expect_final_pass(0);
    /* Insertion of element k walks down from k-1 to 0. */
    int k = 0, ok = 1;
    for (int e = 1; e < 9; ++e)
        for (int j = e - 1; j >= 0; --j, ++k)
            if (trace[k].first != j || trace[k].b != 9 - e) ok = 0;
    CHECK(ok);

    t_section("qsort: ten sorted and ten equal");
    int v10[10];
    for (int pass = 0; pass < 2; ++pass) {
        for (int i = 0; i < 10; ++i) v10[i] = pass ? 5 : i;
        sort(v10, 10);
        CHECK_EQ(calls, 18);
        /* One partition against element 9 in place, up to j, then the pass. */
        for (int i = 0; i < 9; ++i) {
            CHECK_EQ(trace[i].first, i);
            CHECK_EQ(trace[i].second, 9);
        }
        for (int i = 0; i < 9; ++i) CHECK_EQ(trace[9 + i].first, i);
        expect_final_pass(9);
        CHECK(ascending(v10, 10));
    }

    t_section("qsort: ten reversed");
    for (int i = 0; i < 10; ++i) v10[i] = 9 - i;
    sort(v10, 10);
    static const int rev10[9][3] = {{0, 9, 9}, {8, 9, 1}, {7, 9, 2}, {6, 9, 3}, {5, 9, 4},
                                    {4, 9, 5}, {3, 9, 6}, {2, 9, 7}, {1, 9, 8}};
    expect_calls(0, rev10, 9);
    CHECK_EQ(calls, 9 + 37);
    expect_final_pass(9);
    CHECK(ascending(v10, 10));

    t_section("qsort: ten mixed, exchanges in the scan");
    int mixed[10] = {5, 1, 8, 3, 9, 2, 7, 0, 6, 4};
    sort(mixed, 10);
    /* The pivot 4 stays at index 9 through the scans; then 9 and 4 change places. */
    static const int scan[9][3] = {{0, 9, 5}, {8, 9, 6}, {7, 9, 0}, {1, 9, 1}, {2, 9, 8},
                                   {6, 9, 7}, {5, 9, 2}, {3, 9, 3}, {4, 9, 9}};
    expect_calls(0, scan, 9);
    int pivot_seen = 1;
    for (int i = 0; i < 9; ++i)
        if (trace[i].b != 4) pivot_seen = 0;
    CHECK(pivot_seen);
    /* The pass over 0 1 2 3 4 8 7 5 6 9. */
    static const int pass[14][3] = {{0, -1, 0}, {1, -1, 1}, {2, -1, 2}, {3, -1, 3}, {4, -1, 4},
                                    {5, -1, 8}, {4, -1, 4}, {6, -1, 8}, {5, -1, 7}, {4, -1, 4},
                                    {7, -1, 8}, {6, -1, 7}, {5, -1, 5}, {8, -1, 8}};
    expect_calls(9, pass, 14);
    CHECK_EQ(calls, 23);
    for (int i = 0; i < 10; ++i) CHECK_EQ(mixed[i], i);

    t_section("qsort: eleven sorted, equal and reversed");
    int v11[11];
    for (int pass11 = 0; pass11 < 2; ++pass11) {
        for (int i = 0; i < 11; ++i) v11[i] = pass11 ? 3 : i;
        sort(v11, 11);
        /* 0..10 against 10, then the deferred 0..9 against 9, then the pass. */
        CHECK_EQ(calls, 10 + 9 + 10);
        int ok11 = 1;
        for (int i = 0; i < 10; ++i)
            if (trace[i].first != i || trace[i].second != 10) ok11 = 0;
        for (int i = 0; i < 9; ++i)
            if (trace[10 + i].first != i || trace[10 + i].second != 9) ok11 = 0;
        CHECK(ok11);
        expect_final_pass(19);
        CHECK(ascending(v11, 11));
    }
    for (int i = 0; i < 11; ++i) v11[i] = 10 - i;
    sort(v11, 11);
    /* 10 is exchanged with 0, the left side is empty, the right side 1..10
       is partitioned against its last element, now 10. */
    CHECK_EQ(trace[0].first, 0);
    CHECK_EQ(trace[0].second, 10);
    CHECK_EQ(trace[9].first, 1);
    CHECK_EQ(trace[10].first, 1);
    CHECK_EQ(trace[10].second, 10);
    CHECK_EQ(trace[10].b, 10);
    CHECK_EQ(trace[18].first, 9);
    CHECK_EQ(calls, 1 + 9 + 9 + 46);
    expect_final_pass(19);
    CHECK(ascending(v11, 11));

    t_section("qsort: a tie defers the right side");
    /* 0..9, 11..20, then the pivot 10: it lands at index 10 with ten
       elements on either side, and the left ten are partitioned first. */
    int v21[21];
    for (int i = 0; i < 10; ++i) v21[i] = i;
    for (int i = 10; i < 20; ++i) v21[i] = i + 1;
    v21[20] = 10;
    sort(v21, 21);
    CHECK_EQ(trace[10].first, 10);   /* the scan up stops at 11 */
    CHECK_EQ(trace[10].a, 11);
    CHECK_EQ(trace[11].first, 19);   /* the scan down runs to 11 */
    CHECK_EQ(trace[19].first, 11);
    CHECK_EQ(trace[20].first, 0);    /* then 0..9 against element 9 */
    CHECK_EQ(trace[20].second, 9);
    CHECK_EQ(trace[29].first, 11);   /* then 11..20 against element 20 */
    CHECK_EQ(trace[29].second, 20);
    CHECK_EQ(trace[29].b, 11);
    CHECK(ascending(v21, 21));
}


/* Records sorted by their first byte: a three-byte element. */
static int strcmp_key(const void *x, const void *y) {
    return *(const char *)x - *(const char *)y;
}

static void edges(void) {
    t_section("qsort: empty, single, no memory");
    int one[1] = {42};
    unsigned allocs = k32_call_count(K32_HeapAlloc);
    sort(one, 0);
    sort(one, 1);
    CHECK_EQ(calls, 0);
    CHECK_EQ(one[0], 42);
    CHECK_EQ(k32_call_count(K32_HeapAlloc) - allocs, 2); /* the scratch is still taken */

    int v[12] = {3, 1, 2, 9, 8, 7, 6, 5, 4, 0, 11, 10};
    k32_fail_call(K32_HeapAlloc, 1);
    sort(v, 12);
    CHECK_EQ(calls, 0);
    CHECK_EQ(v[0], 3);
    CHECK_EQ(v[11], 10);
    k32_clear_faults();
    sort(v, 12);
    CHECK(ascending(v, 12));

    t_section("qsort: larger arrays and odd element sizes");
    static int big[3000];
    unsigned seed = 12345;
    long long sum = 0;
    for (int i = 0; i < 3000; ++i) {
        seed = seed * 1103515245u + 12345u;
        big[i] = (int)(seed >> 16) % 500; /* many equal keys */
        sum += big[i];
    }
    sort(big, 3000);
    CHECK(ascending(big, 3000));
    long long after = 0;
    for (int i = 0; i < 3000; ++i) after += big[i];
    CHECK_EQ(after, sum);

    struct rec { char key; char tag[2]; } recs[13];
    for (int i = 0; i < 13; ++i) recs[i] = (struct rec){(char)((i * 5) % 13), {(char)('a' + i), '!'}};
    array = 0;
    length = 0;
    qsort(recs, 13, sizeof recs[0], strcmp_key);
    int ok = 1;
    for (int i = 0; i < 13; ++i)
        if (recs[i].key != i || recs[i].tag[1] != '!' || recs[i].tag[0] != 'a' + (i * 8) % 13) ok = 0;
    CHECK(ok);
}

static void searching(void) {
    t_section("bsearch probe order");
    int v[10];
    for (int i = 0; i < 10; ++i) v[i] = i;
    array = v;
    length = 10;
    int key = 3;
    calls = 0;
    int *found = bsearch(&key, v, 10, sizeof v[0], traced);
    CHECK(found == v + 3);
    int probes3[] = {4, 1, 2, 3};
    CHECK_EQ(calls, 4);
    for (int i = 0; i < 4 && i < calls; ++i) {
        CHECK_EQ(trace[i].first, -1); /* the key first */
        CHECK_EQ(trace[i].second, probes3[i]);
    }
    key = 10;
    calls = 0;
    CHECK(bsearch(&key, v, 10, sizeof v[0], traced) == 0);
    int probes10[] = {4, 7, 8, 9};
    CHECK_EQ(calls, 4);
    for (int i = 0; i < 4 && i < calls; ++i) CHECK_EQ(trace[i].second, probes10[i]);
    key = -1;
    calls = 0;
    CHECK(bsearch(&key, v, 10, sizeof v[0], traced) == 0);
    CHECK_EQ(calls, 3); /* 4, 1, 0 */

    t_section("bsearch edges");
    int same[3] = {7, 7, 7};
    array = same;
    length = 3;
    key = 7;
    calls = 0;
    CHECK(bsearch(&key, same, 3, sizeof same[0], traced) == same + 1);
    CHECK_EQ(calls, 1);
    calls = 0;
    CHECK(bsearch(&key, same, 0, sizeof same[0], traced) == 0);
    CHECK_EQ(calls, 0);
    calls = 0;
    CHECK(bsearch(&key, same + 2, 1, sizeof same[0], traced) == same + 2);
    CHECK_EQ(calls, 1);
}

static void division(void) {
    t_section("div ldiv abs labs");
    div_t d = div(-7, 2);
    CHECK_EQ(d.quot, -3);
    CHECK_EQ(d.rem, -1);
    d = div(7, -2);
    CHECK_EQ(d.quot, -3);
    CHECK_EQ(d.rem, 1);
    d = div(-2147483647 - 1, 3);
    CHECK_EQ(d.quot, -715827882);
    CHECK_EQ(d.rem, -2);
    ldiv_t l = ldiv(1000000007L, -10L);
    CHECK_EQ(l.quot, -100000000L);
    CHECK_EQ(l.rem, 7L);
    volatile int most = -2147483647 - 1;
    CHECK_EQ(abs(most), -2147483647 - 1);
    CHECK_EQ(labs((long)most), -2147483647L - 1);
    CHECK_EQ(abs(-5), 5);
    CHECK_EQ(abs(5), 5);
    CHECK_EQ(labs(-123456789L), 123456789L);
}

int main(void) {
    small_arrays();
    edges();
    searching();
    division();
    return t_finish();
}
