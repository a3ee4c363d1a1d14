#include "handles.h"
#include "last_error.h"
#include "syscall.h"

// A process entry holds the child's pid until it is reaped; from then on
// its fd is -1 and its extra word the exit code.
namespace {

using namespace orv;

constexpr long wnohang = 1;
constexpr DWORD wait_timeout = 0x102;

// A child killed by a signal reports 128 plus the signal's number, as a
// shell would show it.
DWORD exit_code(int status) {
    int sig = status & 0x7F;
    return sig == 0 ? static_cast<DWORD>((status >> 8) & 0xFF) : static_cast<DWORD>(128 + sig);
}

// 1: reaped now or before; 0: still running; -1: failed.
int reap(k32::HandleEntry *e, bool block) {
    if (e->fd < 0) return 1;
    int status = 0;
    long r = sys::call4(sys::nr_wait4, e->fd, sys::arg(&status), block ? 0 : wnohang, 0);
    if (sys::failed(r)) return -1;
    if (r == 0) return 0;
    e->fd = -1;
    e->extra = reinterpret_cast<void *>(static_cast<unsigned long>(exit_code(status)));
    return 1;
}

k32::HandleEntry *process(HANDLE h) {
    k32::HandleEntry *e = k32::handle_entry(h);
    return e != nullptr && e->kind == k32::Kind::process ? e : nullptr;
}

} // namespace

// Only the two waits the library makes: none at all, and without limit.
extern "C" K32_API DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds) {
    k32::HandleEntry *e = process(object);
    if (e == nullptr) return k32::fail(ERROR_INVALID_HANDLE, WAIT_FAILED);
    int r = reap(e, milliseconds != 0);
    if (r < 0) return k32::fail(ERROR_INVALID_HANDLE, WAIT_FAILED);
    return r == 1 ? WAIT_OBJECT_0 : wait_timeout;
}

extern "C" K32_API BOOL WINAPI GetExitCodeProcess(HANDLE h, LPDWORD code) {
    k32::HandleEntry *e = process(h);
    if (e == nullptr) return k32::fail(ERROR_INVALID_HANDLE, BOOL{0});
    int r = reap(e, false);
    if (r < 0) return k32::fail(ERROR_INVALID_HANDLE, BOOL{0});
    *code = r == 1 ? static_cast<DWORD>(reinterpret_cast<unsigned long>(e->extra)) : STILL_ACTIVE;
    return 1;
}
