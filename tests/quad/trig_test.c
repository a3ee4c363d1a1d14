/* The quad trigonometric and hyperbolic functions: the exact answers at 0
   and at the steps of the reduction, the tangent's pole, the domain
   answers, the forks between series and exponential, and identities that
   a wrong table entry, coefficient or Newton step breaks at quad
   accuracy. */
#include "harness.h"
#include "qcheck.h"

static const quad PI = {3.141592653589793, 1.224646799147352e-16};
static const quad PIO2 = {1.5707963267948966, 6.12323399573676e-17};
static const quad PI40 = {0.07853981633974483, 3.0616169978683824e-18};

static quad sq(quad x) { return qmul(x, x); }

static void direct(void) {
    t_section("exact answers and domains");
    const qrow rows[] = {
        QR(sinl(Q(0, 0)), Q(0, 0)), QR(cosl(Q(0, 0)), Q(1, 0)), QR(tanl(Q(0, 0)), Q(0, 0)),
        /* A tiny argument skips the series: the sine is the argument. */
        QR(sinl(Q(1e-40, 1e-57)), Q(1e-40, 1e-57)),
        QR(sinl(Q(-0.5, -1e-18)), qneg(sinl(Q(0.5, 1e-18)))),
        QR(cosl(Q(-0.5, -1e-18)), cosl(Q(0.5, 1e-18))),
        QR(asinl(Q(1.5, 0)), QNAN), QR(acosl(Q(-1.0000000000000002, 0)), QNAN),
        QR(asinl(QNAN), QNAN), QR(acosl(QNAN), QNAN), QR(acosl(Q(1, 0)), Q(0, 0)),
        QR(asinl(Q(0, 0)), Q(0, 0)), QR(atanl(Q(0, 0)), Q(0, 0)),
        QR(atan2l(Q(0, 0), Q(0, 0)), Q(0, 0)), QR(atan2l(Q(-0.0, 0), Q(0, 0)), Q(0, 0)),
        QR(atan2l(Q(-1, 0), Q(0, 0)), qneg(PIO2)), QR(atan2l(Q(1, 0), Q(-0.0, 0)), PIO2),
        QR(sinhl(Q(0, 1e-300)), Q(0, 0)), QR(sinhl(QNAN), Q(0, 0)), QR(coshl(Q(0, 0)), Q(1, 0)),
        QR(coshl(QNAN), Q(1, 0)), QR(tanhl(Q(400, 0)), Q(1, 0)), QR(tanhl(Q(-400, 0)), Q(-1, 0)),
        QR(tanhl(Q(0, 0)), Q(0, 0)),
    };
    CHECK_QROWS(rows);
    /* The range test reads hi alone; 1 - x^2 < 0 then gives NaN. */
    errno = 0;
    quad r = asinl(Q(1, 1e-20));
    CHECK(r.hi != r.hi && errno == 0);
    /* Overflow is that of expl; the reciprocal term then leaves an
       infinity or a NaN. */
    r = coshl(Q(720, 0));
    CHECK(!(x_fabs(r.hi) < INF));
    CHECK_EQ(errno, ERANGE);

    t_section("every step of the table");
    /* At k pi/40 + d, for every k the reduction can give and a few offsets
       d, sin^2 + cos^2 = 1 and sin 2x = 2 sin x cos x: a wrong entry of the
       table, or a sine and cosine taken from the wrong ends of it, shows. */
    double w1 = 0, w2 = 0;
    for (int n = -44; n <= 44; ++n) {
        for (int j = 0; j < 4; ++j) {
            quad d = Q(j == 0 ? 0 : x_random_double(-12, -5), 0);
            quad x = qadd(qmuli(PI40, n), d);
            quad s = sinl(x), c = cosl(x);
            w1 = max_of(w1, abs_units(qadd(sq(s), sq(c)), Q(1, 0), 1));
            w2 = max_of(w2, abs_units(sinl(qmuli(x, 2)), qmuli(qmul(s, c), 2), 1));
        }
    }
    CHECK(w1 <= 8);
    CHECK(w2 <= 16);
    /* The table entries themselves, up to their rounding. */
    CHECK(units(sinl(qmuli(PI40, 10)), Q(0.7071067811865476, -4.833646656726458e-17)) <= 2);
    CHECK(units(sinl(qmuli(PI40, 20)), Q(1, 0)) <= 2);
    CHECK(units(cosl(qmuli(PI40, -10)), Q(0.7071067811865476, -4.833646656726458e-17)) <= 2);

    t_section("tanl");
    /* At PIO2 the cosine is tiny but not 0: a large finite quotient. */
    quad t = tanl(PIO2);
    CHECK(x_fabs(t.hi) > 1e30 && x_fabs(t.hi) < INF);
    double w3 = 0;
    for (int i = 0; i < 300; ++i) {
        quad x = x_random_quad(-6, 0);
        w3 = max_of(w3, units(tanl(x), qdiv(sinl(x), cosl(x))));
    }
    CHECK(w3 <= 8);
    /* Periodicity, signs and symmetry around the multiples of pi. */
    CHECK(units(sinl(qadd(PI, Q(0.5, 0))), qneg(sinl(Q(0.5, 0)))) <= 64);
    CHECK(units(cosl(qsub(Q(0.5, 0), PI)), qneg(cosl(Q(0.5, 0)))) <= 64);
}

static void inverses(void) {
    t_section("asinl acosl values");
    /* The Newton steps converge on the angle of the table and of PI40,
       a few units from the stored PIO2 and PI. */
    CHECK(units(asinl(Q(1, 0)), PIO2) <= 4);
    CHECK(units(asinl(Q(-1, 0)), qneg(PIO2)) <= 4);
    CHECK(units(acosl(Q(-1, 0)), PI) <= 4);
    CHECK(units(acosl(Q(0, 0)), PIO2) <= 4);
    CHECK(units(asinl(Q(0.5, 0)), qdivd(PI, 6)) <= 4);
    CHECK(units(acosl(Q(-0.5, 0)), qdivd(qmuli(PI, 2), 3)) <= 4);
    /* Both forms of each, either side of |x| = 0.866: sine and cosine
       undo them, and acos x + asin x = pi/2. */
    double ws = 0, wc = 0, wsum = 0;
    for (int i = 0; i < 400; ++i) {
        quad x = x_random_quad(-8, -1);
        if (i & 1) x = qrsubd(x.hi < 0 ? -1 : 1, x);  /* near +-1 */
        ws = max_of(ws, abs_units(sinl(asinl(x)), x, 1));
        wc = max_of(wc, abs_units(cosl(acosl(x)), x, 1));
        wsum = max_of(wsum, abs_units(qadd(asinl(x), acosl(x)), PIO2, 1));
    }
    CHECK(ws <= 8);
    CHECK(wc <= 8);
    /* acos of a negative x is PI minus an angle: the stored PI is some
       ten units (of 2^-106) from pi */
    CHECK(wsum <= 16);

    t_section("atanl");
    CHECK(units(atanl(Q(1, 0)), qdivd(PI, 4)) <= 4);
    CHECK(units(atanl(Q(-1e300, 0)), qneg(PIO2)) <= 2);
    /* tan undoes atan on all three intervals of the reduction. */
    double wt = 0;
    for (int i = 0; i < 400; ++i) {
        quad x = x_random_quad(-6, 6);
        quad a = atanl(x);
        wt = max_of(wt, units(tanl(a), x) / (1 + x_fabs(x.hi)));
    }
    CHECK(wt <= 16);

    t_section("atan2l");
    /* The quadrant comes from both signs. */
    CHECK(units(atan2l(Q(1, 0), Q(-1, 0)), qmuld(PI, 0.75)) <= 4);
    CHECK(units(atan2l(Q(-1, 0), Q(-1, 0)), qmuld(PI, -0.75)) <= 4);
    double wa = 0;
    for (int i = 0; i < 400; ++i) {
        quad y = x_random_quad(-4, 4), x = x_random_quad(-4, 4);
        quad a = atan2l(y, x);
        /* The angle's sine and cosine point along (x, y). One Newton step
           on the tangent from a double guess leaves an error that grows
           with the tangent. */
        quad h = hypotl(x, y);
        double size = 1 + x_fabs(y.hi / x.hi);
        wa = max_of(wa, abs_units(qmul(sinl(a), h), y, h.hi) / size);
        wa = max_of(wa, abs_units(qmul(cosl(a), h), x, h.hi) / size);
    }
    CHECK(wa <= 8);
}

static void hyperbolic(void) {
    t_section("series and exponential agree at the forks");
    /* sinh just below and above 0.05, tanh either side of 0.625: the two
       methods meet without a step. */
    double wf = 0;
    for (int i = -8; i <= 8; ++i) {
        quad a = Q(0.05 + i * 1e-9, 0), b = Q(0.625 + i * 1e-9, 0);
        quad sa = sinhl(a), ca = coshl(a);
        wf = max_of(wf, abs_units(qsub(sq(ca), sq(sa)), Q(1, 0), 1));
        quad tb = tanhl(b);
        wf = max_of(wf, units(tb, qdiv(sinhl(b), coshl(b))));
    }
    CHECK(wf <= 16);
    /* The series on its own: sinh of small arguments against e^x; the
       rational kernel of tanh against the exponential form. */
    double ws = 0, wt = 0;
    for (int i = 0; i < 300; ++i) {
        quad x = x_random_quad(-30, -5), e = expl(x), y = x_random_quad(-6, -1);
        quad viaexp = qmuld(qsub(e, qrdivd(1, e)), 0.5);
        /* e - 1/e cancels: its error grows as 1/x */
        ws = max_of(ws, units(sinhl(x), viaexp) * x_fabs(x.hi));
        wt = max_of(wt, units(tanhl(y), qdiv(sinhl(y), coshl(y))));
    }
    CHECK(ws <= 8);
    CHECK(wt <= 16);
}

int main(void) {
    direct();
    inverses();
    hyperbolic();
    return t_finish();
}
