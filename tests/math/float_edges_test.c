/* The float family at its edges, where it differs from the double one. */
#include <float.h>

#include "mathcheck.h"

#define PI_F 0x40490FDBU      /* 3.1415927f */
#define HALF_PI_F 0x3FC90FDBU /* 1.5707964f */
#define NAN_ __FLOAT_NAN
#define INF_ F(FPINF)
#define NINF_ F(FNINF)

static void rounding_and_exponentials(void) {
    float ip;
    t_section("aint, floorf, ceilf, modff, fmodf, fabsf");
    const row rows[] = {
        RF(__aint(-0.5f), 0), RF(__aint(-2.75f), BF(-2.0f)), RF(__aint(8388607.5f), BF(8388607.0f)),
        RF(__aint(NINF_), FNINF), RF(floorf(-0.0f), 0), RF(ceilf(-0.0f), 0),
        RF(ceilf(-0.5f), 0x80000000U), RF(floorf(-0.3f), BF(-1.0f)), RF(ceilf(2.25f), BF(3.0f)),
        RF(ceilf(NAN_), 0), RF(floorf(NAN_), 0), RF(modff(-3.25f, &ip), BF(-0.25f)),
        RF(fmodf(5.5f, 2.0f), BF(1.5f)), EF(fmodf(1.0f, 0.0f), FNAN, EDOM),
        EF(fmodf(1.0f, NAN_), FNAN, EDOM), RF(fabsf(-0.0f), 0),
    };
    CHECK_ROWS(rows);
    CHECK_HEX(BF(ip), BF(-3.0f));

    t_section("expf, logf, sqrtf");
    /* sqrtf works on [0.5, 1) with the exponent apart: the even and odd
       exponent branches */
    const row exps[] = {
        EF(expf(88.03f), FPINF, ERANGE), RF(expf(-88.0f), 0), EF(expf(NAN_), FPINF, ERANGE),
        RF(expf(0.0f), BF(1.0f)), RF(logf(1.0f), 0), EF(logf(-0.0f), FNINF, ERANGE),
        EF(logf(-1.0f), FNAN, EDOM), EF(logf(NAN_), FNAN, EDOM), RF(logf(INF_), FPINF),
        EF(log10f(0.0f), FNINF, ERANGE), RF(log10f(100.0f), BF(2.0f)),
        RF(sqrtf(2.0f), BF(1.4142135f)), RF(sqrtf(8.0f), BF(2.828427f)),
        RF(sqrtf(0.5f), BF(0.70710677f)), RF(sqrtf(4.0f), BF(2.0f)),
        RF(sqrtf(INF_), FPINF),   /* unlike sqrt */
        RF(sqrtf(-0.0f), 0x80000000U), RF(sqrtf(F(0x7FC01234U)), 0x7FC01234U),
        EF(sqrtf(-1.0f), FNAN, EDOM), EF(sqrtf(NINF_), FNAN, EDOM),
    };
    CHECK_ROWS(exps);
    CHECK(expf(88.0f) < INF_);
    /* 2^-149 reads as (1 + 2^-23) 2^-127: about -127 ln 2 */
    CHECK(within(logf(F(1)), -88.0297f, -88.0296f));
}

static void trigonometric(void) {
    t_section("sinf, cosf, tanf, asinf, acosf, atanf, atan2f");
    const row rows[] = {
        RF(sinf(8192.5f), 0), RF(cosf(8191.0f), 0),   /* 8191 + pi/2 is above the limit */
        RF(cosf(0.0f), BF(1.0f)), RF(sinf(-0.0f), 0), RF(sinf(NAN_), 0),
        RF(__sinfcosf_c(0.5f, 0), BF(sinf(0.5f))), RF(__sinfcosf_c(0.5f, 3), BF(cosf(0.5f))),
        RF(tanf(12868.0f), 0), RF(tanf(NAN_), 0), RF(asinf(1.0f), HALF_PI_F), RF(acosf(1.0f), 0),
        RF(acosf(-1.0f), PI_F), EF(asinf(2.0f), FNAN, EDOM), EF(acosf(NINF_), FNAN, EDOM),
        RF(__asinfacosf(0.25f, 1), BF(acosf(0.25f))), RF(atanf(INF_), HALF_PI_F),
        RF(atanf(NINF_), HALF_PI_F | 0x80000000U), RF(atan2f(-0.0f, -1.0f), PI_F | 0x80000000U),
        RF(atan2f(0.0f, -1.0f), PI_F), RF(atan2f(1.0f, NAN_), HALF_PI_F),
        EF(atan2f(-0.0f, 0.0f), 0, EDOM), RF(atan2f(1.0f, 1.0f), BF(0.7853982f)),
    };
    CHECK_ROWS(rows);
    CHECK(sinf(8192.0f) != 0 && cosf(8190.0f) != 0 && tanf(12867.0f) != 0);

    t_section("sinhf, coshf, tanhf");
    const row hyp[] = {
        EF(sinhf(NAN_), FPINF, ERANGE), EF(sinhf(89.0f), FPINF, ERANGE),
        EF(sinhf(-89.0f), FNINF, ERANGE), EF(coshf(NINF_), FPINF, ERANGE),
        RF(sinhf(1e-4f), BF(1e-4f)), RF(tanhf(NAN_), BF(-1.0f)), RF(tanhf(9.5f), BF(1.0f)),
        RF(tanhf(-0.0f), 0),
    };
    CHECK_ROWS(hyp);
}

static void powers(void) {
    t_section("powf");
    const row rows[] = {
        RF(powf(-8.0f, 3.0f), BF(-512.0f)), RF(powf(2.0f, 10.0f), BF(1024.0f)),
        RF(powf(2.0f, -1.0f), BF(0.5f)), RF(powf(-2.0f, 2147483648.0f), 0), /* |x|, then +0 */
        RF(powf(2.0f, 0.5f), BF(1.4142135f)), RF(powf(10.0f, 39.5f), FPINF),
        RF(powf(10.0f, -45.5f), 0), RF(powf(NAN_, 0.0f), BF(1.0f)), RF(powf(3.0f, NAN_), BF(1.0f)),
        RF(powf(0.0f, 0.5f), 0), EF(powf(0.0f, -0.5f), FPINF, EDOM), RF(powf(0.0f, -1.0f), FPINF),
        EF(powf(-8.0f, 0.5f), FNAN, EDOM),
        RF(powf(-2.0f, 3.5e7f), FPINF),   /* integral and even: no EDOM */
    };
    CHECK_ROWS(rows);
    CHECK(powf(10.0f, 38.5f) < INF_);

    /* The shorter roads of powf, sqrtf, expf and logf against the steps, at
       the edges where they hand over. */
    t_section("powf, sqrtf, expf, logf edges");
    const row edges[] = {
        RF(powf(F(0x3FB504F3), 3.5f), 0x405744FC),   /* g = A1[8] */
        RF(powf(F(0x3FB504F2), 3.5f), 0x405744F8), RF(powf(1.0001f, 32767.5f), 0x41D3FCB1),
        RF(powf(1.0001f, 49152.0f), 0x4308486B),
        RF(powf(F(3), 0.25f), 0x2F9837F1),           /* denormal x */
        RF(powf(2.0f, 127.99f), FPINF), RF(powf(2.0f, -125.99f), 0),
        RF(sqrtf(F(3)), 0x1FB504F5),                 /* denormal, e = -126 */
        RF(sqrtf(FLT_MAX), 0x5F800000), RF(sqrtf(FLT_MIN), 0x20000000), RF(sqrtf(3.0f), 0x3FDDB3D7),
        /* the result's exponent field reaches 0 near -86.6 */
        RF(expf(-86.0f), 0x01739362), RF(expf(-86.2f), 0x01476C6D), RF(expf(-86.3f), 0x013471DD),
        RF(expf(-86.5f), 0x0113BC74), RF(expf(-87.0f), 0x00B33687),
        RF(expf(-87.4f), 0x00704280),   /* r below 0.5: the field is 0 already */
        RF(expf(-87.5f), 0x00596577), RF(expf(88.0f), 0x7EF882B7),
        RF(logf(F(0x3EE48000)), 0xBF4E89AF),         /* f = 2^-8 stays */
        RF(logf(F(0x3FDD8000)), 0x3F0C6371), RF(logf(F(0x3FC08000)), 0x3ED0EE03),
        RF(logf(F(0x3FC08001)), 0x3ED0EE06), RF(logf(F(3)), 0xC2B00F34),
        RF(logf(FLT_MAX), 0x42B17218),
    };
    CHECK_ROWS(edges);
}

int main(void) {
    rounding_and_exponentials();
    trigonometric();
    powers();
    return t_finish();
}
