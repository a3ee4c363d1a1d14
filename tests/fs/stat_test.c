/* File status and file times: the mode made from attributes and the name,
   drive numbers, searches, descriptors of every kind, and _utime. */
#include <errno.h>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <sys/utime.h>
#include <time.h>

#include "harness.h"
#include "platform/k32_faults.h"
#include "platform/linux/time_control.h"

int _orv_file_exists(const char *path);

/* The call answers -1 and leaves errno as `code` (0: untouched). */
#define FAILS_WITH(call, code) \
    do {                        \
        errno = 0;              \
        CHECK_EQ(call, -1);     \
        CHECK_EQ(errno, code);  \
    } while (0)

static long raw2(long nr, long a, long b) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(nr), "b"(a), "c"(b) : "memory");
    return r;
}
static void make_dir(const char *path) { raw2(39, (long)path, 0755); }
static void set_mode(const char *path, int mode) { raw2(15, (long)path, mode); }

static struct stat st;

static int mode_of(const char *path) {
    t_memset(&st, 0x55, sizeof st);
    return _stat(path, &st) == 0 ? st.st_mode : -1;
}

static int fstat_pipe(void *arg) {
    (void)arg;
    struct stat s;
    if (_fstat(0, &s) != 0) return 1;
    return s.st_mode == 0x1000 && s.st_size == 5 && s.st_dev == 0 && s.st_rdev == 0 ? 0 : 2;
}

int main(void) {
    k32_set_time_zone("EST5EDT");
    t_remove("b2.c"); /* a link left by an earlier run */

    t_section("mode, drive and size");
    make_dir("C:");
    CHECK_EQ(t_write_file("C:/AUTOEXEC.BAT", "@echo off\r\n", 11), 0);
    CHECK_EQ(_stat("C:\\AUTOEXEC.BAT", &st), 0);
    CHECK(st.st_dev == 2 && st.st_rdev == 2 && st.st_mode == 0x81FF && st.st_size == 11);
    CHECK(st.st_nlink == 1 && st.st_ino == 0 && st.st_uid == 0 && st.st_gid == 0);
    CHECK_EQ(mode_of("c:\\AUTOEXEC.BAT"), -1); /* no such directory: names are kept as written */
    set_mode("C:/AUTOEXEC.BAT", 0444);
    CHECK_HEX(mode_of("C:\\AUTOEXEC.BAT"), 0x816D);
    set_mode("C:/AUTOEXEC.BAT", 0644);
    static const struct { const char *name; int mode; } names[] = {
        {"prog.ExE", 0x81FF},     {"run.CMD", 0x81FF}, {"x.com", 0x81FF},
        {"prog.exe.bak", 0x81B6}, {"x.exe2", 0x81B6},  {"x.ex", 0x81B6},
        {"plain", 0x81B6},        {".bat", 0x81FF}};
    for (unsigned i = 0; i < sizeof names / sizeof names[0]; ++i) {
        CHECK_EQ(t_write_file(names[i].name, "abc", 3), 0);
        CHECK_HEX(mode_of(names[i].name), names[i].mode);
        CHECK(st.st_dev == -1 && st.st_rdev == -1 && st.st_size == 3);
    }
    make_dir("dir.exe");
    CHECK_EQ(t_write_file("dir.exe/file", "", 0), 0);
    CHECK_HEX(mode_of("dir.exe\\file"), 0x81B6); /* the last dot is in the directory */
    CHECK_HEX(mode_of("dir.exe"), 0x41FF);
    make_dir("sub");
    CHECK_HEX(mode_of("sub"), 0x41B6);

    t_section("what _stat cannot find");
    FAILS_WITH(_stat("C:\\", &st), ENOENT);
    FAILS_WITH(_stat("/", &st), ENOENT);
    FAILS_WITH(_stat("sub\\", &st), ENOENT);
    FAILS_WITH(_stat("", &st), ENOENT);
    CHECK_EQ(st.st_dev, -1); /* cleared before the check */
    FAILS_WITH(_stat(NULL, &st), ENOENT);
    FAILS_WITH(_stat("missing.txt", &st), ENOENT);
    FAILS_WITH(_stat("plain", NULL), 0);

    t_section("wildcards");
    CHECK_EQ(t_write_file("b.c", "bbbbbbb", 7), 0);
    CHECK_EQ(t_write_file("a.c", "aa", 2), 0);
    CHECK(_stat("*.c", &st) == 0 && st.st_size == 2); /* the first match, a.c */
    CHECK(_stat("b?c", &st) == 0 && st.st_size == 7);
    CHECK(_stat("dir.exe\\f*", &st) == 0 && st.st_size == 0);
    FAILS_WITH(_stat("*.zzz", &st), ENOENT);
    CHECK_EQ(_orv_file_exists("a.c"), 1);
    CHECK_EQ(_orv_file_exists("sub"), 1);
    CHECK_EQ(_orv_file_exists("nothing"), 0);

    t_section("file times");
    struct utimbuf times = {1000000000, 1100000000};
    CHECK(_utime("a.c", &times) == 0 && _stat("a.c", &st) == 0);
    CHECK(st.st_atime == 1000000000 && st.st_mtime == 1100000000);
    CHECK(st.st_ctime > 1600000000); /* created by this run */
    k32_set_time_zone("XST5XDT,J1/0,J365/25"); /* the offset does not change the instant */
    CHECK(_stat("a.c", &st) == 0 && st.st_mtime == 1100000000);
    times.actime = -2114380800;
    times.modtime = 2145916799;
    CHECK(_utime("a.c", &times) == 0 && _stat("a.c", &st) == 0);
    /* Four hours west of UTC the first second of 1903 is still 1902 on the
       local clock, out of mktime's range: -1, and still a success. */
    CHECK(st.st_atime == -1 && st.st_mtime == 2145916799);
    times.actime = -2114380800 + 4 * 3600;
    CHECK(_utime("a.c", &times) == 0 && _stat("a.c", &st) == 0);
    CHECK_EQ(st.st_atime, -2114380800 + 4 * 3600);
    FILETIME frozen = {0x256D4000u, 0x01BF53EBu}; /* 2000-01-01 00:00 UTC */
    k32_set_clock(&frozen);
    CHECK_EQ(_utime("a.c", NULL), 0);
    k32_set_clock(NULL);
    CHECK(_stat("a.c", &st) == 0 && st.st_mtime == 946684800 && st.st_atime == 946684800);

    t_section("_utime refusals");
    set_mode("b.c", 0444);
    FAILS_WITH(_utime("b.c", &times), EACCES);
    set_mode("b.c", 0644);
    FAILS_WITH(_utime("sub", &times), EACCES);
    FAILS_WITH(_utime("missing", &times), ENOENT);
    FAILS_WITH(_utime("", &times), ENOENT);
    unsigned closes = k32_call_count(K32_CloseHandle);
    k32_fail_call(K32_CreateFileA, 1);
    FAILS_WITH(_utime("b.c", &times), EMFILE);
    CHECK_EQ(k32_call_count(K32_CloseHandle), closes); /* nothing was opened to close */

    t_section("descriptors");
    int fd = _open("b.c", O_RDONLY);
    CHECK(fd >= 0);
    t_memset(&st, 0x55, sizeof st);
    CHECK_EQ(_fstat(fd, &st), 0);
    CHECK(st.st_mode == 0x81B6 && st.st_size == 7 && st.st_dev == -1 && st.st_nlink == 1);
    CHECK_EQ(raw2(9, (long)"b.c", (long)"b2.c"), 0); /* a second hard link */
    CHECK(_fstat(fd, &st) == 0 && st.st_nlink == 2);
    CHECK(_stat("b.c", &st) == 0 && st.st_nlink == 1); /* a search reports no link count */
    CHECK_EQ(_close(fd), 0);
    FAILS_WITH(_fstat(fd, &st), 0); /* closed now */
    FAILS_WITH(_fstat(99, &st), 0);
    fd = _open("/dev/null", O_RDWR);
    CHECK(fd >= 0 && _fstat(fd, &st) == 0);
    CHECK(st.st_mode == 0x2000 && st.st_dev == fd && st.st_rdev == fd);
    _close(fd);
    t_child child;
    t_run_child_piped(&child, fstat_pipe, NULL, "12345", 5);
    CHECK(child.exited && child.status == 0);
    return t_finish();
}
