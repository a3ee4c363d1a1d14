#include "include/stdlib.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT void free(void *block) {
    if (block != nullptr) HeapFree(GetProcessHeap(), 0, block);
}
