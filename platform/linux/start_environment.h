// Variables of the environment the process started with, read from
// /proc/self/environ: the stand-in has no other view of it.
#pragma once

namespace orv::k32 {

// The value of `name` into `out` (cut to capacity - 1 characters); false
// when the variable is not set.
bool startup_variable(const char *name, char *out, unsigned capacity);

} // namespace orv::k32
