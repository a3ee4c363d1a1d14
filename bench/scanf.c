/* Formatted input against the host's C library: sscanf of integers, of
   doubles and of mixed records. */
#include <stdio.h>

#include "bench.h"

static int (*volatile p_sscanf)(const char *, const char *, ...) = sscanf;

static const char *integers[] = {"0", "7", "-42", "1234", "65535", "-2147483647", "99999", "31415926"};
static const char *doubles[] = {"0.5", "3.14159", "-2.5e-3", "1e10", "123.456", "6.02214076e23", "-0.001", "42"};
static const char *records[] = {"17 alpha 3.5 x", "-4 beta 1e-3 y", "250 gamma -7.25 z", "9 delta 0 w"};

int main(void) {
    int n = 0, x = 0;
    double d = 0, sum = 0;
    double t = bench_now();
    for (int i = 0; i < 1000000; ++i) {
        n += p_sscanf(integers[i & 7], "%d", &x);
        sum += x;
    }
    bench_report("sscanf_d", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 500000; ++i) {
        unsigned u;
        n += p_sscanf("ff10 0x7b", "%x %i", &u, &x);
        sum += u + x;
    }
    bench_report("sscanf_x_i", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 500000; ++i) {
        n += p_sscanf(doubles[i & 7], "%lf", &d);
        sum += d;
    }
    bench_report("sscanf_lf", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 300000; ++i) {
        char name[16], tag;
        n += p_sscanf(records[i & 3], "%d %15s %lf %c", &x, name, &d, &tag);
        sum += x + d + tag + name[0];
    }
    bench_report("sscanf_record", bench_now() - t);
    BENCH_KEEP(n);
    BENCH_KEEP(sum);
    return 0;
}
