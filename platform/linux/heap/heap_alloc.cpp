#include "../../kernel32.h"
#include "../faults.h"
#include "../last_error.h"
#include "block.h"

extern "C" K32_API LPVOID WINAPI HeapAlloc(HANDLE, DWORD flags, SIZE_T size) {
    if (orv::k32::fault_hit(K32_HeapAlloc)) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    void *p = orv::k32::heap::block_alloc(size, (flags & HEAP_ZERO_MEMORY) != 0);
    if (p == nullptr) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    return p;
}
