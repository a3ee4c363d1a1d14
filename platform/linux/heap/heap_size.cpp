#include "../../kernel32.h"
#include "../last_error.h"
#include "block.h"

// The usable size, which may exceed what was asked for: every byte of it
// belongs to the caller, and HeapReAlloc keeps it whole.
extern "C" K32_API SIZE_T WINAPI HeapSize(HANDLE, DWORD, LPCVOID block) {
    if (block == nullptr) return orv::k32::fail(ERROR_INVALID_PARAMETER, static_cast<SIZE_T>(-1));
    return orv::k32::heap::block_size(block);
}
