#include "include/signal.h"
#include "include/stdlib.h"
#include "runtime/export.h"

// Nothing of its own: raise decides whether the process ends.
extern "C" ORV_EXPORT void abort(void) { raise(SIGABRT); }
