#include "faults.h"
#include "handles.h"
#include "last_error.h"
#include "syscall.h"

namespace {

using namespace orv::sys;

long long seek(int fd, long long distance, DWORD method) {
    long long pos = 0;
    long r = call5(nr_llseek, fd, static_cast<long>(distance >> 32),
                   static_cast<long>(distance & 0xFFFFFFFF), arg(&pos),
                   static_cast<long>(method));
    return failed(r) ? r : pos;
}

// With no high word the platform works in 32 bits: a position that does
// not fit is refused and the file pointer stays where it was.
DWORD move(HANDLE h, LONG distance, PLONG high, DWORD method) {
    int fd = orv::k32::handle_fd(h);
    if (fd < 0) return INVALID_SET_FILE_POINTER;
    if (method > FILE_END) return orv::k32::fail(ERROR_INVALID_PARAMETER, INVALID_SET_FILE_POINTER);
    long long wanted = high ? (static_cast<long long>(*high) << 32) |
                                  static_cast<unsigned long>(distance)
                            : distance;
    long long old = seek(fd, 0, FILE_CURRENT);
    long long pos = seek(fd, wanted, method);
    if (pos == -e_inval) return orv::k32::fail(ERROR_NEGATIVE_SEEK, INVALID_SET_FILE_POINTER);
    if (pos < 0 && pos >= -4095) {
        orv::k32::set_error_from_errno(static_cast<long>(pos));
        return INVALID_SET_FILE_POINTER;
    }
    if (high == nullptr && pos >= 0xFFFFFFFFLL) {
        seek(fd, old, FILE_BEGIN);
        return orv::k32::fail(ERROR_INVALID_PARAMETER, INVALID_SET_FILE_POINTER);
    }
    if (high != nullptr) *high = static_cast<LONG>(pos >> 32);
    SetLastError(ERROR_SUCCESS);
    return static_cast<DWORD>(pos);
}

} // namespace

extern "C" K32_API DWORD WINAPI SetFilePointer(HANDLE h, LONG distance,
                                               PLONG high, DWORD method) {
    DWORD r = orv::k32::fault_hit(K32_SetFilePointer)
                  ? orv::k32::fail(ERROR_INVALID_PARAMETER, INVALID_SET_FILE_POINTER)
                  : move(h, distance, high, method);
    orv::k32::trace(K32_SetFilePointer, h, static_cast<DWORD>(distance), r);
    return r;
}
