/* The extended decimal arithmetic: carries and digits, normalisation,
   exact products and quotients against 64-bit integer arithmetic, inexact
   ones bit for bit against the big-integer model in x96_model.py, and
   powers of ten against their exact values. */
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

#define CHECK_X96(x, w0, w1, w2) CHECK_MEM(x, 12, ((const u32[3]){w0, w1, w2}), 12)
static const u32 ten[3] = {0x40020000, 0xA0000000, 0};

static ull rng_state = 0x5DEECE66Dull;
static ull rnd(void) {
    rng_state ^= rng_state >> 12;
    rng_state ^= rng_state << 25;
    rng_state ^= rng_state >> 27;
    return rng_state * 0x2545F4914F6CDD1Dull;
}
/* "what, row i" for the report of a table's row. */
static const char *row_name(const char *what, unsigned i) {
    static char text[40];
    unsigned n = 0;
    while (*what) text[n++] = *what++;
    text[n++] = ' ', text[n++] = (char)('0' + i / 10), text[n++] = (char)('0' + i % 10), text[n] = 0;
    return text;
}
static ull sig(const u32 *x) { return (ull)x[1] << 32 | x[2]; }
static void make(u32 *x, u32 sign, int f, ull s) {
    x[0] = sign | (u32)f << 16, x[1] = (u32)(s >> 32), x[2] = (u32)s;
}

static void test_wide_integers(void) {
    t_section("carries and digits");
    u32 w[3] = {5, 0xFFFFFFFF, 0xFFFFFFFF};
    _add96(&w[0], &w[1], &w[2], 1);
    CHECK_X96(w, 6, 0, 0);
    _sub96(&w[0], &w[1], &w[2], 1);
    CHECK_X96(w, 5, 0xFFFFFFFF, 0xFFFFFFFF);
    _sub96(&w[0], &w[1], &w[2], 0xFFFFFFFE);  /* no borrow */
    CHECK_X96(w, 5, 0xFFFFFFFF, 1);
    _add96(&w[0], &w[1], &w[2], 0xFFFFFFFE);
    _add96(&w[0], &w[1], &w[2], 0);       /* no carry: nothing moves */
    CHECK_X96(w, 5, 0xFFFFFFFF, 0xFFFFFFFF);
    _add64(&w[1], &w[2], 0x20);            /* the carry out of the top is lost */
    CHECK_X96(w, 5, 0, 0x1F);
    _sub64(&w[1], &w[2], 0x20);
    CHECK_X96(w, 5, 0xFFFFFFFF, 0xFFFFFFFF);
    u32 n[3] = {0, 0, 12};
    _mulx10(n, 0x37);
    CHECK_X96(n, 0, 0, 127);
    /* 2^96 - 1 digit by digit, then one digit more wraps modulo 2^96. */
    n[2] = 0;
    for (const char *p = "79228162514264337593543950335"; *p; ++p) _mulx10(n, (u32)*p);
    CHECK_X96(n, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);
    _mulx10(n, '5');
    CHECK_X96(n, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFB);

    t_section("normalisation");
    static const u32 cases[][2][3] = {
        {{0, 0, 1}, {0x3FFF0000, 0x80000000, 0}},
        {{0, 0, 10}, {0x40020000, 0xA0000000, 0}},
        {{0, 0x00012345, 0x6789ABCD}, {0x402F0000, 0x91A2B3C4, 0xD5E68000}},
        {{1, 0, 1}, {0x403F0000, 0x80000000, 0}},  /* 2^64 + 1: dropped, not rounded */
        {{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, {0x405E0000, 0xFFFFFFFF, 0xFFFFFFFF}},
        {{0, 0, 0}, {0, 0, 0}},
    };
    for (unsigned i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        u32 x[3] = {cases[i][0][0], cases[i][0][1], cases[i][0][2]};
        _normal96(x);
        CHECK_MEM(x, 12, cases[i][1], 12);
    }
}

/* a, b, a b: from 2 up, bits behind the result round up only from three
   quarters ((2 - 2^-63)^2 has 2^-126 behind, sqrt(2)^2 rounded up 0.92).
   Out of the field's range a product saturates, as the decimal reader
   relies on: the largest field above, keeping sign and significand; zero
   below, but not at the smallest field. The rest from the model. */
static const u32 products[][3][3] = {
    {{0x3FFF0000, 0x80000000, 0}, {0x3FFF0000, 0x80000000, 0}, {0x3FFF0000, 0x80000000, 0}},
    {{0x40020000, 0xA0000000, 0}, {0, 0, 0}, {0, 0, 0}},
    {{0xC0020000, 0xA0000000, 0}, {0x40020000, 0xA0000000, 0}, {0xC0050000, 0xC8000000, 0}},
    {{0x3FFF0000, 0xFFFFFFFF, 0xFFFFFFFF}, {0x3FFF0000, 0xFFFFFFFF, 0xFFFFFFFF}, {0x40000000, 0xFFFFFFFF, 0xFFFFFFFE}},
    {{0x3FFF0000, 0xB504F333, 0xF9DE6485}, {0x3FFF0000, 0xB504F333, 0xF9DE6485}, {0x40000000, 0x80000000, 1}},
    {{0xFFFE0000, 0xC0000000, 0}, {0x40020000, 0xA0000000, 0}, {0xFFFF0000, 0xF0000000, 0}},
    {{0x00010000, 0x80000000, 0}, {0x3FFE0000, 0x80000000, 0}, {0, 0, 0}},
    {{0x00010000, 0x80000000, 0}, {0x3FFF0000, 0x80000000, 0}, {0x00010000, 0x80000000, 0}},
    {{0x3FB60000, 0xB8A1ABCD, 0x1A6916C7}, {0xC06A0000, 0x9710CF53, 0x27AC435A}, {0xC0210000, 0xD9E6F7EE, 0xD4B01A74}},
    {{0x3E940000, 0x8CA59966, 0x66CEAB36}, {0xBEBC0000, 0x8534F457, 0x38D048EC}, {0xBD510000, 0x925E4126, 0x3BD349C6}},
    {{0xBF9B0000, 0xAC33BE0A, 0xC79D6793}, {0x3F8C0000, 0xF165C8CE, 0x36E2F24B}, {0xBF290000, 0xA2612D65, 0x4332DAFA}},
    {{0x41100000, 0xC2A00403, 0xCE80C4B0}, {0xBF460000, 0xCF5253A0, 0x2A318785}, {0xC0580000, 0x9D9DFA14, 0x0295EAEF}},
    {{0x3FFF0000, 0xC0000000, 0x00000000}, {0x3FFF0000, 0x80000000, 0x00000003}, {0x3FFF0000, 0xC0000000, 0x00000004}},
    {{0x3FFF0000, 0xC0000000, 0x00000000}, {0x3FFF0000, 0x80000000, 0x00000001}, {0x3FFF0000, 0xC0000000, 0x00000002}},
    {{0x3FFF0000, 0x946815F8, 0xB152E8FD}, {0x3FFF0000, 0xA547D542, 0x20C7B3CE}, {0x3FFF0000, 0xBFA17550, 0xA4C3F76B}},
    {{0x3FFF0000, 0xA614E556, 0xFAAE7E69}, {0x3FFF0000, 0xA9BC4E3D, 0x814D65F3}, {0x3FFF0000, 0xDC3BEB02, 0x38365B61}},
};
/* a, b, a / b: a tenth, 0.1010... with over a half behind; an exponent
   difference below -16382 is zero, at -16382 it is not. The rest from the
   model. */
static const u32 quotients[][3][3] = {
    {{0x3FFF0000, 0x80000000, 0}, {0x40020000, 0xA0000000, 0}, {0x3FFB0000, 0xCCCCCCCC, 0xCCCCCCCD}},
    {{0x40000000, 0x80000000, 0}, {0xC0000000, 0xC0000000, 0}, {0xBFFE0000, 0xAAAAAAAA, 0xAAAAAAAB}},
    {{0x00010000, 0x80000000, 0}, {0x40000000, 0x80000000, 0}, {0, 0, 0}},
    {{0x00010000, 0x80000000, 0}, {0x3FFF0000, 0x80000000, 0}, {0x00010000, 0x80000000, 0}},
    {{0xC1020000, 0xBB5D7385, 0xDE08CAA1}, {0xBED80000, 0x9B191BF4, 0xD8441B56}, {0x42290000, 0x9AA12143, 0x62A3479E}},
    {{0xC12F0000, 0x81862FC9, 0x634F806F}, {0x3F360000, 0xF93D0E45, 0x3F508249}, {0xC1F70000, 0x8509B91D, 0x91994179}},
    {{0xBEDB0000, 0xEF412ED6, 0xF1CFD992}, {0xBE870000, 0xCABCB06A, 0xE8ABB93F}, {0x40530000, 0x970E42FA, 0x2B05851E}},
    {{0xC0880000, 0xE9F85E31, 0x31F3B923}, {0xC0E50000, 0xEE58D5CA, 0x49C7B59B}, {0x3FA10000, 0xFB4C8BD9, 0x206918CF}},
    {{0x3FFF0000, 0x9C82DB49, 0xCDFF537B}, {0x3FFF0000, 0x800001A0, 0x84F184C3}, {0x3FFF0000, 0x9C82D94C, 0x822EDA0A}},
    {{0x3FFF0000, 0xD4838CDF, 0xF9B94DA9}, {0x3FFF0000, 0x80000052, 0xE71A4875}, {0x3FFF0000, 0xD4838C56, 0x55C25C12}},
    {{0x3FFF0000, 0xEC80FAD7, 0xE194DF3D}, {0x3FFF0000, 0xEC80FAD7, 0xE194DEEC}, {0x3FFF0000, 0x80000000, 0x0000002C}},
    {{0x3FFF0000, 0x82B6A803, 0x99EAC346}, {0x3FFF0000, 0x82B6A803, 0x99EAC347}, {0x3FFE0000, 0xFFFFFFFF, 0xFFFFFFFE}},
    {{0x3FFF0000, 0x9C7FF0F1, 0xE4810F9D}, {0x3FFF0000, 0x9C7FF0F1, 0xE4810F9E}, {0x3FFE0000, 0xFFFFFFFF, 0xFFFFFFFE}},
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
    return !t_memeq(r, want, 12) || q[0] != a[0] || sig(q) != A;
}

static void test_product_and_quotient(void) {
    t_section("product and quotient");
    u32 r[3], m[3] = {0xC0020000, 0xA0000000, 0}, three[3] = {0xC0000000, 0xC0000000, 0};
    for (unsigned i = 0; i < sizeof products / sizeof products[0]; ++i) {
        _mulx(products[i][0], products[i][1], r);
        t_check_mem(r, 12, products[i][2], 12, row_name("product", i), __FILE__, __LINE__);
    }
    for (unsigned i = 0; i < sizeof quotients / sizeof quotients[0]; ++i) {
        _divx(quotients[i][0], quotients[i][1], r);
        t_check_mem(r, 12, quotients[i][2], 12, row_name("quotient", i), __FILE__, __LINE__);
    }
    _mulx(m, m, m);                           /* over its own operands */
    CHECK_X96(m, 0x40050000, 0xC8000000, 0);
    _divx(m, three, three);                   /* over the divisor */
    CHECK_X96(three, 0xC0040000, 0x85555555, 0x55555555);
    unsigned bad = 0;
    for (int i = 0; i < 100000; ++i) bad += check_exact(1 + (int)(rnd() % 63));
    CHECK_EQ(bad, 0);
}

/* 10^k as the powering gives it (model words), and the significand of
   10^k correctly rounded, from exact rational arithmetic. */
static const struct { int k; u32 got[3]; } powers[] = {
    {28, {0x405C0000, 0x813F3978, 0xF8940984}},
    {300, {0x43E30000, 0xBF21E440, 0x03ACDD2B}},
    {4000, {0x73E60000, 0xD1BA8323, 0xFE558C3D}},
    {4931, {0x7FFB0000, 0xAC23C221, 0x16CBF880}},
    {-1, {0x3FFB0000, 0xCCCCCCCC, 0xCCCCCCCD}},
    {-28, {0x3FA10000, 0xFD87B5F2, 0x8300CA0E}},
    {-300, {0x3C1A0000, 0xAB70FE17, 0xC79AC6CC}},
    {-4000, {0x0C170000, 0x9C3D7386, 0x4F3805DB}},
    {-4930, {0x00050000, 0xEDF240A7, 0xEC18E5D0}},
};
static const ull nearest[] = {
    0x813F3978F8940984ull, 0xBF21E44003ACDD2Dull, 0xD1BA8323FE558C61ull, 0xAC23C22116CBF8A4ull,
    0xCCCCCCCCCCCCCCCDull, 0xFD87B5F28300CA0Eull, 0xAB70FE17C79AC6CAull, 0x9C3D73864F3805C0ull,
    0xEDF240A7EC18E59Dull,
};

static void test_powers(void) {
    t_section("integer powers");
    u32 r[3], z[3] = {0, 0, 0}, m[3] = {0xC0020000, 0xA0000000, 0};
    _cmath_xtoi(z, 0, r);
    CHECK_X96(r, 0x3FFF0000, 0x80000000, 0);
    /* Zero to a negative power divides by zero: every quotient bit comes
       out 1 and rounds up into the next power, the largest exponent. */
    _cmath_xtoi(z, -1, r);
    CHECK_X96(r, 0x7FFF0000, 0x80000000, 0);
    _cmath_xtoi(m, 3, r);
    CHECK_X96(r, 0xC0080000, 0xFA000000, 0);
    _cmath_xtoi(m, 2, m);                    /* over its operand */
    CHECK_X96(m, 0x40050000, 0xC8000000, 0);
    /* 10^k up to 10^27 is exact in 64 bits: the words of the integer. */
    u32 n[3] = {0, 0, 1};
    for (int k = 1; k <= 27; ++k) {
        _mulx10(n, 0);
        u32 want[3] = {n[0], n[1], n[2]};
        _normal96(want);
        _cmath_xtoi(ten, k, r);
        CHECK_MEM(r, 12, want, 12);
    }
    /* Beyond, every product rounds; the error stays far below the 11 bits
       that rounding to double drops. */
    for (unsigned i = 0; i < sizeof powers / sizeof powers[0]; ++i) {
        _cmath_xtoi(ten, powers[i].k, r);
        CHECK_MEM(r, 12, powers[i].got, 12);
        ull d = sig(r) > nearest[i] ? sig(r) - nearest[i] : nearest[i] - sig(r);
        CHECK(d < 64);
    }
    _cmath_xtoi(ten, -2147483647 - 1, r);  /* must end; the value is free */
}

int main(void) {
    test_wide_integers();
    test_product_and_quotient();
    test_powers();
    return t_finish();
}
