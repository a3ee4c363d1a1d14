#include "last_error.h"
#include "syscall.h"

namespace {
// The stand-in creates no threads, so one value serves the process.
constinit DWORD last_error = 0;
} // namespace

extern "C" K32_API DWORD WINAPI GetLastError(void) { return last_error; }
extern "C" K32_API void WINAPI SetLastError(DWORD code) { last_error = code; }

namespace orv::k32 {

namespace {
DWORD code_for(long e) {
    using namespace orv::sys;
    switch (e) {
    case e_noent: return ERROR_FILE_NOT_FOUND;
    case e_notdir:
    case e_loop: return ERROR_PATH_NOT_FOUND;
    case e_perm:
    case e_acces:
    case e_isdir:
    case e_rofs:
    case e_xdev: return ERROR_ACCESS_DENIED;
    case e_exist: return ERROR_FILE_EXISTS;
    case e_mfile:
    case e_nfile: return ERROR_TOO_MANY_OPEN_FILES;
    case e_badf: return ERROR_INVALID_HANDLE;
    case e_nomem: return ERROR_NOT_ENOUGH_MEMORY;
    case e_nospc:
    case e_fbig: return ERROR_DISK_FULL;
    case e_pipe: return ERROR_BROKEN_PIPE;
    case e_nametoolong: return ERROR_FILENAME_EXCED_RANGE;
    case e_notempty: return ERROR_DIR_NOT_EMPTY;
    case e_spipe: return ERROR_INVALID_FUNCTION;
    case e_inval:
    case e_overflow: return ERROR_INVALID_PARAMETER;
    default: return ERROR_INVALID_FUNCTION;
    }
}
} // namespace

void set_error_from_errno(long negated_errno) {
    SetLastError(code_for(-negated_errno));
}

} // namespace orv::k32
