// Fault injection and call tracing inside the stand-in.
#pragma once

#include "../k32_faults.h"

namespace orv::k32 {

// Counts the call and answers whether it is the one chosen to fail.
bool fault_hit(K32Op op);

// For WriteFile: the count to write instead of `wanted`, when a short write
// was asked for this call; otherwise `wanted`.
DWORD short_write_limit(DWORD wanted);

void trace(K32Op op, HANDLE handle, DWORD count, DWORD result);

} // namespace orv::k32
