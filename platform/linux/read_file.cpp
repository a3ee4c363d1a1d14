#include "faults.h"
#include "handles.h"
#include "last_error.h"
#include "syscall.h"

namespace {

using namespace orv::sys;

// One read, as the platform does it: a disk file gives what is there up to
// `count`, a pipe or terminal what has arrived; end of input is success
// with nothing read.
BOOL read(HANDLE h, void *buffer, DWORD count, DWORD &done) {
    int fd = orv::k32::handle_fd(h);
    if (fd < 0) return 0;
    long r;
    do {
        r = call3(nr_read, fd, arg(buffer), static_cast<long>(count));
    } while (r == -e_intr);
    if (failed(r)) {
        orv::k32::set_error_from_errno(r);
        return 0;
    }
    done = static_cast<DWORD>(r);
    return 1;
}

} // namespace

extern "C" K32_API BOOL WINAPI ReadFile(HANDLE h, LPVOID buffer, DWORD count,
                                        LPDWORD done, LPVOID) {
    DWORD n = 0;
    BOOL ok = orv::k32::fault_hit(K32_ReadFile)
                  ? orv::k32::fail(ERROR_READ_FAULT, 0)
                  : read(h, buffer, count, n);
    if (done != nullptr) *done = n;
    orv::k32::trace(K32_ReadFile, h, count, n);
    return ok;
}
