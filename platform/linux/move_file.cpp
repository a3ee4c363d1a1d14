#include "faults.h"
#include "last_error.h"
#include "native_path.h"
#include "syscall.h"

namespace {

using namespace orv::sys;

constexpr long rename_noreplace = 1;

bool exists(const char *path) {
    Stat64 st;
    return !failed(call2(nr_lstat64, arg(path), arg(&st)));
}

// Copies a regular file to a new name that must not exist yet; the move
// of a file to another volume is a copy and a delete on the platform.
long copy_file(const char *from, const char *to) {
    long in = call3(nr_open, arg(from), o_rdonly | o_largefile | o_cloexec, 0);
    if (failed(in)) return in;
    long out = call3(nr_open, arg(to),
                     o_wronly | o_creat | o_excl | o_largefile | o_cloexec, 0666);
    if (failed(out)) {
        call1(nr_close, in);
        return out;
    }
    char block[8192];
    long r;
    while ((r = call3(nr_read, in, arg(block), sizeof block)) > 0) {
        for (long done = 0; done < r;) {
            long w = call3(nr_write, out, arg(block + done), r - done);
            if (failed(w)) { r = w; break; }
            done += w;
        }
        if (failed(r)) break;
    }
    call1(nr_close, in);
    call1(nr_close, out);
    if (failed(r)) call1(nr_unlink, arg(to));
    return failed(r) ? r : call1(nr_unlink, arg(from));
}

// The platform's move never replaces an existing target.
long move(const char *from, const char *to) {
    long r = call5(nr_renameat2, at_fdcwd, arg(from), at_fdcwd, arg(to),
                   rename_noreplace);
    if (r == -e_inval || r == -e_nosys) {
        if (exists(to)) return -e_exist;
        r = call2(nr_rename, arg(from), arg(to));
    }
    if (r == -e_xdev) r = copy_file(from, to);
    return r;
}

BOOL move_file(const char *existing, const char *new_name) {
    orv::k32::NativePath from(existing), to(new_name);
    if (!from.ok() || !to.ok()) return 0;
    long r = move(from.c_str(), to.c_str());
    if (r == -e_exist) return orv::k32::fail(ERROR_ALREADY_EXISTS, 0);
    if (failed(r)) {
        orv::k32::set_error_from_errno(r);
        return 0;
    }
    return 1;
}

} // namespace

extern "C" K32_API BOOL WINAPI MoveFileA(LPCSTR existing, LPCSTR new_name) {
    return orv::k32::fault_hit(K32_MoveFileA)
               ? orv::k32::fail(ERROR_ACCESS_DENIED, 0)
               : move_file(existing, new_name);
}
