#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

namespace {

constexpr quad T3P8 = pair(0x4003504F333F9DE6, 0x3CA21165F626CDD4);  // tan(3 pi/8)
constexpr quad TP8 = pair(0x3FDA827999FCEF32, 0x3C708B2FB1366EA5);   // tan(pi/8)

// atan x = x + x z R(z), z = x^2, |x| <= tan(pi/8): R = AN(z) / AD(z),
// AD monic.
constexpr quad AN[] = {
    pair(0xBF45BE85838AA26F, 0xBBDF8082D8ED7238),  // -0.0006635810778635296
    pair(0xBFEC0F17AE68A185, 0xBC74D15F92F8AC30),  // -0.8768423468036849
    pair(0xC0397B0DC1F4D103, 0xBC9528B9C5138980),  // -25.480678674955026
    pair(0xC06F38D4E47779A2, 0x3CEE629473A32620),  // -249.77598784766184
    pair(0xC091F0A8586C6427, 0x3D388D386F96FB10),  // -1148.1643998085144
    pair(0xC0A5D08BA6501455, 0xBCED0F5157516700),  // -2792.272753241045
    pair(0xC0ACE087656CFBE1, 0xBD4BC62FCFD6D2E6),  // -3696.264445691821
    pair(0xC0A3A5A8D629FC73, 0x3D4A64867DCD01A6),  // -2514.829758941714
    pair(0xC085807A6C98431F, 0x3D2220925AA344CC),  // -688.0597774405941
};
constexpr quad AD[] = {
    pair(0x4041D4C974B22BC1, 0xBCD9B35AC4FF6456),  // 35.66239794444801
    pair(0x407AED5B7E20C37A, 0x3D16C61B042DA818),  // 430.8348370818927
    pair(0x40A37D5C6FDD0CD8, 0x3D4C47AFC808A586),  // 2494.6805409506014
    pair(0x40BEF892855649E0, 0x3D46AC99CF727776),  // 7928.572347062145
    pair(0x40CC7C8D1C45B09E, 0xBD691BF13DABC044),  // 14585.102425299872
    pair(0x40CE38F8BA0A8971, 0x3D6D35B836BA0CDC),  // 15473.943177525625
    pair(0x40C1277F99A3D1B0, 0xBD5A1151111841CA),  // 8782.99687621821
    pair(0x40A0205BD1723257, 0x3D133C91E02C6354),  // 2064.179332321782
};

}  // namespace

// Arguments above tan(3 pi/8) go to pi/2 - atan(1/x), those above
// tan(pi/8) to pi/4 + atan((x - 1)/(x + 1)).
extern "C" ORV_EXPORT quad atanl(quad x) {
    bool negative = gt(0.0, x.hi);
    if (negative) x = negate(x);
    quad y = make(0.0, 0.0);
    if (gt(qsub(x, T3P8).hi, 0.0)) {
        x = qrdivd(-1.0, x);
        y = PIO2;
    } else if (gt(qsub(x, TP8).hi, 0.0)) {
        x = qdiv(qsubd(x, 1.0), qaddd(x, 1.0));
        y = PIO4;
    }
    quad z = qmul(x, x);
    quad R = qdiv(poly_n(z, AN, 8), poly_d(z, AD, 8));
    quad r = qadd(y, qadd(qmul(qmul(R, z), x), x));
    return negative ? negate(r) : r;
}
