// Raw i386 Linux system calls through int $0x80: the stand-in links no C
// library, so this is its only way to the kernel.
#pragma once

#include <cstdint>
#include <type_traits>

namespace orv::sys {

enum Number : long {
    nr_exit = 1,
    nr_fork = 2,
    nr_read = 3,
    nr_write = 4,
    nr_open = 5,
    nr_close = 6,
    nr_waitpid = 7,
    nr_link = 9,
    nr_unlink = 10,
    nr_execve = 11,
    nr_chdir = 12,
    nr_time = 13,
    nr_lseek = 19,
    nr_getpid = 20,
    nr_access = 33,
    nr_kill = 37,
    nr_rename = 38,
    nr_mkdir = 39,
    nr_rmdir = 40,
    nr_dup = 41,
    nr_pipe = 42,
    nr_ioctl = 54,
    nr_fcntl = 55,
    nr_dup2 = 63,
    nr_getppid = 64,
    nr_munmap = 91,
    nr_ftruncate = 93,
    nr_wait4 = 114,
    nr_mprotect = 125,
    nr_llseek = 140,
    nr_mremap = 163,
    nr_rt_sigreturn = 173,
    nr_rt_sigaction = 174,
    nr_rt_sigprocmask = 175,
    nr_mmap2 = 192,
    nr_stat64 = 195,
    nr_lstat64 = 196,
    nr_fstat64 = 197,
    nr_getdents64 = 220,
    nr_fcntl64 = 221,
    nr_gettid = 224,
    nr_madvise = 219,
    nr_exit_group = 252,
    nr_clock_gettime = 265,
    nr_openat = 295,
    nr_utimensat = 320,
    nr_pipe2 = 331,
    nr_renameat2 = 353,
    nr_statx = 383,
};

// Where system calls enter the kernel (kernel_entry.S): the kernel's fast
// entry once the loader has told it, int $0x80 before.
extern "C" void *orv_kernel_entry __attribute__((visibility("hidden")));

#define ORV_SYSCALL "call *%[entry]"

inline long call0(long nr) {
    long r;
    __asm__ volatile(ORV_SYSCALL : "=a"(r) : [entry] "m"(orv_kernel_entry), "a"(nr) : "memory");
    return r;
}
inline long call1(long nr, long a) {
    long r;
    __asm__ volatile(ORV_SYSCALL : "=a"(r) : [entry] "m"(orv_kernel_entry), "a"(nr), "b"(a) : "memory");
    return r;
}
inline long call2(long nr, long a, long b) {
    long r;
    __asm__ volatile(ORV_SYSCALL : "=a"(r) : [entry] "m"(orv_kernel_entry), "a"(nr), "b"(a), "c"(b) : "memory");
    return r;
}
inline long call3(long nr, long a, long b, long c) {
    long r;
    __asm__ volatile(ORV_SYSCALL
                     : "=a"(r)
                     : [entry] "m"(orv_kernel_entry), "a"(nr), "b"(a), "c"(b), "d"(c)
                     : "memory");
    return r;
}
inline long call4(long nr, long a, long b, long c, long d) {
    long r;
    __asm__ volatile(ORV_SYSCALL
                     : "=a"(r)
                     : [entry] "m"(orv_kernel_entry), "a"(nr), "b"(a), "c"(b), "d"(c), "S"(d)
                     : "memory");
    return r;
}
inline long call5(long nr, long a, long b, long c, long d, long e) {
    long r;
    __asm__ volatile(ORV_SYSCALL
                     : "=a"(r)
                     : [entry] "m"(orv_kernel_entry), "a"(nr), "b"(a), "c"(b), "d"(c), "S"(d), "D"(e)
                     : "memory");
    return r;
}

// Six arguments need ebp, which inline assembly cannot name: syscall6.S.
extern "C" long orv_syscall6(long nr, long a, long b, long c, long d, long e,
                             long f) __attribute__((visibility("hidden")));

// A result in [-4095, -1] is a negated errno value.
inline bool failed(long r) { return static_cast<unsigned long>(r) > -4096UL; }

template <class T> inline long arg(T v) {
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<long>(v);
    else
        return static_cast<long>(v);
}

// Linux errno values the stand-in looks at.
enum Errno : long {
    e_perm = 1, e_noent = 2, e_intr = 4, e_io = 5, e_badf = 9, e_again = 11,
    e_nomem = 12, e_acces = 13, e_exist = 17, e_xdev = 18, e_notdir = 20,
    e_isdir = 21, e_inval = 22, e_nfile = 23, e_mfile = 24, e_fbig = 27,
    e_nospc = 28, e_spipe = 29, e_rofs = 30, e_pipe = 32, e_nametoolong = 36,
    e_nosys = 38, e_notempty = 39, e_loop = 40, e_overflow = 75,
};

// open(2) flags.
enum OpenFlag : long {
    o_rdonly = 0, o_wronly = 1, o_rdwr = 2, o_creat = 0100, o_excl = 0200,
    o_noctty = 0400, o_trunc = 01000, o_append = 02000, o_nonblock = 04000,
    o_directory = 0200000, o_largefile = 0100000, o_cloexec = 02000000,
};

inline constexpr long at_fdcwd = -100;

// Memory mapping.
enum Mmap : long {
    prot_none = 0, prot_read = 1, prot_write = 2,
    map_shared = 1, map_private = 2, map_fixed = 0x10, map_anonymous = 0x20,
    map_noreserve = 0x4000,
    mremap_maymove = 1,
    madv_dontneed = 4,
};

inline void *mmap_anon(std::uint32_t bytes) {
    long r = orv_syscall6(nr_mmap2, 0, static_cast<long>(bytes),
                          prot_read | prot_write, map_private | map_anonymous,
                          -1, 0);
    return failed(r) ? nullptr : reinterpret_cast<void *>(r);
}

inline long munmap(void *p, std::uint32_t bytes) {
    return call2(nr_munmap, arg(p), static_cast<long>(bytes));
}

// Resizes a mapping; without mremap_maymove it only succeeds in place.
// Answers the mapping's address, or null.
inline void *mremap(void *p, std::uint32_t old_bytes, std::uint32_t new_bytes, long flags) {
    long r = call4(nr_mremap, arg(p), static_cast<long>(old_bytes),
                   static_cast<long>(new_bytes), flags);
    return failed(r) ? nullptr : reinterpret_cast<void *>(r);
}

// struct stat64 as the i386 kernel fills it.
struct Stat64 {
    std::uint64_t st_dev;
    std::uint32_t pad0;
    std::uint32_t st_ino32;
    std::uint32_t st_mode;
    std::uint32_t st_nlink;
    std::uint32_t st_uid;
    std::uint32_t st_gid;
    std::uint64_t st_rdev;
    std::uint32_t pad1;
    std::int64_t st_size;
    std::uint32_t st_blksize;
    std::uint64_t st_blocks;
    std::uint32_t st_atime;
    std::uint32_t st_atime_nsec;
    std::uint32_t st_mtime;
    std::uint32_t st_mtime_nsec;
    std::uint32_t st_ctime;
    std::uint32_t st_ctime_nsec;
    std::uint64_t st_ino;
} __attribute__((packed));
static_assert(sizeof(Stat64) == 96);

inline constexpr std::uint32_t s_ifmt = 0170000, s_ifdir = 0040000,
                               s_ifchr = 0020000, s_ifreg = 0100000,
                               s_ififo = 0010000, s_ifsock = 0140000;

inline long fstat64(int fd, Stat64 *st) {
    return call2(nr_fstat64, fd, arg(st));
}
inline long stat64(const char *path, Stat64 *st) {
    return call2(nr_stat64, arg(path), arg(st));
}

} // namespace orv::sys
