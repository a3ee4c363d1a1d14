/* The quad primitives against exact arithmetic on random normalised pairs.
   Each result must be normalised and lie within a bound of the exact value,
   relative, in units of 2^-106. The bounds sit a little above what the
   double-double algorithms reach, close enough that dropping a correction
   term of any of them fails. Products and quotients sum their small terms
   at 64 bits, which leaves only the rounding of the trailing double: half a
   unit. A quotient is judged by its residual q b - a. */
#include "harness.h"
#include "exact.h"

enum { ROUNDS = 3000, OPS = 11 };
static const char *const names[OPS] = {"qadd", "qsub", "qaddd", "qsubd", "qrsubd", "qmul",
                                       "qmuld", "qmuli", "qdiv", "qdivd", "qrdivd"};
static const double bounds[OPS] = {2, 2, 2, 2, 2, 0.55, 0.55, 0.55, 0.55, 0.55, 0.55};

/* One operation: its result; err and ref get the exact error and the exact
   value it is relative to. */
static quad run(int op, quad a, quad b, double d, int n, exact *err, exact *ref) {
    quad r, D = Q(d, 0);
    x_zero(err);
    x_zero(ref);
    switch (op) {
    case 0: r = qadd(a, b); x_add_q(ref, a, 0); x_add_q(ref, b, 0); break;
    case 1: r = qsub(a, b); x_add_q(ref, a, 0); x_add_q(ref, b, 1); break;
    case 2: r = qaddd(a, d); x_add_q(ref, a, 0); x_add_q(ref, D, 0); break;
    case 3: r = qsubd(a, d); x_add_q(ref, a, 0); x_add_q(ref, D, 1); break;
    case 4: r = qrsubd(d, a); x_add_q(ref, D, 0); x_add_q(ref, a, 1); break;
    case 5: r = qmul(a, b); x_add_qprod(ref, a, b, 0); break;
    case 6: r = qmuld(a, d); x_add_qprod(ref, a, D, 0); break;
    case 7: r = qmuli(a, n); x_add_qprod(ref, a, Q((double)n, 0), 0); break;
    case 8: r = qdiv(a, b); x_add_qprod(err, r, b, 0); x_add_q(ref, a, 0); break;
    case 9: r = qdivd(a, d); x_add_qprod(err, r, D, 0); x_add_q(ref, a, 0); break;
    default: r = qrdivd(d, b); x_add_qprod(err, r, b, 0); x_add_q(ref, D, 0); break;
    }
    if (op < 8) x_add_q(err, r, 0);
    x_sub(err, ref);
    return r;
}

static void accuracy(void) {
    double worst[OPS] = {0};
    int unnormalised[OPS] = {0};
    for (int i = 0; i < ROUNDS; ++i) {
        quad a = x_random_quad(-60, 60), b = x_random_quad(-60, 60);
        double d = x_random_double(-60, 60);
        /* Close operands too, for cancellation. */
        if (i % 4 == 0) b = Q(-a.hi * (1 + x_pow2(-40) * (i % 7)), a.hi * x_pow2(-60) * (i % 5 - 2));
        int n = (int)(x_next() >> 33) - (1 << 30);
        for (int op = 0; op < OPS; ++op) {
            exact err, ref;
            quad r = run(op, a, b, d, n, &err, &ref);
            if (x_is_zero(&ref)) continue;
            double u = x_units(&err, &ref);
            if (!(u <= worst[op])) worst[op] = u;
            unnormalised[op] += !x_normalised(r);
        }
    }
    for (int op = 0; op < OPS; ++op) {
        t_section(names[op]);
        CHECK(worst[op] <= bounds[op]);
        CHECK_EQ(unnormalised[op], 0);
        /* The figure for the record: worst error in tenths of 2^-106. */
        char line[32] = "  ", *p = line + 2;
        for (const char *s = names[op]; *s;) *p++ = *s++;
        *p++ = ' ';
        int v = (int)(worst[op] * 10 + 0.5);
        *p++ = (char)('0' + v / 10 % 10), *p++ = '.', *p++ = (char)('0' + v % 10), *p = 0;
        t_note(line);
    }
}

static void powers(void) {
    t_section("qpowi qpowll exact");
    /* 3^40 has 64 bits: hi + lo must be it exactly. */
    u64 p = 1;
    for (int i = 0; i < 40; ++i) p *= 3;
    double hi = (double)p;
    double lo = hi > (double)p ? -(double)(long long)((u64)hi - p) : (double)(long long)(p - (u64)hi);
    quad r = qpowi(Q(3, 0), 40);
    CHECK(r.hi == hi && r.lo == lo);
    r = qpowll(Q(3, 0), 40);
    CHECK(r.hi == hi && r.lo == lo);
    /* (1 + 2^-20)^5 has 101 bits. */
    static const double binom[6] = {1, 5, 10, 10, 5, 1};
    exact ref, err;
    x_zero(&ref);
    for (int k = 0; k <= 5; ++k) x_add_prod(&ref, binom[k], x_pow2(-20 * k), 0);
    x_zero(&err);
    x_add_q(&err, qpowi(Q(1 + x_pow2(-20), 0), 5), 0);
    x_sub(&err, &ref);
    CHECK(x_is_zero(&err));

    /* The formatting of quads scales by powers of ten: every one a pair
       can hold must come out exact. */
    exact ten;
    x_zero(&ten);
    x_add_prod(&ten, 1, 1, 0);
    int inexact = -1;
    for (int k = 1; k <= 46; ++k) {
        exact t = ten;
        for (int i = 1; i < 10; ++i) x_add(&ten, &t);
        x_zero(&err);
        x_add_q(&err, qpowi(Q(10, 0), k), 0);
        x_sub(&err, &ten);
        if (!x_is_zero(&err) && inexact < 0) inexact = k;
    }
    CHECK_EQ(inexact, -1);

    t_section("qpowi negative and zero powers");
    r = qpowi(Q(7.5, 1e-16), 0);
    CHECK(r.hi == 1 && r.lo == 0);
    r = qmul(qpowi(Q(3, 0), -40), Q(hi, lo));
    CHECK(r.hi == 1 && x_fabs(r.lo) <= x_pow2(-104));
    r = qpowll(Q(2, 0), -1000);
    CHECK(r.hi == x_pow2(-1000) && r.lo == 0);
    r = qpowi(Q(-2, 0), 31);
    CHECK(r.hi == -x_pow2(31) && r.lo == 0);
    r = qpowi(Q(1, 0), -2147483647 - 1);
    CHECK(r.hi == 1 && r.lo == 0);
    r = qpowll(Q(-1, 0), 0x7FFFFFFFFFFFFFFFll);
    CHECK(r.hi == -1 && r.lo == 0);
}

/* x - n y - r must vanish to quad accuracy, with 2|r| <= |y|. */
static void remainders(void) {
    t_section("qrem_near");
    const quad pi = Q(3.141592653589793, 1.2246467991473532e-16), pi40 = qdivd(pi, 40);
    double worst = 0;
    int outside = 0;
    for (int i = 0; i < ROUNDS; ++i) {
        quad y = (i % 3 == 0) ? pi : (i % 3 == 1) ? pi40 : x_random_quad(0, 10);
        quad x = x_random_quad(-12, 24), r;
        int n;
        qrem_near(x, y, &n, &r);
        exact err, ref, excess;
        x_zero(&err);
        x_add_q(&err, r, 0);
        x_add_qprod(&err, Q((double)n, 0), y, 0);
        x_zero(&ref);
        x_add_q(&ref, x, 0);
        x_sub(&err, &ref);
        double u = x_units(&err, &ref);
        if (u > worst) worst = u;
        x_zero(&excess);
        x_add_q(&excess, r, r.hi < 0);
        x_add_q(&excess, r, r.hi < 0);
        x_add_q(&excess, y, y.hi >= 0);
        outside += !x_negative(&excess) && !x_is_zero(&excess);
    }
    CHECK(worst <= 1);
    CHECK_EQ(outside, 0);
    /* To nearest, not by truncation. */
    int n;
    quad r;
    qrem_near(qmuld(pi, 2.6), pi, &n, &r);
    CHECK(n == 3 && r.hi < 0);
    qrem_near(qmuld(pi40, -19.7), pi40, &n, &r);
    CHECK_EQ(n, -20);
    /* A quotient beyond an int keeps its parity: (2^60 + 1) / 1. */
    qrem_near(Q(x_pow2(60), 1), Q(1, 0), &n, &r);
    CHECK(n == 1 && r.hi == 0);
}

static void specials(void) {
    t_section("qneg");
    quad r = qneg(Q(1, -1e-17));
    CHECK(r.hi == -1 && r.lo == 1e-17);

    t_section("infinities and NaN come out as (hi, +0)");
    double inf = x_double_of(0x7FF0000000000000ull);
    r = qadd(Q(inf, 0), Q(1, 1e-20));
    CHECK(r.hi == inf && r.lo == 0);
    r = qmul(Q(-inf, 0), Q(2, 0));
    CHECK(r.hi == -inf && r.lo == 0);
    r = qdiv(Q(1, 0), Q(0, 0));
    CHECK(r.hi == inf && r.lo == 0);
    r = qadd(Q(x_double_of(0x7FF8000000000000ull), 0), Q(1, 0));
    CHECK(r.hi != r.hi && r.lo == 0);
    r = qmul(Q(1e300, 0), Q(1e300, 0));
    CHECK(r.hi == inf && r.lo == 0);
    /* Products near the top of the range split without overflow. */
    r = qmuld(Q(1.5e307, 1e290), 10);
    CHECK(r.hi == 1.5e308 && x_normalised(r));
}

int main(void) {
    accuracy();
    powers();
    remainders();
    specials();
    return t_finish();
}
