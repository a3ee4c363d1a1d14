#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

namespace {

// Beyond 512 ln 2 the result is 1 to far more than quad accuracy.
constexpr quad TANHMAX = pair(0x40762E42FEFA39EF, 0x3D0A9C9E3B398036);

// tanh x = x + x z R(z), z = x^2, |x| < 0.625: R = TN(z) / TD(z), TD monic.
constexpr quad TN[] = {
    pair(0xBEDB496F54584492, 0xBB7482C928F97676),  // -6.505693197948351e-06
    pair(0xBFEF5F8168559A35, 0xBC7CA6CC3E37D9C0),  // -0.980408386018843
    pair(0xC07F9875D11FF0F2, 0x3D15393FBD3AEE58),  // -505.52876389004734
    pair(0xC0F1D72C57FC2FC4, 0x3D911950E23D5158),  // -73074.77148073824
    pair(0xC14AF1AB4B0808D0, 0xBDE1052333DEBEEC),  // -3531606.586182691
    pair(0xC185B3E15BB10114, 0x3E2928816C5EEBCE),  // -45513771.46142784
};
constexpr quad TD[] = {
    pair(0x4080ABE4797D1108, 0xBD1D3C70E5C91EA4),  // 533.4865598460028
    pair(0x40F3AC8C18E14911, 0xBD93129CE1CEF5E8),  // 80584.75607422391
    pair(0x415002B46185E041, 0x3DF22C0B6DF3DA30),  // 4197073.523796142
    pair(0x418F185E8C191C8B, 0x3E28338E7E14A8A0),  // 65211345.51226147
    pair(0x41A046E904C4C0CF, 0xBE42DE61114730D9),  // 136541314.3842835
};

}  // namespace

extern "C" ORV_EXPORT quad tanhl(quad x) {
    quad a = fabsl(x);
    if (gt(qsub(a, TANHMAX).hi, 0.0)) return make(lt(x.hi, 0.0) ? -1.0 : 1.0, 0.0);
    if (ge(a.hi, 0.625)) {
        // 1 - 2/(e^2a + 1)
        quad e = expl(qmuld(a, 2.0));
        quad r = qrsubd(1.0, qrdivd(2.0, qaddd(e, 1.0)));
        return lt(x.hi, 0.0) ? negate(r) : r;
    }
    quad z = qmul(x, x);
    quad R = qdiv(poly_n(z, TN, 5), poly_d(z, TD, 5));
    return qadd(x, qmul(x, qmul(z, R)));
}
