#include "handles.h"
#include "last_error.h"

extern "C" K32_API HANDLE WINAPI GetStdHandle(DWORD which) {
    switch (which) {
    case STD_INPUT_HANDLE: return orv::k32::std_handle(0);
    case STD_OUTPUT_HANDLE: return orv::k32::std_handle(1);
    case STD_ERROR_HANDLE: return orv::k32::std_handle(2);
    default: return orv::k32::fail(ERROR_INVALID_HANDLE, INVALID_HANDLE_VALUE);
    }
}
