/* The extended decimal arithmetic: carries and digits, exact products and
   quotients against 64-bit integer arithmetic, inexact ones bit for bit
   against a big-integer model, powers of ten against exact values. */
#include "harness.h"

typedef unsigned u32;
typedef unsigned long long ull;

void _add64(u32 *hi, u32 *lo, u32 addend);
void _add96(u32 *hi, u32 *mid, u32 *lo, u32 addend);
void _sub64(u32 *hi, u32 *lo, u32 subtrahend);
void _sub96(u32 *hi, u32 *mid, u32 *lo, u32 subtrahend);
void _mulx10(u32 *number, u32 digit);
void _normal96(u32 *number);
void _mulx(const u32 *a, const u32 *b, u32 *result);
void _divx(const u32 *a, const u32 *b, u32 *result);
void _cmath_xtoi(const u32 *x, int power, u32 *result);

static const u32 one[3] = {0x3FFF0000, 0x80000000, 0};
static const u32 ten[3] = {0x40020000, 0xA0000000, 0};

#define CHECK_X96(x, w0, w1, w2) \
    do { CHECK_HEX((x)[0], w0); CHECK_HEX((x)[1], w1); CHECK_HEX((x)[2], w2); } while (0)

static ull rng_state = 0x5DEECE66Dull;
static ull rnd(void) {
    rng_state ^= rng_state >> 12;
    rng_state ^= rng_state << 25;
    rng_state ^= rng_state >> 27;
    return rng_state * 0x2545F4914F6CDD1Dull;
}

static ull sig(const u32 *x) { return (ull)x[1] << 32 | x[2]; }
static void make(u32 *x, u32 sign, int f, ull s) {
    x[0] = sign | (u32)f << 16;
    x[1] = (u32)(s >> 32);
    x[2] = (u32)s;
}

static void test_wide_integers(void) {
    t_section("carries and digits");
    u32 hi = 5, mid = 0xFFFFFFFF, lo = 0xFFFFFFFF;
    _add96(&hi, &mid, &lo, 1);
    CHECK_EQ(hi, 6); CHECK_EQ(mid, 0); CHECK_EQ(lo, 0);
    hi = 5, mid = 0, lo = 0;
    _sub96(&hi, &mid, &lo, 1);
    CHECK_EQ(hi, 4); CHECK_HEX(mid, 0xFFFFFFFF); CHECK_HEX(lo, 0xFFFFFFFF);
    hi = 0xFFFFFFFF, lo = 0xFFFFFFF0;
    _add64(&hi, &lo, 0x20);            /* the carry out of hi is lost */
    CHECK_EQ(hi, 0); CHECK_EQ(lo, 0x10);
    hi = 0, lo = 3;
    _sub64(&hi, &lo, 4);
    CHECK_HEX(hi, 0xFFFFFFFF); CHECK_HEX(lo, 0xFFFFFFFF);
    hi = 7, mid = 0xFFFFFFFF, lo = 1;
    _add96(&hi, &mid, &lo, 0xFFFFFFFE); /* no carry: mid and hi stay */
    CHECK_EQ(hi, 7); CHECK_HEX(mid, 0xFFFFFFFF); CHECK_HEX(lo, 0xFFFFFFFF);

    u32 n[3] = {0, 0, 12};
    _mulx10(n, 0x37);
    CHECK_X96(n, 0, 0, 127);
    /* 2^96 - 1 digit by digit, then one digit more wraps modulo 2^96. */
    const char *max96 = "79228162514264337593543950335";
    n[0] = n[1] = n[2] = 0;
    for (const char *p = max96; *p; ++p) _mulx10(n, (u32)*p);
    CHECK_X96(n, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);
    _mulx10(n, '5');
    CHECK_X96(n, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFB);

    t_section("normalisation");
    u32 x[3] = {0, 0, 1};
    _normal96(x);
    CHECK_X96(x, one[0], one[1], one[2]);
    x[0] = 0, x[1] = 0, x[2] = 10;
    _normal96(x);
    CHECK_X96(x, ten[0], ten[1], ten[2]);
    x[0] = 1, x[1] = 0, x[2] = 1;   /* 2^64 + 1: the low bit drops, no rounding */
    _normal96(x);
    CHECK_X96(x, (16383 + 64) << 16, 0x80000000, 0);
    x[0] = 0xFFFFFFFF, x[1] = 0xFFFFFFFF, x[2] = 0xFFFFFFFF;
    _normal96(x);
    CHECK_X96(x, (16383 + 95) << 16, 0xFFFFFFFF, 0xFFFFFFFF);
    x[0] = 0, x[1] = 0, x[2] = 0;
    _normal96(x);
    CHECK_X96(x, 0, 0, 0);
    x[0] = 0, x[1] = 0x00012345, x[2] = 0x6789ABCD;
    _normal96(x);
    CHECK_X96(x, (16383 + 48) << 16, 0x91A2B3C4, 0xD5E68000);
}

/* Bit-exact vectors from the model in x96_model.py: random operands, then
   ties on the bits behind the result (the first stays on even, the second
   rounds up to it). */
static const u32 products[][3][3] = {
    {{0x40150000, 0xCDA4F9FC, 0x3C6DA5D7}, {0x3EC40000, 0xA7AC435A, 0x7A97C643}, {0x3EDB0000, 0x86B10006, 0x5CCB920D}},
    {{0xBEBC0000, 0xE6CEAB36, 0x0512BD13}, {0xBF9B0000, 0x8534F457, 0x38D048EC}, {0x3E580000, 0xF0323A72, 0xEC80DEB1}},
    {{0x3F8C0000, 0xAC33BE0A, 0xC79D6793}, {0x41100000, 0xF165C8CE, 0x36E2F24B}, {0x409E0000, 0xA2612D65, 0x4332DAFA}},
    {{0xBF460000, 0xC2A00403, 0xCE80C4B0}, {0xC1020000, 0xCF5253A0, 0x2A318785}, {0x404A0000, 0x9D9DFA14, 0x0295EAEF}},
    {{0xBED80000, 0xBB5D7385, 0xDE08CAA1}, {0xC12F0000, 0x9B191BF4, 0xD8441B56}, {0x40080000, 0xE307EB10, 0xC817DBB7}},
    {{0x3F360000, 0x81862FC9, 0x634F806F}, {0xBEDB0000, 0xF93D0E45, 0x3F508249}, {0xBE120000, 0xFC34D159, 0x48CB4861}},
    {{0x3FFF0000, 0xC0000000, 0x00000000}, {0x3FFF0000, 0x80000000, 0x00000003}, {0x3FFF0000, 0xC0000000, 0x00000004}},
    {{0x3FFF0000, 0xC0000000, 0x00000000}, {0x3FFF0000, 0x80000000, 0x00000001}, {0x3FFF0000, 0xC0000000, 0x00000002}},
};
static const u32 quotients[][3][3] = {
    {{0xBE870000, 0xEF412ED6, 0xF1CFD992}, {0xC0880000, 0xCABCB06A, 0xE8ABB93F}, {0x3DFE0000, 0x970E42FA, 0x2B05851E}},
    {{0xC0E50000, 0xE9F85E31, 0x31F3B923}, {0xBF250000, 0xEE58D5CA, 0x49C7B59B}, {0x41BE0000, 0xFB4C8BD9, 0x206918CF}},
    {{0xBEAC0000, 0xCE1BCB38, 0x3BB4A570}, {0xC1010000, 0x8BDBC23A, 0x14C15C91}, {0x3DAA0000, 0xBCA2037E, 0x42A8DDF4}},
    {{0xBFDF0000, 0xC7CA7883, 0xFF5A52F1}, {0x3EC40000, 0xFF4DAB10, 0x2522D538}, {0xC1190000, 0xC85606CC, 0xA7789A59}},
    {{0x410A0000, 0xE9DD38B8, 0x69ACE913}, {0xBF3C0000, 0xF0EF55B1, 0xA1F65507}, {0xC1CC0000, 0xF87CB464, 0x73CE1109}},
    {{0xC1090000, 0xEF98BCA3, 0x5B17B966}, {0xBEE70000, 0xB2DECD6B, 0x8EFBC170}, {0x42210000, 0xAB74B48A, 0xF5D2D772}},
    {{0x3FFF0000, 0xF45D7293, 0x3ECEB3A1}, {0x3FFF0000, 0x8000001F, 0xADC94A2B}, {0x3FFF0000, 0xF45D7256, 0xC4666DBE}},
    {{0x3FFF0000, 0xB78EBB43, 0xA2E09A7D}, {0x3FFF0000, 0x80000075, 0x6A944605}, {0x3FFF0000, 0xB78EBA9B, 0x4193349A}},
};

/* Products of significands short enough to be exact, and the quotients
   that undo them. */
static unsigned check_exact(int bits_a) {
    ull A = (rnd() | 1ull << 63) & ~0ull << (64 - bits_a);
    ull B = (rnd() | 1ull << 63) & ~0ull << bits_a;
    ull p = (A >> (64 - bits_a)) * (B >> bits_a);
    int top = 63, fa = 16000 + (int)(rnd() % 700), fb = 16000 + (int)(rnd() % 700);
    while (!(p >> top)) --top;
    u32 a[3], b[3], r[3], q[3], want[3];
    make(a, 0, fa, A);
    make(b, 0x80000000, fb, B);
    make(want, 0x80000000, fa + fb - 16383 + (top == 63), p << (63 - top));
    _mulx(a, b, r);
    _divx(r, b, q);
    return r[0] != want[0] || sig(r) != sig(want) || q[0] != a[0] || sig(q) != A;
}

static void test_product(void) {
    t_section("product");
    u32 r[3], z[3] = {0, 0, 0};
    _mulx(one, one, r);
    CHECK_X96(r, one[0], one[1], one[2]);
    _mulx(ten, z, r);
    CHECK_X96(r, 0, 0, 0);
    u32 m[3] = {0xC0020000, 0xA0000000, 0};  /* -10 */
    _mulx(m, ten, r);
    CHECK_X96(r, 0xC0050000, 0xC8000000, 0);
    _mulx(m, m, m);                           /* over its own operands */
    CHECK_X96(m, 0x40050000, 0xC8000000, 0);
    /* From 2 up, bits behind the result round up only from three quarters:
       (2 - 2^-63)^2 has 2^-126 behind, sqrt(2)^2 rounded up has 0.92. */
    u32 s[3] = {0x3FFF0000, 0xFFFFFFFF, 0xFFFFFFFF};
    _mulx(s, s, r);
    CHECK_X96(r, 0x40000000, 0xFFFFFFFF, 0xFFFFFFFE);
    u32 t[3] = {0x3FFF0000, 0xB504F333, 0xF9DE6485};
    _mulx(t, t, r);
    CHECK_X96(r, 0x40000000, 0x80000000, 1);

    for (unsigned i = 0; i < sizeof products / sizeof products[0]; ++i) {
        _mulx(products[i][0], products[i][1], r);
        CHECK_X96(r, products[i][2][0], products[i][2][1], products[i][2][2]);
    }
    unsigned bad = 0;
    for (int i = 0; i < 100000; ++i) bad += check_exact(1 + (int)(rnd() % 63));
    CHECK_EQ(bad, 0);
}

static void test_quotient(void) {
    t_section("quotient");
    u32 r[3];
    _divx(one, ten, r);
    CHECK_X96(r, 0x3FFB0000, 0xCCCCCCCC, 0xCCCCCCCD);
    u32 six[3] = {0x40010000, 0xC0000000, 0}, three[3] = {0xC0000000, 0xC0000000, 0};
    _divx(six, three, three);                 /* over the divisor */
    CHECK_X96(three, 0xC0000000, 0x80000000, 0);
    /* 2/3 = 0.1010...: the bits behind the result are over a half. */
    u32 two[3] = {0x40000000, 0x80000000, 0}, three2[3] = {0x40000000, 0xC0000000, 0};
    _divx(two, three2, r);
    CHECK_X96(r, 0x3FFE0000, 0xAAAAAAAA, 0xAAAAAAAB);
    /* An exponent difference below -16382 is zero; at -16382 it is not. */
    u32 small[3] = {0x00010000, 0x80000000, 0}, big[3] = {0x3FFF0000, 0x80000000, 0};
    big[0] = 0x40000000;
    _divx(small, big, r);
    CHECK_X96(r, 0, 0, 0);
    big[0] = 0x3FFF0000;
    _divx(small, big, r);
    CHECK_X96(r, 0x00010000, 0x80000000, 0);

    for (unsigned i = 0; i < sizeof quotients / sizeof quotients[0]; ++i) {
        _divx(quotients[i][0], quotients[i][1], r);
        CHECK_X96(r, quotients[i][2][0], quotients[i][2][1], quotients[i][2][2]);
    }
}

/* 10^k as the powering gives it (model words), and the significand of
   10^k correctly rounded, from exact rational arithmetic. */
static const struct { int k; u32 got[3]; } powers[] = {
    {28, {0x405C0000, 0x813F3978, 0xF8940984}},
    {40, {0x40830000, 0xEB194F8E, 0x1AE525FD}},
    {100, {0x414B0000, 0x924D692C, 0xA61BE758}},
    {300, {0x43E30000, 0xBF21E440, 0x03ACDD2B}},
    {1000, {0x4CF80000, 0xF38DB1F9, 0xDD3DABFB}},
    {4000, {0x73E60000, 0xD1BA8323, 0xFE558C3D}},
    {4931, {0x7FFB0000, 0xAC23C221, 0x16CBF880}},
    {-1, {0x3FFB0000, 0xCCCCCCCC, 0xCCCCCCCD}},
    {-5, {0x3FEE0000, 0xA7C5AC47, 0x1B478423}},
    {-28, {0x3FA10000, 0xFD87B5F2, 0x8300CA0E}},
    {-100, {0x3EB20000, 0xDFF97724, 0x70297EBE}},
    {-300, {0x3C1A0000, 0xAB70FE17, 0xC79AC6CC}},
    {-1000, {0x33050000, 0x868A9188, 0xA89E146D}},
    {-4000, {0x0C170000, 0x9C3D7386, 0x4F3805DB}},
    {-4930, {0x00050000, 0xEDF240A7, 0xEC18E5D0}},
};
static const ull nearest[] = {
    0x813F3978F8940984ull, 0xEB194F8E1AE525FDull, 0x924D692CA61BE758ull, 0xBF21E44003ACDD2Dull,
    0xF38DB1F9DD3DAC05ull, 0xD1BA8323FE558C61ull, 0xAC23C22116CBF8A4ull, 0xCCCCCCCCCCCCCCCDull,
    0xA7C5AC471B478423ull, 0xFD87B5F28300CA0Eull, 0xDFF9772470297EBDull, 0xAB70FE17C79AC6CAull,
    0x868A9188A89E1467ull, 0x9C3D73864F3805C0ull, 0xEDF240A7EC18E59Dull,
};

static void test_powers(void) {
    t_section("integer powers");
    u32 r[3], z[3] = {0, 0, 0};
    _cmath_xtoi(ten, 0, r);
    CHECK_X96(r, one[0], one[1], one[2]);
    _cmath_xtoi(z, 0, r);
    CHECK_X96(r, one[0], one[1], one[2]);
    _cmath_xtoi(ten, 1, r);
    CHECK_X96(r, ten[0], ten[1], ten[2]);
    u32 tenth[3];
    _divx(one, ten, tenth);
    _cmath_xtoi(ten, -1, r);
    CHECK_X96(r, tenth[0], tenth[1], tenth[2]);
    u32 m[3] = {0xC0020000, 0xA0000000, 0};
    _cmath_xtoi(m, 3, r);
    CHECK_X96(r, 0xC0080000, 0xFA000000, 0);
    _cmath_xtoi(m, 2, m);                    /* over its operand */
    CHECK_X96(m, 0x40050000, 0xC8000000, 0);

    /* 10^k up to 10^27 is exact in 64 bits: the same words as the integer. */
    u32 n[3] = {0, 0, 1};
    for (int k = 1; k <= 27; ++k) {
        _mulx10(n, 0);
        u32 want[3] = {n[0], n[1], n[2]};
        _normal96(want);
        _cmath_xtoi(ten, k, r);
        CHECK_X96(r, want[0], want[1], want[2]);
    }
    /* Beyond, every product rounds. The error stays far below the 11 bits
       that rounding to double drops. */
    for (unsigned i = 0; i < sizeof powers / sizeof powers[0]; ++i) {
        _cmath_xtoi(ten, powers[i].k, r);
        CHECK_X96(r, powers[i].got[0], powers[i].got[1], powers[i].got[2]);
        ull d = sig(r) > nearest[i] ? sig(r) - nearest[i] : nearest[i] - sig(r);
        CHECK(d < 64);
    }
    _cmath_xtoi(ten, -2147483647 - 1, r);  /* must end; the value is free */
}

int main(void) {
    test_wide_integers();
    test_product();
    test_quotient();
    test_powers();
    return t_finish();
}
