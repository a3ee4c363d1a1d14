#include "math/double/log.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double log_words(arg64 x) __asm__("log");

double log_words(arg64 x) { return log_kernel(x); }
