/*
 * What a benchmark program uses: a clock and a report line, both through
 * raw system calls, so that one source builds unchanged against liborv and
 * against the host's C library.
 *
 * A program reports each measured case as a line "name seconds" on
 * descriptor 1; bench/runner pairs the lines of the two builds.
 */
#ifndef ORV_BENCH_H
#define ORV_BENCH_H

static inline long bench_sys3(long nr, long a, long b, long c) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(nr), "b"(a), "c"(b), "d"(c) : "memory");
    return r;
}

/* Monotonic seconds. */
static inline double bench_now(void) {
    struct { long sec, nsec; } ts;
    bench_sys3(265 /* clock_gettime */, 1 /* CLOCK_MONOTONIC */, (long)&ts, 0);
    return (double)ts.sec + (double)ts.nsec * 1e-9;
}

/* Prints "name seconds" with microsecond resolution. */
static inline void bench_report(const char *name, double seconds) {
    char line[160];
    unsigned n = 0;
    while (name[n] && n < 100) { line[n] = name[n]; ++n; }
    line[n++] = ' ';
    unsigned long long us = (unsigned long long)(seconds * 1e6 + 0.5);
    char digits[24];
    int d = 0;
    do { digits[d++] = (char)('0' + us % 10); us /= 10; } while (us);
    while (d < 7) digits[d++] = '0';
    while (d > 6) line[n++] = digits[--d];
    line[n++] = '.';
    while (d > 0) line[n++] = digits[--d];
    line[n++] = '\n';
    bench_sys3(4 /* write */, 1, (long)line, (long)n);
}

/* Keeps a value alive so that the compiler cannot drop the work. */
#define BENCH_KEEP(v) __asm__ volatile("" : : "g"(v) : "memory")

#endif
