/* The 64-bit helpers against the compiler's own 64-bit arithmetic on edge
   and random operands, the values they define where C does not, and what
   callers rely on beyond the value: x87 control word and register stack as
   they were, callee-saved registers intact, an exact extended result of an
   integer load left in ST(0). */
#include "harness.h"

typedef long long ll;
typedef unsigned long long ull;
ll _orvane_ldiv(ll, ll), _orvane_lmod(ll, ll), _orvane_lmul(ll, ll);
ll _orvane_slow_ldiv(ll, ll), _orvane_slow_lmod(ll, ll), _orvane_slow_lmul(ll, ll);
ull _orvane_uldiv(ull, ull), _orvane_ulmod(ull, ull);
ull _orvane_slow_uldiv(ull, ull), _orvane_slow_ulmod(ull, ull);
ll _orvane_arlshift(ll, int), _orvane_llshift(ll, int), _orvane_rlshift(ll, int);
ll _orvane_cvtdll(double), _orvane_cvtfll(float), _orvane_slow_cvtdll(double), _orvane_slow_cvtfll(float);
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
/* Random width and sign, so that every path gets its share. */
static ull operand(void) {
    ull v = rnd() >> (rnd() & 63);
    return (rnd() & 1) ? 0 - v : v;
}
static const ull edges[] = {
    0, 1, 2, 3, 10, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0x100000000ull, 0x100000001ull,
    0x123456789ABCDEFull, 0x7FFFFFFFFFFFFFFFull, 0x8000000000000000ull, 0x8000000000000001ull,
    0xFFFFFFFF00000000ull, 0xFFFFFFFF80000000ull, 0xFFFFFFFF7FFFFFFFull, 0xFFFFFFFFFFFFFFFFull,
};
#define NEDGES (sizeof edges / sizeof edges[0])

/* Mismatches per operation and family; the first of each is reported. */
static unsigned bad[5][2];
static void expect(int op, int slow, ull got, ull want) {
    if (got != want && bad[op][slow]++ == 0) CHECK_HEX(got, want);
}
static void differential(ull a, ull b) {
    ll sa = (ll)a, sb = (ll)b;
    expect(0, 0, (ull)_orvane_lmul(sa, sb), a * b);
    expect(0, 1, (ull)_orvane_slow_lmul(sa, sb), a * b);
    if (b == 0) return;
    expect(1, 0, _orvane_uldiv(a, b), a / b);
    expect(1, 1, _orvane_slow_uldiv(a, b), a / b);
    expect(2, 0, _orvane_ulmod(a, b), a % b);
    expect(2, 1, _orvane_slow_ulmod(a, b), a % b);
    if (sa == MIN64 && sb == -1) return;
    expect(3, 0, (ull)_orvane_ldiv(sa, sb), (ull)(sa / sb));
    expect(3, 1, (ull)_orvane_slow_ldiv(sa, sb), (ull)(sa / sb));
    expect(4, 0, (ull)_orvane_lmod(sa, sb), (ull)(sa % sb));
    expect(4, 1, (ull)_orvane_slow_lmod(sa, sb), (ull)(sa % sb));
}

static void test_arithmetic(void) {
    t_section("division and product against C");
    for (unsigned i = 0; i < NEDGES; ++i)
        for (unsigned j = 0; j < NEDGES; ++j) {
            differential(edges[i], edges[j]);
            differential(edges[i], 0 - edges[j]);
        }
    for (int k = 0; k < 64; ++k)
        for (int m = 0; m < 64; m += 3) {
            differential(1ull << k, 1ull << m);
            differential(~0ull << k, (1ull << m) + 1);
        }
    for (int i = 0; i < 300000; ++i) differential(operand(), operand());
    for (int i = 0; i < 20000; ++i) {  /* equal high words: the quick zero test */
        ull a = operand(), b = (a & 0xFFFFFFFF00000000ull) | (rnd() & 0xFFFFFFFF);
        differential(a, b);
        differential(b, a);
    }
    for (int op = 0; op < 5; ++op) CHECK_EQ(bad[op][0] + bad[op][1], 0);

    t_section("defined edges");
    for (unsigned i = 0; i < NEDGES; ++i) {
        ull a = edges[i], fast_unsigned = (a >> 63) ? ~0ull : (ull)MAX64;
        CHECK_HEX(_orvane_ldiv((ll)a, 0) & _orvane_lmod((ll)a, 0), MAX64);
        CHECK_HEX(_orvane_slow_ldiv((ll)a, 0) & _orvane_slow_lmod((ll)a, 0), MAX64);
        CHECK_HEX(_orvane_uldiv(a, 0), fast_unsigned);
        CHECK_HEX(_orvane_ulmod(a, 0), fast_unsigned);
        CHECK_HEX(_orvane_slow_uldiv(a, 0) & _orvane_slow_ulmod(a, 0), ~0ull);
    }
    /* the one quotient C leaves undefined */
    CHECK(_orvane_ldiv(MIN64, -1) == MIN64 && _orvane_slow_ldiv(MIN64, -1) == MIN64);
    CHECK_EQ(_orvane_lmod(MIN64, -1) | _orvane_slow_lmod(MIN64, -1), 0);

    t_section("shifts");
    static const int counts[] = {64, 65, 100, 200, 0x7FFFFFFF};
    unsigned wrong = 0;
    for (unsigned i = 0; i < NEDGES + 200; ++i) {
        ull x = i < NEDGES ? edges[i] : operand();
        for (int n = 0; n < 64; ++n)
            wrong += _orvane_arlshift((ll)x, n) != (ll)x >> n ||
                     _orvane_llshift((ll)x, n) != (ll)(x << n) ||
                     _orvane_rlshift((ll)x, n) != (ll)(x >> n);
        for (unsigned c = 0; c < 5; ++c)  /* not reduced modulo 64 */
            wrong += _orvane_arlshift((ll)x, counts[c]) != (ll)x >> 63 ||
                     _orvane_llshift((ll)x, counts[c]) != 0 || _orvane_rlshift((ll)x, counts[c]) != 0;
    }
    CHECK_EQ(wrong, 0);
}

static ull dbits(double d) { union { double d; ull u; } x; x.d = d; return x.u; }
static double bitsd(ull u) { union { double d; ull u; } x; x.u = u; return x.d; }
static unsigned fbits(float f) { union { float f; unsigned u; } x; x.f = f; return x.u; }
static float bitsf(unsigned u) { union { float f; unsigned u; } x; x.u = u; return x.f; }
/* |v| cut to `keep` significant bits: what the slow conversions make of it. */
static ull cut(ull m, int keep) {
    int top = 63;
    while (m && !(m >> top)) --top;
    return m && top >= keep ? m & (~0ull << (top - keep + 1)) : m;
}

static void test_conversions(void) {
    t_section("floating point to 64 bits");
    double values[] = {1.9, -1.9, 9.3e18, -9.3e18, bitsd(0x43DFFFFFFFFFFFFFull), 0x1p63, -0x1p63,
                       bitsd(0x7FF8000000000000ull), bitsd(0xFFF8000000000000ull),
                       bitsd(0xFFF0000000000000ull), bitsd(1), -0.0, 2251799813685249.5};
    ll want[] = {1, -1, MAX64, MIN64, 0x7FFFFFFFFFFFFC00ll, MAX64, MIN64, MAX64, MAX64, MIN64,
                 0, 0, 2251799813685249ll};
    for (unsigned i = 0; i < sizeof values / sizeof values[0]; ++i) {
        CHECK_HEX(_orvane_cvtdll(values[i]), want[i]);
        CHECK_HEX(_orvane_slow_cvtdll(values[i]), i == 8 ? MIN64 : want[i]); /* NaN's sign */
        float f = (float)values[i];  /* the float forms agree with the double ones */
        CHECK_HEX(_orvane_cvtfll(f), _orvane_cvtdll(f));
        CHECK_HEX(_orvane_slow_cvtfll(f), _orvane_slow_cvtdll(f));
    }
    CHECK_HEX(_orvane_cvtfll(bitsf(0xFFC00000)), MAX64);
    CHECK_HEX(_orvane_slow_cvtfll(bitsf(0xFFC00000)), MIN64);
    CHECK_HEX(_orvane_slow_cvtfll(bitsf(0x5EFFFFFF)), 0x7FFFFF8000000000ll);
    unsigned wrong[4] = {0};
    for (int i = 0; i < 40000; ++i) {
        double d = bitsd((rnd() & 0x800FFFFFFFFFFFFFull) | (1023 + rnd() % 63) << 52);
        float f = bitsf((unsigned)((rnd() & 0x807FFFFF) | (127 + rnd() % 63) << 23));
        wrong[0] += _orvane_cvtdll(d) != (ll)d;
        wrong[1] += _orvane_slow_cvtdll(d) != (ll)d;
        wrong[2] += _orvane_cvtfll(f) != (ll)f;
        wrong[3] += _orvane_slow_cvtfll(f) != (ll)f;
    }
    CHECK_EQ(wrong[0] + wrong[1] + wrong[2] + wrong[3], 0);

    t_section("64 bits to floating point");
    /* 2^53 + 3: the fast form rounds when the value is stored, the slow
       one truncates; 2^64 - 1 unsigned goes the slow way. */
    CHECK_HEX(dbits(_orvane_cvtlld(0x20000000000003ll)), dbits(0x1p53 + 4));
    CHECK_HEX(dbits(_orvane_slow_cvtlld(0x20000000000003ll)), dbits(0x1p53 + 2));
    CHECK_HEX(dbits(_orvane_slow_cvtlld(MIN64)), dbits(-0x1p63));
    CHECK_HEX(fbits(_orvane_slow_cvtllf(MIN64)), fbits(-0x1p63f));
    CHECK_HEX(dbits(_orvane_cvtulld(~0ull)), dbits(0x1p64 - 2048));
    CHECK_HEX(fbits(_orvane_cvtullf(~0ull)), fbits(0x1p64f - 0x1p40f));
    unsigned short cw, up;
    __asm__ volatile("fnstcw %0" : "=m"(cw));
    up = (unsigned short)((cw & ~0x0C00) | 0x0800);
    __asm__ volatile("fldcw %0" : : "m"(up));
    double rounded_up = _orvane_cvtlld(0x20000000000001ll);   /* caller's rounding */
    __asm__ volatile("fldcw %0" : : "m"(cw));
    CHECK_HEX(dbits(rounded_up), dbits(0x1p53 + 2));
    unsigned miss = 0;
    for (int i = 0; i < 40000; ++i) {
        ull u = rnd() >> (rnd() & 63), m = u >> 1;
        ll s = (rnd() & 1) ? -(ll)m : (ll)m;
        double td = (double)cut(m, 53);
        float tf = (float)cut(m, 24);
        miss += dbits(_orvane_cvtlld(s)) != dbits((double)s) ||
                fbits(_orvane_cvtllf(s)) != fbits((float)s) ||
                dbits(_orvane_cvtulld(m)) != dbits((double)m) ||
                fbits(_orvane_cvtullf(m)) != fbits((float)m) ||
                dbits(_orvane_slow_cvtlld(s)) != dbits(s < 0 ? -td : td) ||
                fbits(_orvane_slow_cvtllf(s)) != fbits(s < 0 ? -tf : tf) ||
                dbits(_orvane_slow_cvtulld(u)) != dbits((double)cut(u, 53)) ||
                fbits(_orvane_slow_cvtullf(u)) != fbits((float)cut(u, 24));
    }
    CHECK_EQ(miss, 0);

    t_section("exact result in ST(0)");
    ll back;
    __asm__ volatile("pushl $0x200000\n\tpushl $1\n\tcall _orvane_cvtlld\n\t"
                     "addl $8, %%esp\n\tfistpll %0"
                     : "=m"(back) : : "eax", "ecx", "edx", "memory", "cc");
    CHECK_HEX(back, 0x20000000000001ll);
}

/* A call as compiled code makes it, with marks in the callee-saved
   registers and an unusual x87 control word: rounding up, 24 bits. */
unsigned orv_t_args[4], orv_t_out[7];
void *orv_t_fn;
static ull call_marked(void *fn, ull a, ull b) {
    orv_t_fn = fn;
    orv_t_args[0] = (unsigned)a, orv_t_args[1] = (unsigned)(a >> 32);
    orv_t_args[2] = (unsigned)b, orv_t_args[3] = (unsigned)(b >> 32);
    __asm__ volatile(
        "pushl %%ebp\n\tsubl $4, %%esp\n\tfnstcw (%%esp)\n\tmovw $0x087F, 2(%%esp)\n\t"
        "fldcw 2(%%esp)\n\tmovl $0x11111111, %%ebx\n\tmovl $0x22222222, %%esi\n\t"
        "movl $0x33333333, %%edi\n\tmovl $0x44444444, %%ebp\n\t"
        "pushl orv_t_args+12\n\tpushl orv_t_args+8\n\tpushl orv_t_args+4\n\tpushl orv_t_args\n\t"
        "call *orv_t_fn\n\taddl $16, %%esp\n\t"
        "movl %%eax, orv_t_out\n\tmovl %%edx, orv_t_out+4\n\tmovl %%ebx, orv_t_out+8\n\t"
        "movl %%esi, orv_t_out+12\n\tmovl %%edi, orv_t_out+16\n\tmovl %%ebp, orv_t_out+20\n\t"
        "fnstcw orv_t_out+24\n\tfldcw (%%esp)\n\taddl $4, %%esp\n\tpopl %%ebp"
        : : : "eax", "ebx", "ecx", "edx", "esi", "edi", "memory", "cc");
    return orv_t_out[0] | (ull)orv_t_out[1] << 32;
}

static void test_calling_convention(void) {
    t_section("registers and x87 state across calls");
    /* One row for each way through the division frames: one or two word
       divisions, the x87 unit, and the answers given without dividing. */
    struct { void *fn; ull a, b, want; } calls[] = {
        {(void *)_orvane_ldiv, 100, 7, 14},
        {(void *)_orvane_ldiv, (ull)-0x123456789ABCDEFll, 0x1000, (ull)-0x123456789ABCll},
        {(void *)_orvane_ldiv, 0x7FFFFFFFFFFFFFFFull, 0x300000000ull, 0x2AAAAAAAull},
        {(void *)_orvane_ldiv, 5, (ull)MIN64, 0},
        {(void *)_orvane_ldiv, 5, 0, MAX64},
        {(void *)_orvane_lmod, (ull)-100, 7, (ull)-2},
        {(void *)_orvane_lmod, (ull)-0x7FFFFFFFFFFFFFFFll, 0x100000007ull,
         (ull)(-0x7FFFFFFFFFFFFFFFll % 0x100000007ll)},
        {(void *)_orvane_lmod, (ull)-5, (ull)MIN64, (ull)-5},
        {(void *)_orvane_uldiv, ~0ull, 16, 0x0FFFFFFFFFFFFFFFull},
        {(void *)_orvane_uldiv, ~0ull, 0x100000001ull, 0xFFFFFFFFull},
        {(void *)_orvane_uldiv, ~0ull, 0x8000000000000001ull, 1},
        {(void *)_orvane_uldiv, ~0ull, 0, ~0ull},
        {(void *)_orvane_ulmod, ~0ull, 10, 5},
        {(void *)_orvane_ulmod, ~0ull - 1, 0x100000001ull, (~0ull - 1) % 0x100000001ull},
        {(void *)_orvane_ulmod, 7, 0x100000000ull, 7},
        {(void *)_orvane_lmul, 0x100000001ull, 0x100000001ull, 0x200000001ull},
        {(void *)_orvane_slow_ldiv, 0x123456789ABCDEFull, 0x1000, 0x123456789ABCull},
        {(void *)_orvane_slow_uldiv, ~0ull, 3, 0x5555555555555555ull},
        {(void *)_orvane_slow_lmul, (ull)-3, 0x100000000ull, 0xFFFFFFFD00000000ull},
        {(void *)_orvane_cvtdll, 0xC006000000000000ull, 0, (ull)-2},  /* -2.75 */
        {(void *)_orvane_cvtdll, dbits(1e300), 0, MAX64},
        {(void *)_orvane_cvtfll, fbits(1e10f), 0, 10000000000ull},
    };
    for (unsigned i = 0; i < sizeof calls / sizeof calls[0]; ++i) {
        CHECK_HEX(call_marked(calls[i].fn, calls[i].a, calls[i].b), calls[i].want);
        CHECK(orv_t_out[2] == 0x11111111 && orv_t_out[3] == 0x22222222 &&
              orv_t_out[4] == 0x33333333 && orv_t_out[5] == 0x44444444);
        CHECK_HEX(orv_t_out[6] & 0xFFFF, 0x087F);
        unsigned short env[14];
        __asm__ volatile("fnstenv %0\n\tfldenv %0" : "=m"(env));
        CHECK_HEX(env[4], 0xFFFF);  /* the register stack left empty */
    }
}

int main(void) {
    test_arithmetic();
    test_conversions();
    test_calling_convention();
    return t_finish();
}
