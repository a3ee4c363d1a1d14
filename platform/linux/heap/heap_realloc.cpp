#include "../../kernel32.h"
#include "../faults.h"
#include "../last_error.h"
#include "block.h"

extern "C" K32_API LPVOID WINAPI HeapReAlloc(HANDLE, DWORD flags, LPVOID block, SIZE_T size) {
    if (orv::k32::fault_hit(K32_HeapReAlloc)) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    if (block == nullptr) return orv::k32::fail(ERROR_INVALID_PARAMETER, LPVOID{});
    void *p = orv::k32::heap::block_resize(block, size, (flags & HEAP_REALLOC_IN_PLACE_ONLY) != 0,
                                           (flags & HEAP_ZERO_MEMORY) != 0);
    if (p == nullptr) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    return p;
}
