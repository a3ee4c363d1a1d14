#include "faults.h"
#include "handles.h"
#include "last_error.h"
#include "syscall.h"

namespace {

BOOL close(HANDLE h) {
    orv::k32::HandleEntry *e = orv::k32::handle_entry(h);
    if (e == nullptr) return orv::k32::fail(ERROR_INVALID_HANDLE, 0);
    if (e->kind == orv::k32::Kind::file) orv::sys::call1(orv::sys::nr_close, e->fd);
    orv::k32::handle_release(h);
    return 1;
}

} // namespace

extern "C" K32_API BOOL WINAPI CloseHandle(HANDLE h) {
    BOOL ok = orv::k32::fault_hit(K32_CloseHandle)
                  ? orv::k32::fail(ERROR_INVALID_HANDLE, 0)
                  : close(h);
    orv::k32::trace(K32_CloseHandle, h, 0, static_cast<DWORD>(ok));
    return ok;
}
