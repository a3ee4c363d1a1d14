/*
 * 64-bit division, remainder and product as compiled code uses them. The
 * host build gets the compiler's own helpers from libgcc; the liborv build
 * (BENCH_ORV_HELPERS) calls the library's fast helpers, which is what code
 * from the compiler suite would call. Operands: mixed widths and signs,
 * 32-bit divisors (the digit loop of a number printer), and wide ones.
 */
#include "bench.h"

#ifdef BENCH_ORV_HELPERS
long long _orvane_ldiv(long long, long long);
long long _orvane_lmod(long long, long long);
long long _orvane_lmul(long long, long long);
unsigned long long _orvane_uldiv(unsigned long long, unsigned long long);
unsigned long long _orvane_ulmod(unsigned long long, unsigned long long);
#define SDIV(a, b) _orvane_ldiv(a, b)
#define SMOD(a, b) _orvane_lmod(a, b)
#define UDIV(a, b) _orvane_uldiv(a, b)
#define UMOD(a, b) _orvane_ulmod(a, b)
#define MUL(a, b) _orvane_lmul(a, b)
#else
#define SDIV(a, b) ((a) / (b))
#define SMOD(a, b) ((a) % (b))
#define UDIV(a, b) ((a) / (b))
#define UMOD(a, b) ((a) % (b))
#define MUL(a, b) ((a) * (b))
#endif

enum { N = 4096, REPEAT = 400 };
static unsigned long long ua[N], ub[N], small[N], wide[N];

static unsigned long long rng = 0x9E3779B97F4A7C15ull;
static unsigned long long next(void) {
    rng ^= rng >> 12;
    rng ^= rng << 25;
    rng ^= rng >> 27;
    return rng * 0x2545F4914F6CDD1Dull;
}

static void fill(void) {
    for (int i = 0; i < N; ++i) {
        ua[i] = next() >> (next() & 31);
        ub[i] = (next() >> (next() & 63)) | 1;
        small[i] = (next() >> 33) | 1;
        wide[i] = (next() >> (next() & 15)) | 1;
    }
}

#define CASE(name, expr)                                             \
    do {                                                             \
        double t0 = bench_now();                                     \
        unsigned long long acc = 0;                                  \
        for (int r = 0; r < REPEAT; ++r)                             \
            for (int i = 0; i < N; ++i) acc += (expr);               \
        BENCH_KEEP(acc);                                             \
        bench_report(name, bench_now() - t0);                        \
    } while (0)

int main(void) {
    fill();
    CASE("udiv_mixed", UDIV(ua[i], ub[i]));
    CASE("umod_mixed", UMOD(ua[i], ub[i]));
    CASE("udiv_by_32bit", UDIV(ua[i], small[i]));
    CASE("udiv_by_10", UDIV(ua[i] >> 1, 10ull));
    CASE("udiv_wide", UDIV(ua[i] << 16, wide[i]));
    CASE("sdiv_mixed", (unsigned long long)SDIV((long long)ua[i] - (long long)(ua[i] << 1),
                                                (long long)ub[i]));
    CASE("smod_mixed", (unsigned long long)SMOD(-(long long)ua[i], (long long)ub[i]));
    CASE("mul_mixed", (unsigned long long)MUL((long long)ua[i], (long long)ub[i]));
    CASE("mul_32bit", (unsigned long long)MUL((long long)(int)ua[i], (long long)(int)ub[i]));
    return 0;
}
