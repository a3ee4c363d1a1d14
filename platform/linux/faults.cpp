#include "faults.h"

namespace orv::k32 {
namespace {

struct Pending {
    unsigned fail_in[K32_OP_COUNT];   // 0: none; else calls left until failure
    unsigned calls[K32_OP_COUNT];
    unsigned short_in;                // WriteFile calls left until the short one
    DWORD short_bytes;
    K32TraceEntry *log;
    unsigned capacity;
    unsigned recorded;
    bool tracing;
};

constinit Pending state{};

// Counts down one armed counter; true when it reaches its call.
bool count_down(unsigned &left) {
    if (left == 0) return false;
    return --left == 0;
}

} // namespace

bool fault_hit(K32Op op) {
    ++state.calls[op];
    return count_down(state.fail_in[op]);
}

DWORD short_write_limit(DWORD wanted) {
    if (!count_down(state.short_in)) return wanted;
    return state.short_bytes < wanted ? state.short_bytes : wanted;
}

void trace(K32Op op, HANDLE handle, DWORD count, DWORD result) {
    if (!state.tracing) return;
    if (state.recorded < state.capacity)
        state.log[state.recorded] = K32TraceEntry{op, handle, count, result};
    ++state.recorded;
}

} // namespace orv::k32

using orv::k32::state;

extern "C" K32_API void k32_fail_call(K32Op op, unsigned nth) {
    if (op >= 0 && op < K32_OP_COUNT) state.fail_in[op] = nth;
}

extern "C" K32_API void k32_short_write(unsigned nth, unsigned bytes) {
    state.short_in = nth;
    state.short_bytes = bytes;
}

extern "C" K32_API void k32_clear_faults(void) {
    for (unsigned &n : state.fail_in) n = 0;
    state.short_in = 0;
}

extern "C" K32_API unsigned k32_call_count(K32Op op) {
    return (op >= 0 && op < K32_OP_COUNT) ? state.calls[op] : 0;
}

extern "C" K32_API void k32_trace_start(K32TraceEntry *log, unsigned capacity) {
    state.log = log;
    state.capacity = capacity;
    state.recorded = 0;
    state.tracing = true;
}

extern "C" K32_API unsigned k32_trace_stop(void) {
    state.tracing = false;
    return state.recorded;
}
