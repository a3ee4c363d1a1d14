#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

using namespace orv::qk;

namespace {

bool is_infinity(double d) { return (bits(d) & 0x7FFFFFFFFFFFFFFFull) == 0x7FF0000000000000ull; }

quad half(quad x) { return qmuld(x, 0.5); }

// |p| sqrt((q/p)^2 + 1), which is |z| when p and q are its parts.
quad modulus(quad p, quad q) {
    quad r = qdiv(q, p);
    return qmul(fabsl(p), sqrtl(qaddd(qmul(r, r), 1.0)));
}

}  // namespace

// w = sqrt((|z| + |a|)/2), the other part |b|/(2w). Which form of |z| is
// taken depends on a - b with their signs, not on their magnitudes; a part
// that is zero takes the root of the other's square, or that part itself
// when the square overflows.
extern "C" ORV_EXPORT qcomplex CSQRTL(qcomplex z) {
    const quad a = z.re, b = z.im;
    quad w;
    if (gt(qsub(a, b).hi, 0.0)) {
        if (eq(a.hi, 0.0)) {
            quad s = qmul(b, b);
            w = is_infinity(s.hi) ? sqrtl(half(fabsl(b))) : sqrtl(half(sqrtl(s)));
        } else {
            w = sqrtl(qadd(half(modulus(a, b)), half(fabsl(a))));
        }
    } else {
        if (eq(b.hi, 0.0)) {
            quad s = qmul(a, a);
            quad m = is_infinity(s.hi) ? half(fabsl(a)) : half(sqrtl(s));
            w = sqrtl(qadd(m, half(fabsl(a))));
        } else {
            w = sqrtl(qadd(half(modulus(b, a)), half(fabsl(a))));
        }
    }
    if (eq(w.hi, 0.0)) return cx(w, make(0.0, 0.0));
    quad d = qdiv(fabsl(b), qmuld(w, 2.0));
    qcomplex r = ge(a.hi, 0.0) ? cx(w, d) : cx(d, w);
    if (lt(b.hi, 0.0)) r.im = negate(r.im);
    return r;
}
