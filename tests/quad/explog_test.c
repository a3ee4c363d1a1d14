/* The quad exponential, logarithms and power: the exact cases that fall
   out of their reductions, the domain answers (through the result alone,
   with errno left as it was), overflow and underflow through the scaling,
   the choice between the integer powers and the logarithm, and identities
   that a wrong coefficient or reduction breaks at quad accuracy. */
#include "harness.h"
#include "qcheck.h"

static void exact_cases(void) {
    t_section("exact results");
    CHECK_Q(expl(Q(0, 0)), 1, 0);
    CHECK_Q(logl(Q(1, 0)), 0, 0);
    /* ln 2^k through the two parts of ln 2, on both forms of the kernel:
       k = 2 stays narrow, 3 and above go wide. */
    quad ln2 = logl(Q(2, 0));
    double worst = 0;
    for (int k = -1000; k <= 1000; k += 37)
        worst = max_of(worst, units(logl(Q(x_pow2(k), 0)), qmuli(ln2, k)));
    worst = max_of(worst, units(logl(Q(8, 0)), qmuli(ln2, 3)));
    worst = max_of(worst, units(logl(Q(4, 0)), qmuli(ln2, 2)));
    CHECK(worst <= 4);
    /* log10 of the exact powers of ten. */
    worst = 0;
    double p = 1;
    for (int k = 1; k <= 22; ++k) {
        p *= 10;
        worst = max_of(worst, units(log10l(Q(p, 0)), Q(k, 0)));
    }
    CHECK(worst <= 8);
}

static void domains(void) {
    t_section("logl domain, expl range, powl integer powers");
    quad x = Q(1.0 + x_pow2(-20), x_pow2(-80)), xn = Q(-1, -x_pow2(-60));
    const qrow rows[] = {
        QR(logl(Q(0, 1e-300)), Q(-INF, 0)),   /* the test reads hi */
        QR(logl(Q(-0.0, 0)), Q(-INF, 0)), QR(logl(Q(-1, 0)), QNAN), QR(logl(QNAN), QNAN),
        QR(log10l(Q(-1e-300, 0)), QNAN), QR(log10l(Q(0, 0)), Q(-INF, 0)),
        QR(expl(Q(-746, 0)), Q(0, 0)),
        /* Once x / ln 2 passes 2^31 the exponent reads as -2^31. */
        QR(expl(Q(1e10, 0)), Q(0, 0)), QR(expl(Q(-1e10, 0)), Q(0, 0)),
        QR(powl(Q(3, 0), Q(0, 1e-300)), Q(1, 0)), QR(powl(QNAN, Q(0, 0)), Q(1, 0)),
        QR(powl(Q(1, 0), QNAN), Q(1, 0)), QR(powl(Q(-2, 0), Q(3, 0)), Q(-8, 0)),
        QR(powl(Q(-2, 0), Q(-3, 0)), Q(-0.125, 0)), QR(powl(Q(0, 0), Q(-3, 0)), Q(INF, 0)),
        QR(powl(x, Q(1000001, 0)), qpowi(x, 1000001)),
        /* Between 2^31 and 2^63 the 64-bit power. */
        QR(powl(x, Q(x_pow2(40) + 3, 0)), qpowll(x, (1ll << 40) + 3)),
        QR(powl(x, Q(-x_pow2(62), 0)), qpowll(x, -(1ll << 62))),
        QR(powl(Q(-2, 0), Q(0.5, 0)), QNAN), QR(powl(Q(-2, 0), Q(2.5, 0)), QNAN),
        QR(powl(Q(0, 0), Q(-0.5, 0)), Q(INF, 0)), QR(powl(Q(0, 0), Q(0.5, 0)), Q(0, 0)),
        QR(powl(Q(-0.0, 0), Q(2.5, 0)), Q(0, 0)),
        /* A huge even y drops the sign and reaches expl with a huge argument. */
        QR(powl(Q(-2, 0), Q(x_pow2(64), 0)), Q(0, 0)), QR(powl(xn, Q(x_pow2(60), 0.5)), QNAN),
        /* x = 1 exactly returns x whatever y is. */
        QR(powl(Q(1, 0), Q(1e300, 0)), Q(1, 0)),
    };
    CHECK_QROWS(rows);
    /* An infinity reads as 0.5 * 2^1025 and ends near 1024 ln 2. */
    CHECK(units(logl(Q(INF, 0)), qmuli(logl(Q(2, 0)), 1024)) <= 4);
    errno = 0;
    quad r = expl(Q(709.5, 0));
    CHECK(r.hi > 1e308 && r.hi != INF && errno == 0);
    r = expl(Q(710, 0));
    CHECK(r.hi == INF);
    CHECK_EQ(errno, ERANGE);
    errno = 0;
    /* Near the bottom the low part goes first: a bare hi, still right. */
    r = expl(Q(-700, 0));
    CHECK(r.hi > 9.85e-305 && r.hi < 9.86e-305 && r.lo == 0);

    /* 2^63 itself does not fit: through the logarithm, (1 + 2^-70)^(2^63)
       = e^(2^-7 - 2^-78 + ...), not the 2^63 - 1 of a saturated conversion,
       which is 2^-70 smaller. */
    quad want = expl(Q(x_pow2(-7), -x_pow2(-78)));
    CHECK(units(powl(Q(1, x_pow2(-70)), Q(x_pow2(63), 0)), want) <= 64);
    /* A low part that is integral drops the sign too, odd or not:
       |x| = 1 + 2^-60, y = 2^60 + 1 gives about e. */
    r = powl(xn, Q(x_pow2(60), 1));
    CHECK(r.hi > 2.718 && r.hi < 2.719);
    /* y.lo = 2^60 beyond 2^52: the sign goes without a look at parity. */
    r = powl(Q(-1, -x_pow2(-130)), Q(x_pow2(120), x_pow2(60)));
    CHECK(units(r, expl(Q(x_pow2(-10), x_pow2(-70)))) <= 64 && errno == 0);
    /* With a low part x = 1 takes the usual road. */
    r = powl(Q(1, x_pow2(-60)), Q(x_pow2(50), 0.25));
    CHECK(units(r, expl(Q(x_pow2(-10), x_pow2(-62) - x_pow2(-71)))) <= 64);
}

static void identities(void) {
    t_section("exp of a sum, log of a product");
    double we = 0, wl = 0, wr = 0;
    for (int i = 0; i < 400; ++i) {
        quad a = x_random_quad(-4, 3), b = x_random_quad(-4, 3);
        /* the reduction's error grows with the size of the argument */
        double size = 1 + x_fabs(a.hi) + x_fabs(b.hi);
        we = max_of(we, units(expl(qadd(a, b)), qmul(expl(a), expl(b))) / size);
        quad u = x_random_quad(-300, 300), v = x_random_quad(-300, 300);
        u = fabsl(u);
        v = fabsl(v);
        quad lu = logl(u), lv = logl(v);
        double scale = x_fabs(lu.hi) + x_fabs(lv.hi);
        wl = max_of(wl, abs_units(logl(qmul(u, v)), qadd(lu, lv), scale));
        /* exp undoes log, with the error of the logarithm magnified by its size */
        quad w = fabsl(x_random_quad(-30, 30));
        wr = max_of(wr, units(expl(logl(w)), w) / (1 + x_fabs(logl(w).hi)));
    }
    CHECK(we <= 4);
    CHECK(wl <= 8);
    CHECK(wr <= 8);

    t_section("powl against the integer powers");
    double wp = 0;
    for (int i = 0; i < 200; ++i) {
        quad x = fabsl(x_random_quad(-3, 3));
        int n = (int)(x_next() % 60) - 30;
        n += n >= 0;  /* y.hi = 0 would answer 1 */
        /* the same power with a fraction of 2^-60 goes through logarithms */
        quad y = Q(n, x_pow2(-60));
        quad viaexp = powl(x, y);
        quad direct = qmul(qpowi(x, n), expl(qmul(Q(x_pow2(-60), 0), logl(x))));
        wp = max_of(wp, units(viaexp, direct) / (1 + x_fabs(n * logl(x).hi)));
    }
    CHECK(wp <= 16);
}

int main(void) {
    exact_cases();
    domains();
    identities();
    return t_finish();
}
