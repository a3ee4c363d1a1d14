/* Descriptor numbering, the open table, seeking, names, and the failure
   answers of the descriptor layer. */
#include <errno.h>
#include <fcntl.h>
#include <fdmap.h>
#include <io.h>

#include "harness.h"
#include "platform/k32_faults.h"

/* A call that fails with -1 and sets errno to `code`. */
#define FAILS(call, code) (errno = 0, CHECK_EQ((call), -1), CHECK_EQ(errno, (code)))

static void make_file(const char *path, const char *text) {
    t_write_file(path, text, t_strlen(text));
}

/* The file's content as a string (truncated to 63 bytes), "" when absent. */
static const char *content(const char *path) {
    static char buf[64];
    int n = t_read_file(path, buf, sizeof buf - 1);
    buf[n < 0 ? 0 : n] = 0;
    return buf;
}

/* The list's numbers, in list order from the node of 0, against those given. */
static void list_is(int line, const int *want, unsigned n) {
    int got[16];
    unsigned k = 0;
    for (struct fd_map *p = __find_fd_map(0); p && k < 16; p = p->next) got[k++] = p->fd;
    t_check_mem(got, k * sizeof(int), want, n * sizeof(int), "the list's numbers", __FILE__, line);
}
#define LIST_IS(...) list_is(__LINE__, (const int[]){__VA_ARGS__}, sizeof((const int[]){__VA_ARGS__}) / sizeof(int))

static void numbering(void) {
    t_section("numbering and reuse");
    /* The start code registered 0, 1 and 2 in text mode on the std handles. */
    CHECK(__find_fd_map(2)->handle == GetStdHandle(STD_ERROR_HANDLE));
    make_file("n.txt", "x");
    for (int fd = 3; fd <= 5; ++fd) CHECK_EQ(_open("n.txt", O_RDONLY), fd);
    CHECK_EQ(_close(4), 0);
    FAILS(_close(4), EBADF);
    CHECK_EQ(_open("n.txt", O_RDONLY), 4);

    /* Close 1: the next node takes 1 and sits between 0 and 2. */
    struct fd_map *one = __find_fd_map(1), *two = __find_fd_map(2);
    struct fd_map saved = *one;
    one->handle = 0; /* keep the real standard output open */
    CHECK_EQ(_close(1), 0);
    struct fd_map *fresh = __new_fd_map();
    CHECK(fresh->fd == 1 && fresh->handle == 0 && fresh->flags == 0);
    CHECK(__find_fd_map(0)->next == fresh && fresh->next == two);
    fresh->handle = saved.handle;
    fresh->flags = saved.flags;
    LIST_IS(0, 1, 2, 3, 4, 5);

    /* Gaps are filled lowest first, before the end. */
    _close(3);
    _close(5);
    for (int i = 0; i < 3; ++i) CHECK_EQ(_open("n.txt", O_RDONLY), ((const int[]){3, 5, 6})[i]);
    for (int fd = 3; fd <= 6; ++fd) _close(fd);
    LIST_IS(0, 1, 2);

    k32_fail_call(K32_HeapAlloc, 1); /* no memory: no node */
    CHECK(__new_fd_map() == 0);
    CHECK(__find_fd_map(3) == 0);
}

static void queries(void) {
    t_section("queries on a descriptor");
    make_file("q.txt", "x");
    K32TraceEntry log[4];
    k32_trace_start(log, 4);
    int fd = _open("q.txt", O_RDONLY | O_TEXT);
    k32_trace_stop();
    CHECK_EQ(_fd_to_handle(fd), (long)log[0].result);
    int bin = _open("q.txt", O_RDONLY | O_BINARY);
    CHECK(__find_fd_map(fd)->flags == FD_TEXT && __file_open_textmode(fd) == 1);
    CHECK(__find_fd_map(bin)->flags == 0 && __file_open_textmode(bin) == 0);
    __set_write_text_flag(bin);
    CHECK_EQ(__find_fd_map(bin)->flags, FD_WRITE_TEXT);
    CHECK_EQ(__file_open_textmode(bin), 0); /* write-only translation doesn't count */

    errno = 0;
    CHECK(_fd_to_handle(77) == -1 && __file_open_textmode(77) == 0 && _isatty(77) == 0);
    CHECK_EQ(errno, 0);

    CHECK_EQ(_isatty(fd), 0);
    int dev = _open("/dev/null", O_RDWR);
    CHECK_EQ(_isatty(dev), 1); /* any character device, not only a console */
    k32_fail_call(K32_GetFileType, 1);
    CHECK_EQ(_isatty(dev), 0);
    _close(dev);
    _close(bin);
    _close(fd);
}

/* Opens `path` with `oflag`, answering the descriptor (closed again) or
   -1; *access gets what CreateFileA was asked for. */
static int try_open(const char *path, int oflag, unsigned long *access) {
    K32TraceEntry log[4];
    k32_trace_start(log, 4);
    int fd = _open(path, oflag, 0644);
    unsigned n = k32_trace_stop();
    *access = (n >= 1 && log[0].op == K32_CreateFileA) ? log[0].count : 0;
    if (fd >= 0) _close(fd);
    return fd;
}

static void open_table(void) {
    t_section("open: access and disposition");
    /* creates: a missing file is created; truncates: an existing one is
       emptied; excl: an existing one makes it fail. */
#define R GENERIC_READ
#define W GENERIC_WRITE
    static const struct { int oflag; unsigned long access; int creates, truncates, excl; } rows[] = {
        {O_RDONLY, R, 0, 0, 0},                   {O_WRONLY, W, 1, 0, 0},
        {O_RDWR, R | W, 0, 0, 0},                 {3, R, 1, 0, 0},
        {O_RDONLY | O_TRUNC, R, 1, 1, 0},         {O_RDWR | O_TRUNC, R | W, 1, 1, 0},
        {O_RDWR | O_CREAT, R | W, 1, 0, 0},       {O_RDONLY | O_CREAT, R, 1, 0, 0},
        {O_RDWR | O_EXCL, R | W, 1, 0, 1},        {O_RDWR | O_CREAT | O_EXCL, R | W, 1, 0, 1},
        {O_WRONLY | O_EXCL, W, 1, 0, 0} /* bit 0 wins */, {O_RDWR | O_TRUNC | O_EXCL, R | W, 1, 1, 0},
        {O_WRONLY | O_CREAT | O_TRUNC, W, 1, 1, 0}, {O_RDWR | O_BINARY | O_APPEND, R | W, 0, 0, 0},
    };
#undef R
#undef W
    for (unsigned i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        unsigned long access;
        char note[8] = {'r', 'o', 'w', ' ', (char)('a' + i), 0};
        t_section(note);
        t_remove("t.txt");
        errno = 0;
        int fd = try_open("t.txt", rows[i].oflag, &access);
        CHECK_EQ(access, rows[i].access);
        CHECK_EQ(fd >= 0, rows[i].creates);
        CHECK_EQ(t_exists("t.txt"), rows[i].creates);
        if (!rows[i].creates) CHECK_EQ(errno, EIO); /* a missing file too */

        make_file("t.txt", "old");
        errno = 0;
        fd = try_open("t.txt", rows[i].oflag, &access);
        CHECK_EQ(fd >= 0, !rows[i].excl);
        if (rows[i].excl) CHECK_EQ(errno, EIO);
        CHECK_STR(content("t.txt"), rows[i].truncates ? "" : "old");
    }
    t_section("open: flags on the node");
    make_file("t.txt", "old");
    int fd = _open("t.txt", O_WRONLY | O_APPEND | O_TEXT);
    CHECK_EQ(__find_fd_map(fd)->flags, FD_APPEND | FD_TEXT);
    _close(fd);
    /* Backslash paths reach the same file. */
    fd = _open(".\\t.txt", O_RDONLY);
    CHECK(fd >= 0);
    _close(fd);
    t_remove("t.txt");
}

static void seeking(void) {
    t_section("lseek");
    make_file("s.txt", "0123456789");
    int fd = _open("s.txt", O_RDWR);
    CHECK(_lseek(fd, 4, 0) == 4 && _lseek(fd, 3, 1) == 7 && _lseek(fd, -2, 2) == 8);
    char c;
    CHECK(_read(fd, &c, 1) == 1 && c == '8');
    CHECK_EQ(_lseek(fd, 0, 1), 9);

    FAILS(_lseek(fd, 0, 3), EINVAL);
    FAILS(_lseek(fd, 0, -1), EINVAL);
    FAILS(_lseek(99, 0, 7), EBADF); /* the descriptor is tested first */
    FAILS(_lseek(fd, -20, 0), EIO);
    CHECK_EQ(_lseek(fd, 0, 1), 9); /* a refused move leaves the position */
    k32_fail_call(K32_SetFilePointer, 1);
    FAILS(_lseek(fd, 1, 0), EIO);
    _close(fd);
}

static void names(void) {
    t_section("unlink and link");
    make_file("u.txt", "u");
    CHECK_EQ(_unlink("u.txt"), 0);
    CHECK(!t_exists("u.txt"));
    FAILS(_unlink("u.txt"), EACCES); /* not ENOENT */
    make_file("u.txt", "u");

    make_file("old.txt", "moved");
    CHECK_EQ(_link("old.txt", "new.txt"), 0);
    CHECK(!t_exists("old.txt")); /* a move, not a second link */
    CHECK_STR(content("new.txt"), "moved");
    FAILS(_link("old.txt", "other.txt"), EIO);
    FAILS(_link("u.txt", "new.txt"), EIO); /* never replaces */
    CHECK_STR(content("new.txt"), "moved");
    t_remove("new.txt");
    t_remove("u.txt");
}

static void failures(void) {
    t_section("failures");
    char buf[4];
    static const int bad[] = {-1, 42};
    for (unsigned i = 0; i < 2; ++i) {
        FAILS(_close(bad[i]), EBADF);
        FAILS(_read(bad[i], buf, 1), EBADF);
        FAILS(__orv_read(bad[i], buf, 1), EBADF);
        FAILS(_write(bad[i], "x", 1), EBADF);
        FAILS(__orv_write(bad[i], "x", 1), EBADF);
        FAILS(_lseek(bad[i], 0, 0), EBADF);
    }
    make_file("f.txt", "data");
    /* No handle, or no memory for the node: EIO, and no number taken. */
    k32_fail_call(K32_CreateFileA, 1);
    FAILS(_open("f.txt", O_RDONLY), EIO);
    k32_fail_call(K32_HeapAlloc, 1);
    FAILS(_open("f.txt", O_RDONLY), EIO);

    int fd = _open("f.txt", O_RDWR);
    CHECK_EQ(fd, 3);
    k32_fail_call(K32_ReadFile, 1);
    FAILS(_read(fd, buf, 4), EIO);
    k32_fail_call(K32_WriteFile, 1);
    FAILS(_write(fd, "ab", 2), EIO);
    /* A failing CloseHandle is ignored: the descriptor is gone all the same. */
    k32_fail_call(K32_CloseHandle, 1);
    CHECK_EQ(_close(fd), 0);
    CHECK(__find_fd_map(fd) == 0);
    k32_clear_faults();
    t_remove("f.txt");
}

int main(void) {
    numbering();
    queries();
    open_table();
    seeking();
    names();
    failures();
    return t_finish();
}
