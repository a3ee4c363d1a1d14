/* The quad primitives against exact arithmetic on random normalised pairs.
   Each result must be normalised and lie within a bound of the exact value,
   relative, in units of 2^-106. The bounds sit a little above what the
   double-double algorithms reach, close enough that dropping a correction
   term of any of them fails. Products and quotients sum their small terms
   at 64 bits, which leaves only the rounding of the trailing double: half a
   unit. A quotient is judged by its residual q b - a. */
#include "harness.h"
#include "qcheck.h"

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
    }
}

static void powers(void) {
    t_section("qpowi qpowll");
    /* 3^40 has 64 bits: hi + lo must be it exactly. */
    u64 p = 1;
    for (int i = 0; i < 40; ++i) p *= 3;
    double hi = (double)p;
    double lo = hi > (double)p ? -(double)(long long)((u64)hi - p) : (double)(long long)(p - (u64)hi);
    const qrow rows[] = {
        QR(qpowi(Q(3, 0), 40), Q(hi, lo)), QR(qpowll(Q(3, 0), 40), Q(hi, lo)),
        QR(qpowi(Q(7.5, 1e-16), 0), Q(1, 0)), QR(qpowll(Q(2, 0), -1000), Q(x_pow2(-1000), 0)),
        QR(qpowi(Q(-2, 0), 31), Q(-x_pow2(31), 0)), QR(qpowi(Q(1, 0), -2147483647 - 1), Q(1, 0)),
        QR(qpowll(Q(-1, 0), 0x7FFFFFFFFFFFFFFFll), Q(-1, 0)),
    };
    CHECK_QROWS(rows);
    /* (1 + 2^-20)^5 has 101 bits. */
    static const double binom[6] = {1, 5, 10, 10, 5, 1};
    exact err = x_of_q(qpowi(Q(1 + x_pow2(-20), 0), 5));
    for (int k = 0; k <= 5; ++k) x_add_prod(&err, binom[k], x_pow2(-20 * k), 1);
    CHECK(x_is_zero(&err));

    /* The formatting of quads scales by powers of ten: every one a pair
       can hold must come out exact. */
    exact ten = x_of_q(Q(1, 0));
    int inexact = -1;
    for (int k = 1; k <= 46; ++k) {
        exact t = ten;
        for (int i = 1; i < 10; ++i) x_add(&ten, &t);
        err = x_of_q(qpowi(Q(10, 0), k));
        x_sub(&err, &ten);
        if (!x_is_zero(&err) && inexact < 0) inexact = k;
    }
    CHECK_EQ(inexact, -1);

    quad r = qmul(qpowi(Q(3, 0), -40), Q(hi, lo));
    CHECK(r.hi == 1 && x_fabs(r.lo) <= x_pow2(-104));
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
        exact err = x_of_qprod(Q((double)n, 0), y), ref = x_of_q(x), excess = x_of_q(y);
        x_add_q(&err, r, 0);
        x_sub(&err, &ref);
        if (x_units(&err, &ref) > worst) worst = x_units(&err, &ref);
        /* 2|r| - |y| */
        if (y.hi >= 0) x_negate(&excess);
        x_add_q(&excess, r, r.hi < 0);
        x_add_q(&excess, r, r.hi < 0);
        outside += !x_negative(&excess) && !x_is_zero(&excess);
    }
    CHECK(worst <= 1);
    CHECK_EQ(outside, 0);
    /* A quotient beyond an int keeps its parity: (2^60 + 1) / 1. */
    int n;
    quad r;
    qrem_near(Q(x_pow2(60), 1), Q(1, 0), &n, &r);
    CHECK(n == 1 && r.hi == 0);
}

static void specials(void) {
    t_section("qneg; infinities and NaN come out as (hi, +0)");
    const qrow rows[] = {
        QR(qneg(Q(1, -1e-17)), Q(-1, 1e-17)), QR(qadd(Q(INF, 0), Q(1, 1e-20)), Q(INF, 0)),
        QR(qmul(Q(-INF, 0), Q(2, 0)), Q(-INF, 0)), QR(qdiv(Q(1, 0), Q(0, 0)), Q(INF, 0)),
        QR(qadd(QNAN, Q(1, 0)), QNAN), QR(qmul(Q(1e300, 0), Q(1e300, 0)), Q(INF, 0)),
    };
    CHECK_QROWS(rows);
    /* Products near the top of the range split without overflow. */
    quad r = qmuld(Q(1.5e307, 1e290), 10);
    CHECK(r.hi == 1.5e308 && x_normalised(r));
}

int main(void) {
    accuracy();
    powers();
    remainders();
    specials();
    return t_finish();
}
