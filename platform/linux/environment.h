// The process's environment as the loader handed it over.
#pragma once

namespace orv::k32 {

// The block of NAME=VALUE strings, null-ended, for a child's execve.
char **environment_block();

// The value of `name` (compared without regard to ASCII case, as the
// platform's names are), or null.
const char *environment_value(const char *name);

} // namespace orv::k32
