#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

// e^x = 2^n e^r with r = x - n ln 2; e^(r/2) by the diagonal Pade
// approximant of degree 9, squared. No range checks: overflow and
// underflow are those of the final scaling.
extern "C" ORV_EXPORT quad expl(quad x) {
    quad q = qdiv(x, LN2);
    int n = to_int(ge(q.hi, 0.0) ? q.hi + 0.5 : q.hi - 0.5);
    quad r = qmul(qsubd(q, n), LN2);
    quad t = ldexpl(r, -1);
    quad s = qmul(t, t);
    // e^t = (D + N) / (D - N), N odd and D even in t.
    quad N = qaddd(s, 3960);
    N = qaddd(qmul(N, s), 2162160);
    N = qaddd(qmul(N, s), 302702400);
    N = qaddd(qmul(N, s), 8821612800.0);
    N = qmul(t, N);
    quad D = qaddd(qmuld(s, 90), 110880);
    D = qaddd(qmul(D, s), 30270240);
    D = qaddd(qmul(D, s), 2075673600);
    D = qaddd(qmul(D, s), 17643225600.0);
    // e^t = 1 + 2w, so e^r = 1 + 4w(w + 1): the 1 is added last, after the
    // small part has been formed at full relative accuracy.
    quad w = qdiv(N, qsub(D, N));
    quad e = qaddd(ldexpl(qmul(qaddd(w, 1), w), 2), 1);
    return ldexpl(e, n);
}
