// GetFileAttributesA, GetFileInformationByHandle, PeekNamedPipe,
// SetFileTime.
#include "civil.h"
#include "file_status.h"
#include "handles.h"
#include "last_error.h"
#include "native_path.h"
#include "syscall.h"

using namespace orv::k32;

extern "C" K32_API DWORD WINAPI GetFileAttributesA(LPCSTR name) {
    NativePath path(name);
    FileStatus st;
    if (!path.ok() || !status_of_path(path.c_str(), st)) return INVALID_FILE_ATTRIBUTES;
    return st.attributes;
}

extern "C" K32_API BOOL WINAPI GetFileInformationByHandle(HANDLE file,
                                                          BY_HANDLE_FILE_INFORMATION *info) {
    int fd = handle_fd(file);
    FileStatus st;
    if (fd < 0 || !status_of_fd(fd, st)) return 0;
    info->dwFileAttributes = st.attributes;
    info->ftCreationTime = st.creation;
    info->ftLastAccessTime = st.last_access;
    info->ftLastWriteTime = st.last_write;
    info->dwVolumeSerialNumber = st.device;
    info->nFileSizeHigh = static_cast<DWORD>(st.size >> 32);
    info->nFileSizeLow = static_cast<DWORD>(st.size);
    info->nNumberOfLinks = st.links;
    info->nFileIndexHigh = static_cast<DWORD>(st.index >> 32);
    info->nFileIndexLow = static_cast<DWORD>(st.index);
    return 1;
}

// Reports what is waiting without taking it; the buffer is not filled.
extern "C" K32_API BOOL WINAPI PeekNamedPipe(HANDLE pipe, LPVOID, DWORD, LPDWORD read,
                                             LPDWORD available, LPDWORD left) {
    int fd = handle_fd(pipe);
    if (fd < 0) return 0;
    constexpr long fionread = 0x541B;
    int waiting = 0;
    long r = orv::sys::call3(orv::sys::nr_ioctl, fd, fionread, orv::sys::arg(&waiting));
    if (orv::sys::failed(r)) {
        set_error_from_errno(r);
        return 0;
    }
    if (read) *read = 0;
    if (available) *available = static_cast<DWORD>(waiting);
    if (left) *left = 0;
    return 1;
}

namespace {

struct Timespec64 {
    std::int64_t sec, nsec;
};

constexpr std::int64_t utime_omit = (1L << 30) - 2;

Timespec64 spec_of(const FILETIME *ft) {
    if (!ft) return {0, utime_omit};
    std::int64_t ticks = static_cast<std::int64_t>(filetime_value(*ft)) - epoch_1970_ticks;
    std::int64_t sec = ticks / ticks_per_second, rest = ticks % ticks_per_second;
    if (rest < 0) rest += ticks_per_second, --sec;
    return {sec, rest * 100};
}

} // namespace

// The kernel keeps no settable birth time: a creation time is accepted and
// has no effect.
extern "C" K32_API BOOL WINAPI SetFileTime(HANDLE file, const FILETIME *, const FILETIME *access,
                                           const FILETIME *write) {
    int fd = handle_fd(file);
    if (fd < 0) return 0;
    Timespec64 times[2] = {spec_of(access), spec_of(write)};
    constexpr long nr_utimensat_time64 = 412;
    long r = orv::sys::call4(nr_utimensat_time64, fd, 0, orv::sys::arg(times), 0);
    if (r == -orv::sys::e_nosys) {
        struct { std::int32_t sec, nsec; } old[2] = {
            {static_cast<std::int32_t>(times[0].sec), static_cast<std::int32_t>(times[0].nsec)},
            {static_cast<std::int32_t>(times[1].sec), static_cast<std::int32_t>(times[1].nsec)}};
        r = orv::sys::call4(orv::sys::nr_utimensat, fd, 0, orv::sys::arg(old), 0);
    }
    if (orv::sys::failed(r)) {
        set_error_from_errno(r);
        return 0;
    }
    return 1;
}
