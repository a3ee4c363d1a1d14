/* Block and string functions, number text and qsort, against the host's C library.
   Every call goes through a volatile pointer so that neither compiler can
   answer it in line. */
#include <stdlib.h>
#include <string.h>

#include "bench.h"

static void *(*volatile p_memcpy)(void *, const void *, size_t) = memcpy;
static void *(*volatile p_memmove)(void *, const void *, size_t) = memmove;
static void *(*volatile p_memset)(void *, int, size_t) = memset;
static size_t (*volatile p_strlen)(const char *) = strlen;
static int (*volatile p_strcmp)(const char *, const char *) = strcmp;
static char *(*volatile p_strchr)(const char *, int) = strchr;
static long (*volatile p_strtol)(const char *, char **, int) = strtol;
static double (*volatile p_strtod)(const char *, char **) = strtod;

#define MIB (1u << 20)
static unsigned char src[MIB + 64], dst[MIB + 64];

static void name_size(char *out, const char *prefix, unsigned size) {
    unsigned n = 0;
    while (prefix[n]) { out[n] = prefix[n]; ++n; }
    char digits[12];
    int d = 0;
    do { digits[d++] = (char)('0' + size % 10); size /= 10; } while (size);
    while (d) out[n++] = digits[--d];
    out[n] = 0;
}

/* About 64 MiB moved per case, at least 1000 calls. memmove_up moves a
   block one byte up over its own source, which must be copied from the
   end; memmove_down moves it three bytes down, copied from the start. */
static unsigned reps_for(unsigned size) {
    unsigned r = (64u * MIB) / size;
    return r < 1000 ? 1000 : r > 4000000 ? 4000000 : r;
}

static void blocks(void) {
    static const unsigned sizes[] = {8, 64, 512, 4096, 65536, MIB};
    char name[64];
    for (unsigned k = 0; k < sizeof sizes / sizeof sizes[0]; ++k) {
        unsigned size = sizes[k], reps = reps_for(size);
        double t = bench_now();
        for (unsigned r = 0; r < reps; ++r) p_memcpy(dst, src, size);
        name_size(name, "memcpy_", size);
        bench_report(name, bench_now() - t);

        t = bench_now();
        for (unsigned r = 0; r < reps; ++r) p_memmove(dst + 1, dst, size);
        name_size(name, "memmove_up_", size);
        bench_report(name, bench_now() - t);

        t = bench_now();
        for (unsigned r = 0; r < reps; ++r) p_memmove(dst, dst + 3, size);
        name_size(name, "memmove_down_", size);
        bench_report(name, bench_now() - t);

        t = bench_now();
        for (unsigned r = 0; r < reps; ++r) p_memset(dst + 1, (int)r, size);
        name_size(name, "memset_", size);
        bench_report(name, bench_now() - t);
    }
}

static const char *const words[] = {
    "main", "printf", "the quick brown fox", "/usr/include/stdio.h", "x",
    "configuration_file_name", "GET /index.html HTTP/1.1", "2026-11-23T03:00:00Z",
    "a somewhat longer line of text as found in a log file, with commas, and words",
    "identifier_with_underscores_and_digits_123", "", "ok",
};
enum { WORDS = sizeof words / sizeof words[0] };

static void strings(void) {
    /* Copies at odd places, as strings are found. */
    static char copies[WORDS][96], twins[WORDS][96];
    for (unsigned w = 0; w < WORDS; ++w) {
        strcpy(copies[w] + (w & 3), words[w]);
        strcpy(twins[w] + ((w >> 1) & 3), words[w]);
    }
    size_t total = 0;
    double t = bench_now();
    for (unsigned r = 0; r < 400000; ++r)
        for (unsigned w = 0; w < WORDS; ++w) total += p_strlen(copies[w] + (w & 3));
    bench_report("strlen", bench_now() - t);
    BENCH_KEEP(total);

    int sum = 0;
    t = bench_now();
    for (unsigned r = 0; r < 400000; ++r)
        for (unsigned w = 0; w < WORDS; ++w)
            sum += p_strcmp(copies[w] + (w & 3), twins[w] + ((w >> 1) & 3)) +
                   p_strcmp(copies[w] + (w & 3), words[(w + 1) % WORDS]);
    bench_report("strcmp", bench_now() - t);
    BENCH_KEEP(sum);

    const char *hit = 0;
    t = bench_now();
    for (unsigned r = 0; r < 400000; ++r)
        for (unsigned w = 0; w < WORDS; ++w) hit = p_strchr(copies[w] + (w & 3), ',');
    bench_report("strchr", bench_now() - t);
    BENCH_KEEP(hit);
}

static const char *const numbers[] = {
    "0", "42", "-17", "2147483647", "-2147483648", "123456", "  99", "0x7f", "077", "65535",
    "+314159", "1000000", "8", "-1", "271828182", "12345678",
};
enum { NUMBERS = sizeof numbers / sizeof numbers[0] };

static void integers(void) {
    long sum = 0;
    double t = bench_now();
    for (unsigned r = 0; r < 300000; ++r)
        for (unsigned n = 0; n < NUMBERS; ++n) sum += p_strtol(numbers[n], 0, 0);
    bench_report("strtol", bench_now() - t);
    BENCH_KEEP(sum);
}

static const char *const decimals[] = {
    "0", "3.14159", "-2.5e-3", "1e10", "6.02214076e23", "0.1", "123456.789", "1.7976931348623157e308",
    "2.2250738585072014e-308", "42", "-0.000001", "9.999999999999999e22", "1.5", "100", "7e-10", "0.3333333333333333",
};
enum { DECIMALS = sizeof decimals / sizeof decimals[0] };

static void reals(void) {
    double sum = 0;
    double t = bench_now();
    for (unsigned r = 0; r < 100000; ++r)
        for (unsigned n = 0; n < DECIMALS; ++n) sum += p_strtod(decimals[n], 0);
    bench_report("strtod", bench_now() - t);
    BENCH_KEEP(sum);
}

static unsigned compares;
static int compare_ints(const void *a, const void *b) {
    ++compares;
    int x = *(const int *)a, y = *(const int *)b;
    return (x > y) - (x < y);
}

static void sorting(void) {
    enum { N = 100000 };
    static int v[N];
    unsigned seed = 2026;
    for (int i = 0; i < N; ++i) {
        seed = seed * 1664525u + 1013904223u;
        v[i] = (int)(seed >> 1);
    }
    compares = 0;
    double t = bench_now();
    qsort(v, N, sizeof v[0], compare_ints);
    double spent = bench_now() - t;
    bench_report("qsort_100000", spent);
    /* Seconds per million comparator calls. */
    bench_report("qsort_per_1M_calls", spent * 1e6 / compares);
}

int main(void) {
    for (unsigned k = 0; k < sizeof src; ++k) src[k] = (unsigned char)k;
    blocks();
    strings();
    integers();
    reals();
    sorting();
    return 0;
}
