/* Complex arithmetic on quad parts: the exact cases of the edge list, the
   zero divisor and zero base, the square root's choice of form in every
   quadrant and at overflow of a square, the integer powers and the road
   to them, and identities at quad accuracy. */
#include <qcomplex.h>

#include "harness.h"
#include "qcheck.h"


/* |got - want| / |want| in units of 2^-106, or against a given scale. */
static double cunits_scaled(qcomplex got, qcomplex want, double scale) {
    quad dr = qsub(got.re, want.re), di = qsub(got.im, want.im);
    double u = (x_fabs(dr.hi) + x_fabs(di.hi)) / scale * x_pow2(106);
    return u == u ? u : 1e30;
}
static double cunits(qcomplex got, qcomplex want) {
    return cunits_scaled(got, want, x_fabs(want.re.hi) + x_fabs(want.im.hi));
}

static qcomplex random_c(int lo, int hi) { return CQ(x_random_quad(lo, hi), x_random_quad(lo, hi)); }

/* The argument of z comes from one Newton step on the tangent from a
   double guess, whose error grows with |im/re|: the size by which errors
   that pass through atan2l are divided. */
static double steep(qcomplex z) { return 1 + x_fabs(z.im.hi / z.re.hi); }

static void exact_answers(void) {
    t_section("exact answers");
    qcomplex x = C(1.0 + x_pow2(-30), x_pow2(-20)), nan = CQ(QNAN, QNAN);
    quad y = Q(0.75, 1e-18);
    const qrow rows[] = {
        CR(CSQRTL(C(-4, 0)), C(0, 2)), CR(CSQRTL(C(4, 0)), C(2, 0)), CR(CSQRTL(C(0, 0)), C(0, 0)),
        CR(CSQRTL(C(-x_pow2(700), 0)), C(0, x_pow2(350))),
        CR(CSQRTL(C(x_pow2(1000), 0)), C(x_pow2(500), 0)),
        CR(_orvane_cqdiv(C(1, 0), C(0, 2)), C(0, -0.5)), CR(_orvane_cqdiv(C(6, 8), C(3, 4)), C(2, 0)),
        CR(_orvane_cqdiv(C(1, 1), C(0, 0)), nan),
        CR(_orvane_cqdiv(C(1, 1), CQ(Q(0, 1), Q(-0.0, 1))), nan),   /* hi parts read */
        CR(_orvane_cqtoi(C(0, 1), 2), C(-1, 0)), CR(_orvane_cqtoi(C(2, 0), -2), C(0.25, 0)),
        CR(_orvane_cqtoi(C(0, 0), 0), C(1, 0)), CR(_orvane_cqtoi(C(0, 0), -3), C(0, 0)),
        CR(_orvane_cqtoi(C(5, 7), 0), C(1, 0)),
        /* The magnitude of -2^31 survives: i^(-2^31) = 1. */
        CR(_orvane_cqtoi(C(0, 1), -2147483647 - 1), C(1, 0)),
        CR(_orvane_cpowl(C(0, 0), C(0, 0)), nan), CR(_orvane_cpowl(C(0, 0), C(2.5, 0)), C(0, 0)),
        CR(_orvane_cpowl(C(0, 0), C(0, 1)), C(0, 0)), CR(_orvane_cpowl(C(0, 1), C(2, 0)), C(-1, 0)),
        /* The integer road: small integers and powers of two below 2^31 with
           no low word, whatever y.re.lo is. */
        CR(_orvane_cpowl(x, C(3, 0)), _orvane_cqtoi(x, 3)),
        CR(_orvane_cpowl(x, CQ(Q(-7, 1e-20), Q(0, 1e-300))), _orvane_cqtoi(x, -7)),
        CR(_orvane_cpowl(x, C(x_pow2(25), 0)), _orvane_cqtoi(x, 1 << 25)),
        CR(CLOGL(C(0, 0)), CQ(Q(-INF, 0), Q(0, 0))), CR(CEXPL(C(0, 0)), C(1, 0)),
        CR(CSINL(C(0, 0)), C(0, 0)), CR(CCOSL(C(0, 0)), C(1, 0)),
        /* sin(iy) = i sinh y */
        CR(CSINL(CQ(Q(0, 0), y)), CQ(Q(0, 0), sinhl(y))),
    };
    CHECK_QROWS(rows);
    /* cos(iy) = cosh y */
    qcomplex c = CCOSL(CQ(Q(0, 0), y));
    CHECK(same(c.re, coshl(y)) && c.im.hi == 0);
    errno = 0;
    qcomplex e = CEXPL(C(720, 1));
    CHECK(e.re.hi == INF && e.im.hi == INF);
    CHECK_EQ(errno, ERANGE);
    /* 3 * 2^21 is neither: the logarithm, close to but not the squaring. */
    qcomplex viaexp = _orvane_cpowl(x, C(3 * x_pow2(21), 0));
    qcomplex direct = _orvane_cqtoi(x, 3 << 21);
    CHECK(!csame(viaexp, direct));
    CHECK(cunits(viaexp, direct) <= 1e6);
    /* i^2.5 goes through logl, atan2l and expl. */
    quad h = Q(0.7071067811865476, -4.833646656726458e-17);
    CHECK(cunits(_orvane_cpowl(C(0, 1), C(2.5, 0)), CQ(qneg(h), qneg(h))) <= 8);
}

static void roots(void) {
    t_section("CSQRTL edges");
    quad r2 = sqrtl(Q(2, 0));
    CHECK(cunits(CSQRTL(C(0, 4)), CQ(r2, r2)) <= 2);
    CHECK(cunits(CSQRTL(C(0, -4)), CQ(r2, qneg(r2))) <= 2);
    CHECK(cunits(CSQRTL(C(-4, -0.0)), C(0, 2)) <= 2);
    /* b^2 overflows: w comes from |b| itself and stays finite. */
    errno = 0;
    quad w = sqrtl(Q(5e199, 0));
    CHECK(cunits(CSQRTL(C(0, -1e200)), CQ(w, qneg(w))) <= 4);
    CHECK_EQ(errno, 0);

    t_section("CSQRTL squared back");
    /* Every quadrant, and parts of very different sizes either way of the
       a - b test. */
    double worst = 0;
    int left = 0;
    for (int i = 0; i < 600; ++i) {
        qcomplex z = random_c(-20, 20);
        if (i % 3 == 0) z.im = x_random_quad(-60, -40);
        if (i % 3 == 1) z.re = x_random_quad(-60, -40);
        qcomplex s = CSQRTL(z);
        left += s.re.hi < 0;  /* the principal root */
        worst = max_of(worst, cunits(_orvane_cqmul(s, s), z));
    }
    CHECK_EQ(left, 0);
    CHECK(worst <= 8);
}

static void arithmetic(void) {
    t_section("_orvane_cqdiv");
    double worst = 0;
    for (int i = 0; i < 600; ++i) {
        qcomplex a = random_c(-30, 30), b = random_c(-30, 30);
        worst = max_of(worst, cunits(_orvane_cqmul(_orvane_cqdiv(a, b), b), a));
    }
    CHECK(worst <= 16);

    t_section("_orvane_cqtoi");
    /* Against products one at a time. */
    worst = 0;
    for (int i = 0; i < 100; ++i) {
        qcomplex x = random_c(-2, 1), p = C(1, 0);
        for (int n = 1; n <= 12; ++n) {
            p = _orvane_cqmul(p, x);
            worst = max_of(worst, cunits(_orvane_cqtoi(x, n), p));
            worst = max_of(worst, cunits(_orvane_cqmul(_orvane_cqtoi(x, -n), p), C(1, 0)));
        }
    }
    CHECK(worst <= 64);
}

static void powers(void) {
    t_section("_orvane_cpowl");
    /* x^(n + 1/2) = x^n sqrt x on the principal branch, and a complex y. */
    double worst = 0;
    for (int i = 0; i < 300; ++i) {
        qcomplex z = random_c(-3, 2);
        int n = (int)(x_next() % 9) - 4;
        qcomplex p = _orvane_cpowl(z, C(n + 0.5, 0));
        double size = steep(z) * (1 + x_fabs(n));
        worst = max_of(worst, cunits(p, _orvane_cqmul(_orvane_cqtoi(z, n), CSQRTL(z))) / size);
        /* z^(1 + i) z^(1 - i) = z^2 */
        qcomplex u = _orvane_cqmul(_orvane_cpowl(z, C(1, 1)), _orvane_cpowl(z, C(1, -1)));
        worst = max_of(worst, cunits(u, _orvane_cqmul(z, z)) / steep(z));
    }
    CHECK(worst <= 16);
}

static void functions(void) {
    t_section("CLOGL CEXPL CSINL CCOSL");
    /* exp undoes log; sin^2 + cos^2 = 1, where the squares are of the size
       of cosh^2 y and the sum cancels to 1 */
    double we = 0, wt = 0;
    for (int i = 0; i < 400; ++i) {
        qcomplex z = random_c(-10, 8), w = random_c(-6, 1);
        we = max_of(we, cunits(CEXPL(CLOGL(z)), z) / steep(z));
        qcomplex s = CSINL(w), c = CCOSL(w);
        qcomplex one = _orvane_cqmul(s, s), cc = _orvane_cqmul(c, c);
        one = CQ(qadd(one.re, cc.re), qadd(one.im, cc.im));
        wt = max_of(wt, cunits_scaled(one, C(1, 0), qmul(coshl(w.im), coshl(w.im)).hi));
    }
    CHECK(we <= 16);
    CHECK(wt <= 16);
}

int main(void) {
    exact_answers();
    roots();
    arithmetic();
    powers();
    functions();
    return t_finish();
}
