// Fault injection and call tracing inside the stand-in. The checks sit on
// every heap and file call, so they are inline: a count and a test.
#pragma once

#include "../k32_faults.h"

namespace orv::k32 {

struct FaultState {
    unsigned fail_in[K32_OP_COUNT];   // 0: none; else calls left until failure
    unsigned calls[K32_OP_COUNT];
    unsigned short_in;                // WriteFile calls left until the short one
    DWORD short_bytes;
    K32TraceEntry *log;
    unsigned capacity;
    unsigned recorded;
    bool tracing;
};

extern FaultState fault_state __attribute__((visibility("hidden")));

// Counts down one armed counter; true when it reaches its call.
inline bool count_down(unsigned &left) {
    if (left == 0) return false;
    return --left == 0;
}

// Counts the call and answers whether it is the one chosen to fail.
inline bool fault_hit(K32Op op) {
    ++fault_state.calls[op];
    return count_down(fault_state.fail_in[op]);
}

// For WriteFile: the count to write instead of `wanted`, when a short write
// was asked for this call; otherwise `wanted`.
inline DWORD short_write_limit(DWORD wanted) {
    if (!count_down(fault_state.short_in)) return wanted;
    return fault_state.short_bytes < wanted ? fault_state.short_bytes : wanted;
}

void record(K32Op op, HANDLE handle, DWORD count, DWORD result);

inline void trace(K32Op op, HANDLE handle, DWORD count, DWORD result) {
    if (fault_state.tracing) record(op, handle, count, result);
}

} // namespace orv::k32
