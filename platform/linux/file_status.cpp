#include "file_status.h"

#include "civil.h"
#include "last_error.h"
#include "syscall.h"

namespace orv::k32 {

namespace {

struct StatxTime {
    std::int64_t sec;
    std::uint32_t nsec;
    std::int32_t pad;
};

struct Statx {
    std::uint32_t mask, blksize;
    std::uint64_t attributes;
    std::uint32_t nlink, uid, gid;
    std::uint16_t mode, pad0;
    std::uint64_t ino, size, blocks, attributes_mask;
    StatxTime atime, btime, ctime, mtime;
    std::uint32_t rdev_major, rdev_minor, dev_major, dev_minor;
    std::uint64_t spare[14];
};
static_assert(sizeof(Statx) == 256);

constexpr long at_empty_path = 0x1000;
constexpr long statx_basic_and_birth = 0x7FF | 0x800;
constexpr std::uint32_t statx_btime = 0x800;

FILETIME file_time(const StatxTime &t) {
    return make_filetime(static_cast<std::uint64_t>(epoch_1970_ticks + t.sec * ticks_per_second +
                                                    t.nsec / 100));
}

// Without an owner write bit a file counts as read-only; a file that is not
// a directory carries the archive bit, as fresh files do on the platform.
void fill(const Statx &x, FileStatus &out) {
    bool directory = (x.mode & sys::s_ifmt) == sys::s_ifdir;
    out.attributes = directory ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_ARCHIVE;
    if (!(x.mode & 0200)) out.attributes |= FILE_ATTRIBUTE_READONLY;
    out.size = x.size;
    // Where the file system keeps no birth time, the last status change
    // stands in for it.
    out.creation = file_time((x.mask & statx_btime) ? x.btime : x.ctime);
    out.last_access = file_time(x.atime);
    out.last_write = file_time(x.mtime);
    out.links = x.nlink;
    out.index = x.ino;
    out.device = (x.dev_major << 8) | x.dev_minor;
    out.mode = x.mode;
}

bool query(long dirfd, const char *path, long flags, FileStatus &out) {
    Statx x{};
    long r = sys::call5(sys::nr_statx, dirfd, sys::arg(path), flags, statx_basic_and_birth,
                        sys::arg(&x));
    if (sys::failed(r)) {
        set_error_from_errno(r);
        return false;
    }
    fill(x, out);
    return true;
}

} // namespace

bool status_of_path(const char *native_path, FileStatus &out) {
    return query(sys::at_fdcwd, native_path, 0, out);
}

bool status_of_fd(int fd, FileStatus &out) { return query(fd, "", at_empty_path, out); }

} // namespace orv::k32
