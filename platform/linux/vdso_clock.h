// The wall clock through the kernel's vDSO, which answers without a system
// call; the clock calls fall back to the system call when it is missing.
#pragma once

#include <cstdint>

namespace orv::k32 {

// CLOCK_REALTIME as seconds and nanoseconds; false when the vDSO offers no
// clock or its call fails.
bool vdso_realtime(std::int64_t &sec, std::int64_t &nsec);

} // namespace orv::k32
