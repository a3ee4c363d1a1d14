#include "math/quad/qkernel.h"

using namespace orv::qk;

namespace {

constexpr quad PI40 = pair(0x3FB41B2F769CF0E0, 0x3C4C3D09EB53C670);  // pi/40

// SINTAB[k] = sin(k pi/40), made by tools/quad_tables.c.
constexpr quad SINTAB[21] = {
    pair(0x0000000000000000, 0x0000000000000000),  //  0: 0
    pair(0x3FB415E532398E49, 0x3C3B036BA52766E2),  //  1: 0.078459095727844944
    pair(0x3FC4060B67A85375, 0x3BEDCC510FDCC9C4),  //  2: 0.15643446504023087
    pair(0x3FCDE189A594FBCC, 0xBC60881926E4A5BC),  //  3: 0.23344536385590542
    pair(0x3FD3C6EF372FE950, 0xBC7F506319FCFD19),  //  4: 0.30901699437494745
    pair(0x3FD87DE2A6AEA963, 0xBC672CEDD3D5A610),  //  5: 0.38268343236508978
    pair(0x3FDD0E2E2B44DE01, 0xBC6DCAD11F226A79),  //  6: 0.4539904997395468
    pair(0x3FE0B84EE8F52E9D, 0xBC89EA179FE7C3D6),  //  7: 0.52249856471594891
    pair(0x3FE2CF2304755A5E, 0xBC624BD9A522CA0D),  //  8: 0.58778525229247314
    pair(0x3FE4C8474600EEEE, 0xBC46C39F119DB6E3),  //  9: 0.64944804833018366
    SQRTH,                                         // 10: the stored sqrt(1/2)
    pair(0x3FE8553EE43DEF13, 0x3C60E3157760EBC4),  // 11: 0.76040596560003093
    pair(0x3FE9E3779B97F4A8, 0xBC7F506319FCFD19),  // 12: 0.80901699437494745
    pair(0x3FEB48D406A50540, 0x3C88F8BC804D7A1C),  // 13: 0.85264016435409218
    pair(0x3FEC83201D3D2C6D, 0xBC8502F18ECEA53D),  // 14: 0.8910065241883679
    pair(0x3FED906BCF328D46, 0x3C7457E610231AC2),  // 15: 0.92387953251128674
    pair(0x3FEE6F0E134454FF, 0x3C8798DDB868C354),  // 16: 0.95105651629515353
    pair(0x3FEF1DA785F71BCE, 0x3C89D1B559B63A91),  // 17: 0.97236992039767656
    pair(0x3FEF9B24942FE45C, 0xBC8974E46EFC6627),  // 18: 0.98768834059513777
    pair(0x3FEFE6BF2E2660AF, 0x3C6C7B0E73511FFF),  // 19: 0.99691733373312796
    pair(0x3FF0000000000000, 0x0000000000000000),  // 20: 1
};

// One term of the series: t = t r / k, added to or taken from the sum.
// Once the terms are below 1e-15 the rest only touches the last bits, and
// is carried in double in the sum's low part.
void term(quad &sum, quad &t, quad r, double k, bool add, bool halve) {
    if (gt(absd(t.hi), 1e-15)) {
        t = qmul(t, r);
        if (halve) {  // division by 2, 4 or 8 is exact
            t.hi /= k;
            t.lo /= k;
        } else {
            t = qdivd(t, k);
        }
        sum = add ? qadd(sum, t) : qsub(sum, t);
    } else {
        t.hi = t.hi * r.hi / k;
        sum.lo = add ? sum.lo + t.hi : sum.lo - t.hi;
    }
}

}  // namespace

// x = n1 pi + n2 pi/40 + r, |r| <= pi/80: the sine and cosine of r by
// their series, combined with the table's sine and cosine of n2 pi/40.
extern "C" quad __qtrig(quad x, int mode) {
    int n1, n2;
    quad r1, r;
    qrem_near(x, PI, &n1, &r1);
    qrem_near(r1, PI40, &n2, &r);
    // Only a reduction that failed (an argument beyond what the remainder
    // can resolve, an infinity, a NaN) leaves n2 outside the table.
    if (n2 < -20 || n2 > 20) return quad_nan();

    quad A = make(0.0, 0.0);  // cos r - 1
    quad B = make(0.0, 0.0);  // sin r - r
    quad t = r;
    double k = 2;
    bool add = false;
    while (gt(absd(t.hi), 1e-30)) {
        term(A, t, r, k, add, k == 2 || k == 4 || k == 8);
        k += 1;
        term(B, t, r, k, add, false);
        k += 1;
        add = !add;
    }
    quad C = qaddd(A, 1.0);
    quad S = qadd(B, r);

    quad Ts = n2 >= 0 ? SINTAB[n2] : negate(SINTAB[-n2]);
    quad Tc = n2 >= 0 ? SINTAB[20 - n2] : SINTAB[20 + n2];
    bool odd = (n1 & 1) != 0;
    quad P, Q;
    if (mode != 2) {
        P = qadd(qmul(C, Ts), qmul(S, Tc));
        if (odd) P = negate(P);
        if (mode == 1) return P;
    }
    Q = qsub(qmul(C, Tc), qmul(S, Ts));
    if (odd) Q = negate(Q);
    if (mode == 2) return Q;
    // At an exact zero of the cosine: the largest finite value but a few
    // units, positive on either side of the pole.
    if (eq(Q.hi, 0.0)) return make(from_bits(0x7FEFFFFFFFFFFFFBull), 0.0);
    return qdiv(P, Q);
}
