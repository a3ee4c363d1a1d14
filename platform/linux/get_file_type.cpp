#include "faults.h"
#include "handles.h"
#include "last_error.h"
#include "syscall.h"

namespace {

using namespace orv::sys;

DWORD type_of(HANDLE h) {
    int fd = orv::k32::handle_fd(h);
    if (fd < 0) return FILE_TYPE_UNKNOWN;
    Stat64 st;
    long r = fstat64(fd, &st);
    if (failed(r)) {
        orv::k32::set_error_from_errno(r);
        return FILE_TYPE_UNKNOWN;
    }
    switch (st.st_mode & s_ifmt) {
    case s_ifchr: return FILE_TYPE_CHAR;
    case s_ififo:
    case s_ifsock: return FILE_TYPE_PIPE;
    default: return FILE_TYPE_DISK;
    }
}

} // namespace

extern "C" K32_API DWORD WINAPI GetFileType(HANDLE h) {
    return orv::k32::fault_hit(K32_GetFileType)
               ? orv::k32::fail(ERROR_INVALID_HANDLE, DWORD{FILE_TYPE_UNKNOWN})
               : type_of(h);
}
