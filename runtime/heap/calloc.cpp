#include "include/stdlib.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

// Unlike malloc(0), a zero count or size gives no block. The heap's
// zero-fill flag does the clearing.
extern "C" ORV_EXPORT void *calloc(size_t count, size_t size) {
    if (count == 0 || size == 0) return nullptr;
    if (0xFFFFFFFFu / count < size) return nullptr;
    return HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, count * size);
}
