/* Formatted output against the host's C library: sprintf of integers and
   strings in assorted formats, and fprintf of mixed lines to a file. */
#include <stdio.h>

#include "bench.h"

static int (*volatile p_sprintf)(char *, const char *, ...) = sprintf;

int main(void) {
    char buf[128];
    int n = 0;
    double t = bench_now();
    for (int i = 0; i < 1000000; ++i) n += p_sprintf(buf, "%d", (int)((unsigned)i * 7919u - 400000u));
    bench_report("sprintf_d", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 1000000; ++i) n += p_sprintf(buf, "%08x", (unsigned)i * 2654435761u);
    bench_report("sprintf_08x", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 1000000; ++i) n += p_sprintf(buf, "%-12s|", (i & 1) ? "left" : "justified");
    bench_report("sprintf_-12s", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 1000000; ++i) n += p_sprintf(buf, "%lld", (long long)i * 1000003LL * 1000003LL);
    bench_report("sprintf_lld", bench_now() - t);
    FILE *f = fopen("bench_printf.txt", "w");
    t = bench_now();
    for (int i = 0; i < 300000; ++i) n += fprintf(f, "item %5d: %-10s %#x %c\n", i, "name", i, 'A' + i % 26);
    fclose(f);
    bench_report("fprintf_lines", bench_now() - t);
    remove("bench_printf.txt");
    BENCH_KEEP(n);
    return 0;
}
