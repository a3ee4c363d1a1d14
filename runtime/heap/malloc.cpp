#include "include/stdlib.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

// Every allocation goes straight to the process heap, whose handle is asked
// for at every call.
extern "C" ORV_EXPORT void *malloc(size_t size) {
    return HeapAlloc(GetProcessHeap(), 0, size);
}
