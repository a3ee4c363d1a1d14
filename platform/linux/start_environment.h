// Variables of the environment the process started with, copied out for
// the stand-in's own use.
#pragma once

namespace orv::k32 {

// The value of `name` into `out` (cut to capacity - 1 characters); false
// when the variable is not set.
bool startup_variable(const char *name, char *out, unsigned capacity);

} // namespace orv::k32
