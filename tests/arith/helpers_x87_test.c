/* The 64-bit helpers' conversions, and what their callers rely on beyond
   the value: the x87 control word and register stack as they were, the
   callee-saved registers intact, and the exact extended result of an
   integer load left in ST(0). */
#include "harness.h"

typedef long long ll;
typedef unsigned long long ull;

ll _orvane_ldiv(ll, ll), _orvane_lmod(ll, ll), _orvane_lmul(ll, ll);
ull _orvane_uldiv(ull, ull), _orvane_ulmod(ull, ull);
ll _orvane_slow_ldiv(ll, ll), _orvane_slow_lmod(ll, ll), _orvane_slow_lmul(ll, ll);
ull _orvane_slow_uldiv(ull, ull), _orvane_slow_ulmod(ull, ull);
ll _orvane_cvtdll(double), _orvane_cvtfll(float);
ll _orvane_slow_cvtdll(double), _orvane_slow_cvtfll(float);
double _orvane_cvtlld(ll), _orvane_cvtulld(ull), _orvane_slow_cvtlld(ll), _orvane_slow_cvtulld(ull);
float _orvane_cvtllf(ll), _orvane_cvtullf(ull), _orvane_slow_cvtllf(ll), _orvane_slow_cvtullf(ull);

#define MIN64 ((ll)0x8000000000000000ull)
#define MAX64 0x7FFFFFFFFFFFFFFFll

static ull rng_state = 0x0123456789ABCDEFull;
static ull rnd(void) {
    rng_state ^= rng_state >> 12;
    rng_state ^= rng_state << 25;
    rng_state ^= rng_state >> 27;
    return rng_state * 0x2545F4914F6CDD1Dull;
}

static unsigned short get_cw(void) {
    unsigned short cw;
    __asm__ volatile("fnstcw %0" : "=m"(cw));
    return cw;
}
static void set_cw(unsigned short cw) { __asm__ volatile("fldcw %0" : : "m"(cw)); }
/* The tag word: 0xFFFF when all eight x87 registers are empty. */
static unsigned short x87_tags(void) {
    unsigned short env[14];
    __asm__ volatile("fnstenv %0\n\tfldenv %0" : "=m"(env));
    return env[4];
}
static ull dbits(double d) { union { double d; ull u; } x; x.d = d; return x.u; }
static double bitsd(ull u) { union { double d; ull u; } x; x.u = u; return x.d; }
static unsigned fbits(float f) { union { float f; unsigned u; } x; x.f = f; return x.u; }
static float bitsf(unsigned u) { union { float f; unsigned u; } x; x.u = u; return x.f; }

/* Truncation of |v| to `keep` significant bits: what the slow conversions
   make of a value too wide for the format. */
static ull truncate_bits(ull m, int keep) {
    int top = 63;
    if (m == 0) return 0;
    while (!(m >> top)) --top;
    return top >= keep ? m & (~0ull << (top - keep + 1)) : m;
}

static void test_to_integer(void) {
    t_section("floating point to 64 bits");
    CHECK_EQ(_orvane_cvtdll(1.9), 1);
    CHECK_EQ(_orvane_cvtdll(-1.9), -1);
    CHECK_HEX(_orvane_cvtdll(9.3e18), MAX64);
    CHECK_HEX(_orvane_cvtdll(-9.3e18), MIN64);
    double below = bitsd(0x43DFFFFFFFFFFFFFull); /* largest double under 2^63 */
    double limit = 9223372036854775808.0;
    double nan = bitsd(0x7FF8000000000000ull), negnan = bitsd(0xFFF8000000000000ull);
    double inf = bitsd(0x7FF0000000000000ull);
    double values[] = {below, -below, limit, -limit, nan, negnan, inf, -inf,
                       bitsd(1), -0.0, 0.5, -0.999, 2251799813685249.5};
    ll fast_want[] = {0x7FFFFFFFFFFFFC00ll, -0x7FFFFFFFFFFFFC00ll, MAX64, MIN64, MAX64,
                      MAX64, MAX64, MIN64, 0, 0, 0, 0, 2251799813685249ll};
    for (unsigned i = 0; i < sizeof values / sizeof values[0]; ++i) {
        ll slow_want = (i == 5) ? MIN64 : fast_want[i]; /* the sign of a NaN */
        CHECK_HEX(_orvane_cvtdll(values[i]), fast_want[i]);
        CHECK_HEX(_orvane_slow_cvtdll(values[i]), slow_want);
        CHECK_HEX(_orvane_cvtfll((float)values[i]), _orvane_cvtdll((float)values[i]));
        CHECK_HEX(_orvane_slow_cvtfll((float)values[i]), _orvane_slow_cvtdll((float)values[i]));
    }
    CHECK_HEX(_orvane_cvtfll(bitsf(0x5F000000)), MAX64);       /* 2^63 */
    CHECK_HEX(_orvane_slow_cvtfll(bitsf(0x5EFFFFFF)), 0x7FFFFF8000000000ll);
    CHECK_HEX(_orvane_slow_cvtfll(bitsf(0xFFC00000)), MIN64);  /* NaN, sign set */
    CHECK_HEX(_orvane_cvtfll(bitsf(0xFFC00000)), MAX64);

    /* Every exponent that converts, with random fractions, both signs. */
    unsigned bad_fast = 0, bad_slow = 0, bad_ffast = 0, bad_fslow = 0;
    for (int i = 0; i < 40000; ++i) {
        ull e = 1023 + rnd() % 63;
        double d = bitsd((rnd() & 0x800FFFFFFFFFFFFFull) | (e << 52));
        ll want = (ll)d;
        bad_fast += _orvane_cvtdll(d) != want;
        bad_slow += _orvane_slow_cvtdll(d) != want;
        float f = bitsf((unsigned)((rnd() & 0x807FFFFF) | ((127 + rnd() % 63) << 23)));
        ll fwant = (ll)f;
        bad_ffast += _orvane_cvtfll(f) != fwant;
        bad_fslow += _orvane_slow_cvtfll(f) != fwant;
    }
    CHECK_EQ(bad_fast, 0);
    CHECK_EQ(bad_slow, 0);
    CHECK_EQ(bad_ffast, 0);
    CHECK_EQ(bad_fslow, 0);
}

static void test_from_integer(void) {
    t_section("64 bits to floating point");
    /* 2^53 + 1: the fast form rounds when stored, the slow form truncates. */
    CHECK_HEX(dbits(_orvane_cvtlld(0x20000000000001ll)), dbits(9007199254740992.0));
    CHECK_HEX(dbits(_orvane_slow_cvtlld(0x20000000000001ll)), dbits(9007199254740992.0));
    CHECK_HEX(dbits(_orvane_cvtlld(0x20000000000003ll)), dbits(9007199254740996.0));
    CHECK_HEX(dbits(_orvane_slow_cvtlld(0x20000000000003ll)), dbits(9007199254740994.0));
    CHECK_HEX(dbits(_orvane_slow_cvtlld(MIN64)), 0xC3E0000000000000ull);
    CHECK_HEX(fbits(_orvane_slow_cvtllf(MIN64)), 0xDF000000);
    CHECK_HEX(dbits(_orvane_slow_cvtlld(0)), 0);
    CHECK_HEX(fbits(_orvane_slow_cvtullf(0)), 0);
    CHECK_HEX(dbits(_orvane_cvtulld(~0ull)), dbits(18446744073709549568.0));
    CHECK_HEX(fbits(_orvane_cvtullf(~0ull)), 0x5F7FFFFF);
    CHECK_HEX(dbits(_orvane_cvtulld(1ull << 63)), 0x43E0000000000000ull);

    /* The rounding of the fast forms is the caller's. */
    unsigned short cw = get_cw();
    set_cw((unsigned short)((cw & ~0x0C00) | 0x0800)); /* toward +infinity */
    double up = _orvane_cvtlld(0x20000000000001ll);
    float upf = _orvane_cvtllf(0x1000001);
    set_cw(cw);
    CHECK_HEX(dbits(up), dbits(9007199254740994.0));
    CHECK_HEX(fbits(upf), fbits(16777218.0f));

    unsigned bad[8] = {0};
    for (int i = 0; i < 40000; ++i) {
        ull u = rnd() >> (rnd() & 63);
        ll s = (rnd() & 1) ? -(ll)(u >> 1) : (ll)(u >> 1);
        ull ms = s < 0 ? 0 - (ull)s : (ull)s;
        bad[0] += dbits(_orvane_cvtlld(s)) != dbits((double)s);
        bad[1] += fbits(_orvane_cvtllf(s)) != fbits((float)s);
        bad[2] += (u >> 63) == 0 && dbits(_orvane_cvtulld(u)) != dbits((double)u);
        bad[3] += (u >> 63) == 0 && fbits(_orvane_cvtullf(u)) != fbits((float)u);
        double td = (double)truncate_bits(ms, 53);
        float tf = (float)truncate_bits(ms, 24);
        bad[4] += dbits(_orvane_slow_cvtlld(s)) != dbits(s < 0 ? -td : td);
        bad[5] += fbits(_orvane_slow_cvtllf(s)) != fbits(s < 0 ? -tf : tf);
        bad[6] += dbits(_orvane_slow_cvtulld(u)) != dbits((double)truncate_bits(u, 53));
        bad[7] += fbits(_orvane_slow_cvtullf(u)) != fbits((float)truncate_bits(u, 24));
    }
    for (int k = 0; k < 8; ++k) CHECK_EQ(bad[k], 0);
}

/* The integer load's result before any store: all 64 bits of the value. */
static void test_extended_result(void) {
    t_section("exact result in ST(0)");
    static const ll values[] = {0x20000000000001ll, MAX64, -0x7FFFFFFFFFFFFFFFll, 3};
    for (unsigned i = 0; i < sizeof values / sizeof values[0]; ++i) {
        ll back;
        __asm__ volatile("pushl %2\n\tpushl %1\n\tcall _orvane_cvtlld\n\taddl $8, %%esp\n\t"
                         "fistpll %0"
                         : "=m"(back)
                         : "g"((unsigned)values[i]), "g"((unsigned)((ull)values[i] >> 32))
                         : "eax", "ecx", "edx", "memory", "cc");
        CHECK_HEX(back, values[i]);
    }
}

/* Arguments and results in memory: a call exactly as compiled code makes
   it, with the callee-saved registers loaded with marks. */
unsigned orv_t_args[4], orv_t_result[2], orv_t_kept[4];
void *orv_t_fn;

static int call_keeps_registers(void *fn, ull a, ull b, ull *result) {
    orv_t_fn = fn;
    orv_t_args[0] = (unsigned)a; orv_t_args[1] = (unsigned)(a >> 32);
    orv_t_args[2] = (unsigned)b; orv_t_args[3] = (unsigned)(b >> 32);
    __asm__ volatile(
        "pushl %%ebp\n\t"
        "movl $0x11111111, %%ebx\n\tmovl $0x22222222, %%esi\n\t"
        "movl $0x33333333, %%edi\n\tmovl $0x44444444, %%ebp\n\t"
        "pushl orv_t_args+12\n\tpushl orv_t_args+8\n\t"
        "pushl orv_t_args+4\n\tpushl orv_t_args\n\t"
        "call *orv_t_fn\n\t"
        "addl $16, %%esp\n\t"
        "movl %%eax, orv_t_result\n\tmovl %%edx, orv_t_result+4\n\t"
        "movl %%ebx, orv_t_kept\n\tmovl %%esi, orv_t_kept+4\n\t"
        "movl %%edi, orv_t_kept+8\n\tmovl %%ebp, orv_t_kept+12\n\t"
        "popl %%ebp"
        : : : "eax", "ebx", "ecx", "edx", "esi", "edi", "memory", "cc");
    *result = orv_t_result[0] | (ull)orv_t_result[1] << 32;
    return orv_t_kept[0] == 0x11111111 && orv_t_kept[1] == 0x22222222 &&
           orv_t_kept[2] == 0x33333333 && orv_t_kept[3] == 0x44444444;
}

static void test_calling_convention(void) {
    t_section("registers and x87 state across calls");
    struct { void *fn; ull a, b, want; } calls[] = {
        {(void *)_orvane_ldiv, 100, 7, 14},
        {(void *)_orvane_ldiv, 0x123456789ABCDEFull, 0x1000, 0x123456789ABCull},
        {(void *)_orvane_lmod, 0x123456789ABCDEFull, 0x1000, 0xDEF},
        {(void *)_orvane_uldiv, ~0ull, 16, 0x0FFFFFFFFFFFFFFFull},
        {(void *)_orvane_lmul, 0x100000001ull, 0x100000001ull, 0x200000001ull},
        {(void *)_orvane_slow_ldiv, 0x123456789ABCDEFull, 0x1000, 0x123456789ABCull},
        {(void *)_orvane_slow_uldiv, ~0ull, 3, 0x5555555555555555ull},
        {(void *)_orvane_slow_lmul, (ull)-3, 0x100000000ull, 0xFFFFFFFD00000000ull},
    };
    /* A caller's control word far from the helpers' own: rounding up,
       24-bit precision. The x87 paths must still be exact and leave it. */
    unsigned short cw = get_cw(), odd = 0x087F;
    for (unsigned i = 0; i < sizeof calls / sizeof calls[0]; ++i) {
        ull got;
        set_cw(odd);
        int kept = call_keeps_registers(calls[i].fn, calls[i].a, calls[i].b, &got);
        unsigned short after = get_cw();
        set_cw(cw);
        CHECK(kept);
        CHECK_HEX(got, calls[i].want);
        CHECK_HEX(after, odd);
        CHECK_HEX(x87_tags(), 0xFFFF);
    }
    set_cw(odd);
    ll big = _orvane_ldiv(0x7FFFFFFFFFFFFFFFll, 3);
    ll rem = _orvane_lmod(-0x7FFFFFFFFFFFFFFFll, 0x100000007ll);
    ll sat = _orvane_cvtdll(1e300);
    ll trunc = _orvane_cvtdll(-2.75);
    ll ftrunc = _orvane_cvtfll(1e10f);
    unsigned short after = get_cw();
    set_cw(cw);
    CHECK_HEX(big, 0x2AAAAAAAAAAAAAAAll);
    CHECK_EQ(rem, -0x7FFFFFFFFFFFFFFFll % 0x100000007ll);
    CHECK_HEX(sat, MAX64);
    CHECK_EQ(trunc, -2);
    CHECK_EQ(ftrunc, 10000000000ll);
    CHECK_HEX(after, odd);
    CHECK_HEX(x87_tags(), 0xFFFF);
}

int main(void) {
    test_to_integer();
    test_from_integer();
    test_extended_result();
    test_calling_convention();
    return t_finish();
}
