#include "math/double/asinacos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double acos_words(arg64 x) __asm__("acos");

double acos_words(arg64 x) { return asinacos_kernel(value(x), 1); }
