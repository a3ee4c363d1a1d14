#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT qcomplex CEXPL(qcomplex z) { return polar(expl(z.re), z.im); }
