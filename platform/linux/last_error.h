// The calling thread's last-error value, and the mapping of Linux errno
// values onto the platform's error codes.
#pragma once

#include "../kernel32.h"

namespace orv::k32 {

// Sets the last error from a negated Linux errno value.
void set_error_from_errno(long negated_errno);

// Convenience for failure paths: sets the code and answers `result`.
template <class T> inline T fail(DWORD code, T result) {
    SetLastError(code);
    return result;
}

} // namespace orv::k32
