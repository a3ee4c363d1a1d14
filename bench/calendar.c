/* Calendar conversions, strftime and rand, each over many calls. */
#include <stdlib.h>
#include <time.h>

#include "bench.h"

enum { N = 200000 };

int main(void) {
    double t0 = bench_now();
    long sum = 0;
    for (long i = 0; i < N; ++i) {
        time_t t = (time_t)(i * 21474 - 2147000000L);
        sum += gmtime(&t)->tm_yday;
    }
    bench_report("gmtime", bench_now() - t0);
    BENCH_KEEP(sum);

    t0 = bench_now();
    for (long i = 0; i < N; ++i) {
        struct tm r = {0};
        r.tm_year = 3 + (int)(i % 134);
        r.tm_mon = (int)(i % 12);
        r.tm_mday = 1 + (int)(i % 28);
        r.tm_hour = (int)(i % 24);
        sum += mktime(&r);
    }
    bench_report("mktime", bench_now() - t0);
    BENCH_KEEP(sum);

    t0 = bench_now();
    char buf[128];
    for (long i = 0; i < N; ++i) {
        time_t t = (time_t)(i * 7919);
        sum += (long)strftime(buf, sizeof buf, "%a %d %b %Y %H:%M:%S %j %U", gmtime(&t));
    }
    bench_report("strftime", bench_now() - t0);
    BENCH_KEEP(sum);

    t0 = bench_now();
    srand(1);
    for (long i = 0; i < 10 * N; ++i) sum += rand();
    bench_report("rand", bench_now() - t0);
    BENCH_KEEP(sum);
    return 0;
}
