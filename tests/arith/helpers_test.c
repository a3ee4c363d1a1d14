/* The 64-bit helpers against the compiler's own 64-bit arithmetic, on edge
   operands and on many random ones of every width, plus the values the
   helpers define where C leaves the result open. */
#include "harness.h"

typedef long long ll;
typedef unsigned long long ull;

ll _orvane_ldiv(ll, ll), _orvane_lmod(ll, ll), _orvane_lmul(ll, ll);
ull _orvane_uldiv(ull, ull), _orvane_ulmod(ull, ull);
ll _orvane_slow_ldiv(ll, ll), _orvane_slow_lmod(ll, ll), _orvane_slow_lmul(ll, ll);
ull _orvane_slow_uldiv(ull, ull), _orvane_slow_ulmod(ull, ull);
ll _orvane_arlshift(ll, int), _orvane_llshift(ll, int), _orvane_rlshift(ll, int);
ll _orvane_cvtdll(double), _orvane_cvtfll(float);
ll _orvane_slow_cvtdll(double), _orvane_slow_cvtfll(float);
double _orvane_cvtlld(ll), _orvane_cvtulld(ull), _orvane_slow_cvtlld(ll), _orvane_slow_cvtulld(ull);
float _orvane_cvtllf(ll), _orvane_cvtullf(ull), _orvane_slow_cvtllf(ll), _orvane_slow_cvtullf(ull);

#define MIN64 ((ll)0x8000000000000000ull)
#define MAX64 0x7FFFFFFFFFFFFFFFll

static ull rng_state = 0x9E3779B97F4A7C15ull;
static ull rnd(void) {
    rng_state ^= rng_state >> 12;
    rng_state ^= rng_state << 25;
    rng_state ^= rng_state >> 27;
    return rng_state * 0x2545F4914F6CDD1Dull;
}
/* Random width, random sign: every path of the helpers gets its share. */
static ull operand(void) {
    ull v = rnd() >> (rnd() & 63);
    return (rnd() & 1) ? (ull)0 - v : v;
}

static const ull edges[] = {
    0, 1, 2, 3, 7, 10, 1000000000, 0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFFF,
    0x100000000ull, 0x100000001ull, 0x1FFFFFFFFull, 0x123456789ABCDEFull,
    0x7FFFFFFFFFFFFFFFull, 0x8000000000000000ull, 0x8000000000000001ull,
    0xFFFFFFFF00000000ull, 0xFFFFFFFF80000000ull, 0xFFFFFFFF7FFFFFFFull,
    0xFFFFFFFFFFFFFFFEull, 0xFFFFFFFFFFFFFFFFull, 0x4000000000000000ull,
    0x0000800000000000ull, 0xFFFFFFFFFFFFFFF9ull, 0xC000000000000000ull,
};
#define NEDGES (sizeof edges / sizeof edges[0])

/* One mismatch per operation is reported in full; the rest are counted. */
enum { OP_LDIV, OP_LMOD, OP_ULDIV, OP_ULMOD, OP_LMUL, OP_COUNT };
static const char *op_names[OP_COUNT] = {"ldiv", "lmod", "uldiv", "ulmod", "lmul"};
static unsigned mismatches[OP_COUNT][2];

static void expect(int op, int slow, ull a, ull b, ull got, ull want) {
    if (got == want) return;
    if (mismatches[op][slow]++ == 0) {
        t_note(op_names[op]);
        t_note(slow ? "(slow) first mismatch:" : "(fast) first mismatch:");
        CHECK_HEX(a, 0);
        CHECK_HEX(b, 0);
        CHECK_HEX(got, want);
    }
}

/* Both families against C, wherever C defines the answer. */
static void differential(ull a, ull b) {
    ll sa = (ll)a, sb = (ll)b;
    expect(OP_LMUL, 0, a, b, (ull)_orvane_lmul(sa, sb), a * b);
    expect(OP_LMUL, 1, a, b, (ull)_orvane_slow_lmul(sa, sb), a * b);
    if (b == 0) return;
    expect(OP_ULDIV, 0, a, b, _orvane_uldiv(a, b), a / b);
    expect(OP_ULDIV, 1, a, b, _orvane_slow_uldiv(a, b), a / b);
    expect(OP_ULMOD, 0, a, b, _orvane_ulmod(a, b), a % b);
    expect(OP_ULMOD, 1, a, b, _orvane_slow_ulmod(a, b), a % b);
    if (sa == MIN64 && sb == -1) return;
    expect(OP_LDIV, 0, a, b, (ull)_orvane_ldiv(sa, sb), (ull)(sa / sb));
    expect(OP_LDIV, 1, a, b, (ull)_orvane_slow_ldiv(sa, sb), (ull)(sa / sb));
    expect(OP_LMOD, 0, a, b, (ull)_orvane_lmod(sa, sb), (ull)(sa % sb));
    expect(OP_LMOD, 1, a, b, (ull)_orvane_slow_lmod(sa, sb), (ull)(sa % sb));
}

static void test_division_and_product(void) {
    t_section("division and product against C");
    for (unsigned i = 0; i < NEDGES; ++i)
        for (unsigned j = 0; j < NEDGES; ++j) {
            differential(edges[i], edges[j]);
            differential(edges[i], (ull)0 - edges[j]);
            differential((ull)0 - edges[i], edges[j]);
        }
    for (int k = 0; k < 64; ++k)
        for (int m = 0; m < 64; m += 3) {
            differential(1ull << k, 1ull << m);
            differential((1ull << k) - 1, (1ull << m) + 1);
            differential(~0ull << k, 1ull << m);
        }
    for (int i = 0; i < 300000; ++i) differential(operand(), operand());
    /* Equal high words, where the quick zero test looks at the low words. */
    for (int i = 0; i < 20000; ++i) {
        ull a = operand(), b = (a & 0xFFFFFFFF00000000ull) | (rnd() & 0xFFFFFFFF);
        differential(a, b);
        differential(b, a);
    }
    for (int op = 0; op < OP_COUNT; ++op) {
        CHECK_EQ(mismatches[op][0], 0);
        CHECK_EQ(mismatches[op][1], 0);
    }
}

static void test_defined_edges(void) {
    t_section("zero divisors and overflow");
    for (unsigned i = 0; i < NEDGES; ++i) {
        ull a = edges[i];
        CHECK_HEX(_orvane_ldiv((ll)a, 0), MAX64);
        CHECK_HEX(_orvane_lmod((ll)a, 0), MAX64);
        CHECK_HEX(_orvane_slow_ldiv((ll)a, 0), MAX64);
        CHECK_HEX(_orvane_slow_lmod((ll)a, 0), MAX64);
        ull fast_unsigned = (a >> 63) ? ~0ull : (ull)MAX64;
        CHECK_HEX(_orvane_uldiv(a, 0), fast_unsigned);
        CHECK_HEX(_orvane_ulmod(a, 0), fast_unsigned);
        CHECK_HEX(_orvane_slow_uldiv(a, 0), ~0ull);
        CHECK_HEX(_orvane_slow_ulmod(a, 0), ~0ull);
    }
    CHECK_HEX(_orvane_ldiv(MIN64, -1), 0x8000000000000000ull);
    CHECK_HEX(_orvane_slow_ldiv(MIN64, -1), 0x8000000000000000ull);
    CHECK_EQ(_orvane_lmod(MIN64, -1), 0);
    CHECK_EQ(_orvane_slow_lmod(MIN64, -1), 0);

    t_section("signs and the 32-bit boundary");
    CHECK_EQ(_orvane_ldiv(-7, 2), -3);
    CHECK_EQ(_orvane_lmod(-7, 2), -1);
    CHECK_EQ(_orvane_lmod(7, -2), 1);
    CHECK_EQ(_orvane_slow_lmod(-7, 2), -1);
    CHECK_EQ(_orvane_ldiv(2147483648ll, -1), -2147483648ll);
    CHECK_EQ(_orvane_ldiv(-2147483648ll, -1), 2147483648ll);
    CHECK_EQ(_orvane_lmod(-2147483648ll, -1), 0);
    CHECK_EQ(_orvane_lmod(5, MIN64), 5);
    CHECK_EQ(_orvane_slow_lmod(5, MIN64), 5);
    CHECK_EQ(_orvane_ldiv(5, MIN64), 0);
    CHECK_EQ(_orvane_slow_ldiv(MIN64, MIN64), 1);
    CHECK_HEX(_orvane_uldiv(~0ull, 2), 0x7FFFFFFFFFFFFFFFull);
    CHECK_HEX(_orvane_slow_uldiv(0x9000000000000000ull, 0x8000000000000001ull), 1);
    CHECK_HEX(_orvane_slow_ulmod(0x9000000000000000ull, 0x8000000000000001ull),
              0x0FFFFFFFFFFFFFFFull);
    CHECK_HEX(_orvane_lmul(0x100000000ll, 0x100000000ll), 0);
    CHECK_HEX(_orvane_slow_lmul(0x100000000ll, 0x100000000ll), 0);
    CHECK_HEX(_orvane_lmul(-1, MIN64), 0x8000000000000000ull);
    CHECK_HEX(_orvane_lmul(0x7FFFFFFF, 0x7FFFFFFF), 0x3FFFFFFF00000001ull);
    CHECK_HEX(_orvane_lmul(-2147483647 - 1, -2147483647 - 1), 0x4000000000000000ull);
}

static ll shift_ref(int kind, ull x, int n) {
    if (n >= 64) return kind == 0 ? (ll)x >> 63 : 0;
    if (kind == 0) return (ll)x >> n;
    if (kind == 1) return (ll)(x << n);
    return (ll)(x >> n);
}

static void test_shifts(void) {
    t_section("shifts");
    static const int counts[] = {0, 1, 5, 31, 32, 33, 47, 63, 64, 65, 100, 200, 0x7FFFFFFF};
    unsigned bad[3] = {0, 0, 0};
    for (unsigned i = 0; i < NEDGES + 200; ++i) {
        ull x = i < NEDGES ? edges[i] : operand();
        for (unsigned c = 0; c < sizeof counts / sizeof counts[0]; ++c) {
            int n = counts[c];
            bad[0] += _orvane_arlshift((ll)x, n) != shift_ref(0, x, n);
            bad[1] += _orvane_llshift((ll)x, n) != shift_ref(1, x, n);
            bad[2] += _orvane_rlshift((ll)x, n) != shift_ref(2, x, n);
        }
        for (int n = 0; n < 64; ++n) {
            bad[0] += _orvane_arlshift((ll)x, n) != shift_ref(0, x, n);
            bad[1] += _orvane_llshift((ll)x, n) != shift_ref(1, x, n);
            bad[2] += _orvane_rlshift((ll)x, n) != shift_ref(2, x, n);
        }
    }
    CHECK_EQ(bad[0], 0);
    CHECK_EQ(bad[1], 0);
    CHECK_EQ(bad[2], 0);
    CHECK_EQ(_orvane_arlshift(-1, 200), -1);
    CHECK_EQ(_orvane_rlshift(-1, 64), 0);
    CHECK_HEX(_orvane_llshift(1, 63), 0x8000000000000000ull);
    CHECK_EQ(_orvane_arlshift(MIN64, 63), -1);
    CHECK_EQ(_orvane_arlshift(0x7FFFFFFFFFFFFFFFll, 64), 0);
}

int main(void) {
    test_division_and_product();
    test_defined_edges();
    test_shifts();
    return t_finish();
}
