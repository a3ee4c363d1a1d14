#include "faults.h"

namespace orv::k32 {

constinit FaultState fault_state{};

void record(K32Op op, HANDLE handle, DWORD count, DWORD result) {
    if (fault_state.recorded < fault_state.capacity)
        fault_state.log[fault_state.recorded] = K32TraceEntry{op, handle, count, result};
    ++fault_state.recorded;
}

} // namespace orv::k32

using orv::k32::fault_state;

extern "C" K32_API void k32_fail_call(K32Op op, unsigned nth) {
    if (op >= 0 && op < K32_OP_COUNT) fault_state.fail_in[op] = nth;
}

extern "C" K32_API void k32_short_write(unsigned nth, unsigned bytes) {
    fault_state.short_in = nth;
    fault_state.short_bytes = bytes;
}

extern "C" K32_API void k32_clear_faults(void) {
    for (unsigned &n : fault_state.fail_in) n = 0;
    fault_state.short_in = 0;
}

extern "C" K32_API unsigned k32_call_count(K32Op op) {
    return (op >= 0 && op < K32_OP_COUNT) ? fault_state.calls[op] : 0;
}

extern "C" K32_API void k32_trace_start(K32TraceEntry *log, unsigned capacity) {
    fault_state.log = log;
    fault_state.capacity = capacity;
    fault_state.recorded = 0;
    fault_state.tracing = true;
}

extern "C" K32_API unsigned k32_trace_stop(void) {
    fault_state.tracing = false;
    return fault_state.recorded;
}
