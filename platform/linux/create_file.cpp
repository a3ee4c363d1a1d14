#include "faults.h"
#include "handles.h"
#include "last_error.h"
#include "native_path.h"
#include "syscall.h"

namespace {

using namespace orv::sys;

long access_flags(DWORD access) {
    bool r = access & GENERIC_READ, w = access & GENERIC_WRITE;
    return r && w ? o_rdwr : w ? o_wronly : o_rdonly;
}

// Linux open flags for a creation disposition; -1 for an unknown one.
long disposition_flags(DWORD disposition) {
    switch (disposition) {
    case CREATE_NEW: return o_creat | o_excl;
    case CREATE_ALWAYS: return o_creat | o_trunc;
    case OPEN_EXISTING: return 0;
    case OPEN_ALWAYS: return o_creat;
    case TRUNCATE_EXISTING: return o_trunc;
    default: return -1;
    }
}

// The platform opens no directory as a file.
bool is_directory(int fd) {
    Stat64 st;
    return !failed(fstat64(fd, &st)) && (st.st_mode & s_ifmt) == s_ifdir;
}

HANDLE open_file(const char *name, DWORD access, DWORD disposition,
                 DWORD attributes) {
    orv::k32::NativePath path(name);
    if (!path.ok()) return INVALID_HANDLE_VALUE;
    long how = disposition_flags(disposition);
    if (how < 0) return orv::k32::fail(ERROR_INVALID_PARAMETER, INVALID_HANDLE_VALUE);
    long mode = (attributes & 1) ? 0444 : 0666;  // FILE_ATTRIBUTE_READONLY
    long fd = call3(nr_open, arg(path.c_str()),
                    access_flags(access) | how | o_largefile | o_cloexec, mode);
    if (failed(fd)) {
        orv::k32::set_error_from_errno(fd);
        return INVALID_HANDLE_VALUE;
    }
    if (is_directory(static_cast<int>(fd))) {
        call1(nr_close, fd);
        return orv::k32::fail(ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
    }
    HANDLE h = orv::k32::handle_new(orv::k32::Kind::file, static_cast<int>(fd));
    if (h == nullptr) {
        call1(nr_close, fd);
        return orv::k32::fail(ERROR_TOO_MANY_OPEN_FILES, INVALID_HANDLE_VALUE);
    }
    SetLastError(ERROR_SUCCESS);
    return h;
}

} // namespace

extern "C" K32_API HANDLE WINAPI CreateFileA(LPCSTR name, DWORD access, DWORD,
                                             LPVOID, DWORD disposition,
                                             DWORD attributes, HANDLE) {
    HANDLE h = orv::k32::fault_hit(K32_CreateFileA)
                   ? orv::k32::fail(ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE)
                   : open_file(name, access, disposition, attributes);
    orv::k32::trace(K32_CreateFileA, h, access, reinterpret_cast<DWORD>(h));
    return h;
}
