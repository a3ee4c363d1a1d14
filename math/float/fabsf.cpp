#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float fabsf(float x) { return from_fbits(fbits(x) & 0x7FFFFFFFu); }
