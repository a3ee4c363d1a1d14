#include "include/stdlib.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

// The heap leaves the old block intact when it cannot grant the new size.
extern "C" ORV_EXPORT void *realloc(void *block, size_t size) {
    if (block == nullptr) return malloc(size);
    if (size == 0) {
        free(block);
        return nullptr;
    }
    return HeapReAlloc(GetProcessHeap(), 0, block, size);
}
