#include "../../kernel32.h"
#include "../last_error.h"
#include "block.h"

extern "C" K32_API BOOL WINAPI HeapFree(HANDLE, DWORD, LPVOID block) {
    if (block == nullptr) return 1;
    if (!orv::k32::heap::block_free(block)) return orv::k32::fail(ERROR_INVALID_PARAMETER, BOOL{0});
    return 1;
}
