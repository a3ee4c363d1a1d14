#include "faults.h"
#include "last_error.h"
#include "native_path.h"
#include "syscall.h"

namespace {

BOOL delete_file(const char *name) {
    orv::k32::NativePath path(name);
    if (!path.ok()) return 0;
    long r = orv::sys::call1(orv::sys::nr_unlink, orv::sys::arg(path.c_str()));
    if (orv::sys::failed(r)) {
        orv::k32::set_error_from_errno(r);
        return 0;
    }
    return 1;
}

} // namespace

extern "C" K32_API BOOL WINAPI DeleteFileA(LPCSTR name) {
    return orv::k32::fault_hit(K32_DeleteFileA)
               ? orv::k32::fail(ERROR_ACCESS_DENIED, 0)
               : delete_file(name);
}
