/* The quad functions built on the primitives: rounding decided by the low
   part, exact remainders, scaling and exponents at the ends of the range,
   the exact product, the square root and the hypotenuse against exact
   arithmetic, the polynomial evaluators, and the NaN and infinity rules. */
#include "harness.h"
#include "qcheck.h"

typedef quad (*unary)(quad);
static const struct { unary f; double ih, il, oh, ol; } roundings[] = {
    /* The low part decides only when the high part is integral. */
    {floorl, 5, 1e-16, 5, 0}, {ceill, 5, 1e-16, 6, 0}, {rintl, 5, 1e-16, 5, 0},
    {floorl, 5, -1e-16, 4, 0}, {ceill, 5, -1e-16, 5, -0.0},  /* ceil(-1e-16) is -0 */
    {floorl, 1e20, 0.25, 1e20, 0}, {ceill, 1e20, 0.25, 1e20, 1},
    {floorl, -1e20, -0.25, -1e20, -1}, {ceill, -0.5, 0, -0.0, 0}, {floorl, -0.0, 0, 0, 0},
    /* A tie of hi is broken by the sign of lo alone, whatever the sign of hi. */
    {rintl, 2.5, -1e-17, 2, 0}, {rintl, 2.5, 1e-17, 3, 0}, {rintl, 2.5, 0, 3, 0},
    {rintl, -2.5, -1e-17, -4, 0}, {rintl, 1e20, 0.5, 1e20, 1}, {rintl, 1e20, -0.5, 1e20, -1},
    {qint, -7.5, 0, -7, 0}, {qint, 1e20, -0.25, 1e20, -1},
};

static void rounding(void) {
    t_section("floorl ceill rintl qint");
    for (unsigned i = 0; i < sizeof roundings / sizeof roundings[0]; ++i)
        CHECK_Q(roundings[i].f(Q(roundings[i].ih, roundings[i].il)), roundings[i].oh, roundings[i].ol);

    t_section("ifloorl iceill, NaN and infinity");
    CHECK_EQ(ifloorl(Q(-3.25, 0)), -4);
    CHECK_EQ(iceill(Q(-3.25, 0)), -3);
    CHECK_EQ(iceill(Q(5, 1e-16)), 6);
    CHECK_EQ(ifloorl(Q(1e10, 0)), -2147483647 - 1);
    /* floor of a NaN hi is +0: the pair rounds to zero first. */
    CHECK_EQ(ifloorl(QNAN), 0);
    /* floor of NaN is +0, which compares equal to it: the low part rounds. */
    CHECK_Q(floorl(Q(x_double_of(NAN_BITS), 2.5)), 2, 0);
    CHECK(ceill(Q(INF, 0)).hi == INF && floorl(Q(-INF, 0)).hi == -INF);
}

static void remainders(void) {
    t_section("fmodl exact");
    /* Random integers q b + r below 2^70 with the remainder known. */
    int bad = 0;
    for (int i = 0; i < 2000; ++i) {
        double bh = (double)(x_next() >> 44);           /* < 2^20 */
        double bl = (double)(x_next() >> 44);
        double b = bh * x_pow2(20) + bl + 1;            /* < 2^40 */
        double q = (double)(x_next() >> 34);            /* < 2^30 */
        double r = (double)(x_next() % (unsigned long long)b);
        /* q b = q bh 2^20 + q (bl + 1), both parts exact doubles */
        double big = q * bh * x_pow2(20), small = q * (bl + 1) + r;
        double hi = big + small, lo = small - (hi - big);
        int neg = i & 1;
        quad got = fmodl(neg ? Q(-hi, -lo) : Q(hi, lo), Q(b, 0));
        if (!(got.hi == (neg ? -r : r) && got.lo == 0)) ++bad;
    }
    CHECK_EQ(bad, 0);

    t_section("fmodl failures");
    const qrow rows[] = {QR(fmodl(Q(1, 0), Q(0, 0)), QNAN), QR(fmodl(Q(1, 0), QNAN), QNAN)};
    CHECK_QROWS(rows);
}

static quad frexpl_(quad x) { int e; return frexpl(x, &e); }
static int frexpl_e(quad x) { int e = 99; frexpl(x, &e); return e; }

static void scaling(void) {
    t_section("ldexpl, frexpl");
    /* A denormal half is left as it is. */
    double den = x_double_of(0x000000000000ABCDull);
    const qrow rows[] = {
        QR(ldexpl(Q(3, 1e-16), 10), Q(3072, 1e-16 * 1024)),
        QR(ldexpl(Q(1, x_pow2(-60)), -900), Q(x_pow2(-900), x_pow2(-960))),
        /* The low half falls below the normal range first and becomes +0,
           losing its sign. */
        QR(ldexpl(Q(1, -x_pow2(-60)), -1000), Q(x_pow2(-1000), 0)),
        QR(ldexpl(Q(den, 0), 100), Q(den, 0)),
        /* Overflow of a half: an infinity of its sign and ERANGE. */
        QR(ldexpl(Q(-1.5, x_pow2(-60)), 1023), Q(-1.5 * x_pow2(1023), x_pow2(963))),
        QE(ldexpl(Q(-1.5, x_pow2(-60)), 1024), Q(-INF, x_pow2(964)), ERANGE),
        QR(ldexpl(Q(INF, 0), 1), QNAN), QE(ldexpl(Q(1, 0), 2147483647), Q(INF, 0), ERANGE),
        QE(ldexpl(Q(1, 0), -2147483647 - 1), Q(0, 0), ANY_ERRNO),
        QR(frexpl_(Q(3, 1e-16)), Q(0.75, 2.5e-17)),
        QR(frexpl_(Q(-x_pow2(1000), x_pow2(940))), Q(-0.5, x_pow2(-61))),
        /* A low half too small to keep its exponent becomes +0. */
        QR(frexpl_(Q(x_pow2(-1000), -x_pow2(-1070))), Q(0.5, -x_pow2(-71))),
        QR(frexpl_(Q(x_pow2(1000), den)), Q(0.5, 0)), QR(frexpl_(Q(x_double_of(NAN_BITS), 1)), Q(0, 0)),
        QR(frexpl_(Q(-INF, 0)), Q(-0.5, 0)),
    };
    CHECK_QROWS(rows);
    CHECK_EQ(frexpl_e(Q(3, 1e-16)), 2);
    CHECK_EQ(frexpl_e(Q(-x_pow2(1000), x_pow2(940))), 1001);
    CHECK_EQ(frexpl_e(Q(x_pow2(-1000), -x_pow2(-1070))), -999);
    CHECK_EQ(frexpl_e(Q(x_double_of(NAN_BITS), 1)), 0);
    CHECK_EQ(frexpl_e(Q(-INF, 0)), 1025);
    /* A denormal hi is not normalised first: field 0 gives -1022. */
    CHECK_EQ(frexpl_e(Q(den, 0)), -1022);
    CHECK_HEX(x_bits_of(frexpl_(Q(den, 0)).hi), 0x3FE000000000ABCDull);
    /* frexpl and ldexpl undo each other on normal pairs. */
    int bad = 0;
    for (int i = 0; i < 1000; ++i) {
        int e;
        quad x = x_random_quad(-900, 900), f = frexpl(x, &e);
        if (!same(ldexpl(f, e), x) || !(f.hi >= 0.5 || f.hi <= -0.5) || !(f.hi < 1 && f.hi > -1))
            ++bad;
    }
    CHECK_EQ(bad, 0);
}

static void signs(void) {
    t_section("fabsl copysignl");
    const qrow rows[] = {
        QR(fabsl(Q(-2, 1e-17)), Q(2, -1e-17)), QR(copysignl(Q(2, -1e-17), Q(-1, 1e-20)), Q(-2, 1e-17)),
        QR(copysignl(Q(-2, 1e-17), Q(0, -1)), Q(2, 1e-17)),
        QR(copysignl(Q(-2, -1e-17), QNAN), Q(2, 1e-17)),
    };
    CHECK_QROWS(rows);
}

static void products(void) {
    t_section("__orvane_qprod_c exact");
    int bad = 0;
    for (int i = 0; i < 3000; ++i) {
        double u = x_random_double(-250, 250), v = x_random_double(-250, 250);
        /* Only large positive arguments are scaled, and restored: as if
           nothing had been scaled. */
        if (i % 10 == 0) u = x_fabs(x_random_double(960, 1000));
        if (i % 10 == 0) v = x_random_double(-600, -200);
        quad p = __orvane_qprod_c(u, v);
        exact err = x_of_q(p);
        x_add_prod(&err, u, v, 1);
        bad += !x_is_zero(&err) || !x_normalised(p);
    }
    CHECK_EQ(bad, 0);
}

static void roots(void) {
    t_section("sqrtl accuracy");
    /* s^2 - x over 2x is the relative error of s, to first order. */
    double worst = 0;
    int bad = 0;
    for (int i = 0; i < 3000; ++i) {
        quad x = x_random_quad(-200, 200);
        if (x.hi < 0) x = Q(-x.hi, -x.lo);
        quad s = sqrtl(x);
        exact ref = x_of_q(x), err = x_of_qprod(s, s);
        x_add_q(&ref, x, 0);
        x_add_q(&err, x, 1);
        worst = max_of(worst, x_units(&err, &ref));
        bad += !x_normalised(s);
    }
    CHECK(worst <= 4);
    CHECK_EQ(bad, 0);

    t_section("sqrtl edges, hypotl");
    const qrow rows[] = {
        QR(sqrtl(Q(4, 0)), Q(2, 0)), QR(sqrtl(Q(0, 1e-300)), Q(0, 0)), QR(sqrtl(Q(-0.0, 0)), Q(0, 0)),
        QR(sqrtl(Q(-1, 0)), QNAN), QR(sqrtl(QNAN), QNAN),
        QR(hypotl(Q(-2, 1e-17), Q(0, 0)), Q(2, -1e-17)), QR(hypotl(Q(0, 0), Q(-7, 0)), Q(7, -0.0)),
        QR(hypotl(Q(1e-300, 0), Q(-1e300, 0)), Q(1e300, 0)),
        QR(hypotl(Q(1e300, 0), Q(1e-300, 0)), Q(1e300, 0)),
    };
    CHECK_QROWS(rows);
    errno = 0;
    quad r = sqrtl(Q(INF, 0));
    CHECK(r.hi != r.hi && r.lo != r.lo && errno == 0);
    /* No square is formed, so the top of the range is no trouble. */
    r = hypotl(Q(3e300, 0), Q(4e300, 0));
    CHECK(x_fabs(r.hi - 5e300) <= 5e300 * x_pow2(-52));
    worst = 0;
    for (int i = 0; i < 1000; ++i) {
        quad x = x_random_quad(-20, 20), y = x_random_quad(-20, 20);
        r = hypotl(x, y);
        exact ref = x_of_qprod(x, x), err = x_of_qprod(r, r);
        x_add_qprod(&ref, y, y, 0);
        x_sub(&err, &ref);
        worst = max_of(worst, x_units(&err, &ref));
    }
    /* r^2 carries twice the relative error of r. */
    CHECK(worst <= 32);
}

static void polynomials(void) {
    t_section("_orvane_polyN _orvane_polyD");
    quad c[4] = {Q(2, 0), Q(-3, 0), Q(0.5, 0), Q(7, 1e-20)};
    /* 2 x^3 - 3 x^2 + 0.5 x + 7 at 3: 54 - 27 + 1.5 + 7; with a leading 1,
       x^4 + 2 x^3 - 3 x^2 + 0.5 x + 7 at 3: 81 + 54 - 27 + 1.5 + 7 */
    const qrow rows[] = {
        QR(_orvane_polyN(Q(9, 0), c, 0), Q(2, 0)), QR(_orvane_polyN(Q(3, 0), c, 3), Q(35.5, 1e-20)),
        QR(_orvane_polyD(Q(9, 0), c, 1), Q(11, 0)), QR(_orvane_polyD(Q(3, 0), c, 4), Q(116.5, 1e-20)),
    };
    CHECK_QROWS(rows);
    /* A polynomial in a quad argument keeps the low part: (x + 1)^2 at
       x = 1 + 2^-70 is 4 + 2^-68 + 2^-140. */
    quad d[3] = {Q(1, 0), Q(2, 0), Q(1, 0)};
    quad r = _orvane_polyN(Q(1, x_pow2(-70)), d, 2);
    CHECK(r.hi == 4 && r.lo == x_pow2(-68));
}

int main(void) {
    rounding();
    remainders();
    scaling();
    signs();
    products();
    roots();
    polynomials();
    return t_finish();
}
