#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

namespace {

// ln 2 in two parts; the 15 bits of C1's high half make its product with
// any exponent exact.
constexpr quad C1 = pair(0x3FE62E4000000000, 0xB950000000000000);
constexpr quad C2 = pair(0x3EB7F7D1CF79ABCA, 0xBB3C4C67FC0D0968);

// Far from 1: ln y = w + w s R(s), w = 2(y - 1)/(y + 1), s = w^2,
// |w| <= 0.3432, R = LA(s) / LB(s) with LB monic.
constexpr quad LA[] = {
    pair(0xBFEC40A1C874F5A7, 0x3C8EE18AAC6CC4A6),  // -0.8828896441624935
    pair(0x4054247B533971E5, 0x3CF96D58468C37DA),  // 80.57002716646055
    pair(0xC09FA1350A9210EB, 0xBD3A43B77515F810),  // -2024.301798136027
    pair(0x40D4020CBB3C4EDF, 0xBD77B73CAC8F56FA),  // 20488.198927952788
    pair(0xC0F5EAC94780E234, 0x3D9DC68B145FE4F3),  // -89772.57995689736
    pair(0x41014FAB5E2E8C17, 0xBDAFF5641336BD2E),  // 141813.4209872193
};
constexpr quad LB[] = {
    pair(0xC05DA8B34108B632, 0xBCF5D735F2B754B0),  // -118.6359407982898
    pair(0x40AF3D0DB24DF089, 0x3CF15FA8F4E90600),  // 3998.5267509800074
    pair(0xC0EC11AD77CC51CF, 0x3D83600FBF351368),  // -57485.42087379435
    pair(0x41186C6F13DF72EB, 0xBD913A4295ADEE48),  // 400155.7694070774
    pair(0xC13455371E04BC5F, 0x3DB616E1B4CFDFF4),  // -1332535.117259763
    pair(0x4139F7810D45D222, 0xBDCFE02C39A43740),  // 1701761.0518466313
};

// Near 1: ln(1 + u) = u - u^2/2 + u^3 R(u), u in [-0.2929, 0.4142],
// R = LP(u) / LQ(u) with LQ monic.
constexpr quad LP[] = {
    pair(0x3EB9D04A0D6ED829, 0x3B550D2488021580),  // 1.5386122435962543e-06
    pair(0x3FDFFD7E21347CC3, 0xBC5634A16E573D18),  // 0.49984696619680963
    pair(0x40373615178FE966, 0x3CDD310FA98A964E),  // 23.2112593389842
    pair(0x4079B73A8639C290, 0xBD16B1A3A8A80BEB),  // 411.4517881637812
    pair(0x40ADE1E79B3AE126, 0xBD23A39F2C748054),  // 3824.9523561858978
    pair(0x40D4CA24F0550CF6, 0x3D6B4F8656D32778),  // 21288.57716871515
    pair(0x40F28A791822D401, 0x3D75104B644C1F48),  // 75943.5683925897
    pair(0x4105F196A49F1719, 0x3DA7B10D220486BD),  // 179762.83038156552
    pair(0x41116CABA9F2757A, 0x3DA2425B8B8D5A7C),  // 285482.9159639698
    pair(0x41125A72EB05BA7E, 0x3DB26CAFE191AA26),  // 300700.72951403994
    pair(0x410897CA319418D1, 0x3DAEB171CDF46E26),  // 201465.27420825374
    pair(0x40F2F8F8BFBF9A1A, 0xBD2D4DB44B125800),  // 77711.54681358524
    pair(0x40C9A7DCAD5D0EFE, 0x3D6D02E15135E420),  // 13135.72404063446
};
constexpr quad LQ[] = {
    pair(0x4048322FBDA4D3F5, 0xBCE77BB0954DCA00),  // 48.3920819334816
    pair(0x408C73F14777E56A, 0xBD004D01D38870A0),  // 910.4928120962988
    pair(0x40C1DD933EA5565F, 0x3D51D4C6A1A69D38),  // 9147.150349299596
    pair(0x40EB5F4D77AED025, 0xBD82EFE99712242D),  // 56058.42085972455
    pair(0x410B71BB67F5EFF3, 0xBDAA7772CADC0042),  // 224823.42576205693
    pair(0x4122B6C5DDAC3B8E, 0x3DC9CF1C4EF3C939),  // 613218.9329546557
    pair(0x4131AB83FA3B03B3, 0x3DD3634DBA378DF4),  // 1158019.977462989
    pair(0x41371D8273F762A0, 0x3DD84CE2EC3A56CC),  // 1514882.4529935494
    pair(0x41348FBE89D38E2E, 0x3DCBCDAEC73838EE),  // 1347518.538384329
    pair(0x4127BC5211688C14, 0x3DA2EAFAFEA23320),  // 777769.0340007567
    pair(0x4110088814003EA1, 0x3DB8DE3F49452E80),  // 262690.01953218324
    pair(0x40E33DE58205CB3F, 0xBD747BAE062F29D0),  // 39407.172121903386
};

// y in [0.5, 1) with exponent e, for |e| > 2: the wide interval of w keeps
// the rational kernel short when the exponent's part dominates anyway.
quad wide(quad y, int e, bool below) {
    quad z, d;
    if (below) {  // work with 2y in [sqrt(1/2), 1)
        --e;
        z = qsubd(y, 0.5);
        d = qaddd(qmuld(z, 0.5), 0.5);
    } else {
        z = qsubd(qsubd(y, 0.5), 0.5);
        d = qaddd(qmuld(y, 0.5), 0.5);
    }
    quad w = qdiv(z, d);
    quad s = qmul(w, w);
    quad R = qdiv(poly_n(s, LA, 5), poly_d(s, LB, 6));
    quad r = qadd(qmul(w, qmul(s, R)), qmuli(C2, e));
    return qadd(qadd(r, w), qmuli(C1, e));
}

// Near 1 the result is small and the series in u keeps its relative
// accuracy.
quad narrow(quad y, int e, bool below) {
    quad u;
    if (below) {
        --e;
        u = qsubd(ldexpl(y, 1), 1.0);
    } else {
        u = qsubd(y, 1.0);
    }
    quad v = qmul(u, u);
    quad R = qdiv(poly_n(u, LP, 12), poly_d(u, LQ, 12));
    quad r = qadd(qmul(u, qmul(v, R)), qmuli(C2, e));
    r = qadd(qsub(r, ldexpl(v, -1)), u);
    return qadd(r, qmuli(C1, e));
}

}  // namespace

extern "C" ORV_EXPORT quad logl(quad x) {
    if (!gt(x.hi, 0.0)) {
        if (lt(x.hi, 0.0)) return quad_nan();  // a NaN counts as below 0
        return make(-kInf, 0.0);
    }
    int e;
    quad y = frexpl(x, &e);
    bool below = lt(qsub(y, SQRTH).hi, 0.0);
    if (e > 2 || e < -2) return wide(y, e, below);
    return narrow(y, e, below);
}
