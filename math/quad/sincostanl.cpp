#include "math/quad/qkernel.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT quad sinl(quad x) { return __qtrig(x, 1); }
extern "C" ORV_EXPORT quad cosl(quad x) { return __qtrig(x, 2); }
extern "C" ORV_EXPORT quad tanl(quad x) { return __qtrig(x, 3); }
