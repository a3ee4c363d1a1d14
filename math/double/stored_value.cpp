#include "math/fp.h"

namespace orv::m {

double stored_value(u32 hi, u32 lo) { return from_words(hi, lo); }

}  // namespace orv::m
