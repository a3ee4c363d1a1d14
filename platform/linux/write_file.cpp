#include "faults.h"
#include "handles.h"
#include "last_error.h"
#include "syscall.h"

namespace {

using namespace orv::sys;

// The platform's WriteFile on a blocking handle writes everything or fails;
// Linux may take less per call, so go on until all is out.
BOOL write(HANDLE h, const void *buffer, DWORD count, DWORD &done) {
    int fd = orv::k32::handle_fd(h);
    if (fd < 0) return 0;
    const char *p = static_cast<const char *>(buffer);
    DWORD limit = orv::k32::short_write_limit(count);
    do {
        long r = call3(nr_write, fd, arg(p + done), static_cast<long>(limit - done));
        if (r == -e_intr) continue;
        if (failed(r)) {
            orv::k32::set_error_from_errno(r);
            return 0;
        }
        done += static_cast<DWORD>(r);
    } while (done < limit);
    return 1;
}

} // namespace

extern "C" K32_API BOOL WINAPI WriteFile(HANDLE h, LPCVOID buffer, DWORD count,
                                         LPDWORD done, LPVOID) {
    DWORD n = 0;
    BOOL ok = orv::k32::fault_hit(K32_WriteFile)
                  ? orv::k32::fail(ERROR_WRITE_FAULT, 0)
                  : write(h, buffer, count, n);
    if (done != nullptr) *done = n;
    orv::k32::trace(K32_WriteFile, h, count, n);
    return ok;
}
