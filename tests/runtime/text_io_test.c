/* Reading and writing through descriptors: line-end translation both
   ways, the chunks of a text write, append mode, and the detour of console
   traffic through the host hooks. */
#include <errno.h>
#include <fcntl.h>
#include <fdmap.h>
#include <io.h>
#include <tvlkc.h>

#include "harness.h"
#include "platform/k32_faults.h"

/* A call that fails with -1 and sets errno to `code`. */
#define FAILS(call, code) (errno = 0, CHECK_EQ((call), -1), CHECK_EQ(errno, (code)))

static int open_with(const char *path, const char *text, int oflag) {
    t_write_file(path, text, t_strlen(text));
    return _open(path, oflag);
}

static void text_read(void) {
    /* Each row reads `ask` bytes, then up to 32 more. */
    static const struct {
        const char *name, *data;
        int oflag, write_text, fail_nth; /* the fail_nth ReadFile fails */
        unsigned ask;
        const char *first, *rest;
        long pos; /* after the first read; -1: not checked */
    } rows[] = {
        {"text read: lone CRs stay", "a\rb\r\r\ncd", O_TEXT, 0, 0, 32, "a\rb\r\ncd", "", -1},
        {"text read: CR LF ending the block", "ab\r\ncd", O_TEXT, 0, 0, 3, "ab\n", "cd", 4},
        {"text read: the look-ahead byte goes back", "ab\rxy", O_TEXT, 0, 0, 3, "ab\r", "xy", 3},
        {"text read: a CR with nothing behind it stays", "ab\r", O_TEXT, 0, 0, 32, "ab\r", "", -1},
        /* A failing look-ahead only means the CR stays a CR. */
        {"text read: failing look-ahead", "ab\r\n", O_TEXT, 0, 2, 3, "ab\r", "\n", -1},
        {"text read: Ctrl-Z, then on behind the block", "ab\x1a" "cd\r\nef", O_TEXT, 0, 0, 5, "ab", "\nef", -1},
        {"text read: Ctrl-Z first", "\x1a" "abc", O_TEXT, 0, 0, 32, "", "", -1},
        {"binary read", "a\r\n\x1a" "b", O_BINARY, 0, 0, 32, "a\r\n\x1a" "b", "", -1},
        {"write-only translation leaves input raw", "a\r\n", O_BINARY, 1, 0, 32, "a\r\n", "", -1},
    };
    char b[256];
    for (unsigned i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        t_section(rows[i].name);
        int fd = open_with("r.txt", rows[i].data, O_RDWR | rows[i].oflag);
        if (rows[i].write_text) __set_write_text_flag(fd);
        if (rows[i].fail_nth) k32_fail_call(K32_ReadFile, rows[i].fail_nth);
        errno = 0;
        int n = _read(fd, b, rows[i].ask);
        CHECK_MEM(b, (unsigned)n, rows[i].first, t_strlen(rows[i].first));
        CHECK_EQ(errno, 0);
        if (rows[i].pos >= 0) CHECK_EQ(_lseek(fd, 0, 1), rows[i].pos);
        n = _read(fd, b, 32);
        CHECK_MEM(b, (unsigned)n, rows[i].rest, t_strlen(rows[i].rest));
        _close(fd);
    }
    t_remove("r.txt");
}

/* One traced _write: its answer, and the byte counts of the WriteFile
   calls it made, against the counts listed. */
static void writes(int line, int fd, const char *data, unsigned len, int result, const long *counts,
                   unsigned ncounts) {
    K32TraceEntry log[16];
    long got[16];
    k32_trace_start(log, 16);
    int r = _write(fd, data, len);
    unsigned n = k32_trace_stop(), w = 0;
    for (unsigned i = 0; i < n && i < 16; ++i)
        if (log[i].op == K32_WriteFile) got[w++] = (long)log[i].count;
    t_check_int(r, result, "what _write answered", __FILE__, line);
    t_check_mem(got, w * sizeof *got, counts, ncounts * sizeof *counts, "WriteFile counts", __FILE__, line);
}
#define WRITES(fd, data, len, result, ...) \
    writes(__LINE__, fd, data, len, result, (const long[]){__VA_ARGS__}, sizeof((const long[]){__VA_ARGS__}) / sizeof(long))

static void text_write(void) {
    static char lf[300], x[600], file[1400];
    t_memset(lf, '\n', sizeof lf);
    t_memset(x, 'x', sizeof x);
    t_section("text write");
    int fd = open_with("w.txt", "", O_WRONLY | O_TRUNC | O_TEXT);
    CHECK_EQ(_write(fd, "a\nb\r\n", 5), 5);
    CHECK_MEM(file, (unsigned)t_read_file("w.txt", file, sizeof file), "a\r\nb\r\r\n", 7); /* a CR is not special */

    t_section("text write: chunks");
    _lseek(fd, 0, 0);
    WRITES(fd, lf, 300, 300, 256, 256, 88);
    CHECK_EQ(t_read_file("w.txt", file, sizeof file), 600);
    CHECK_MEM(file + 596, 4, "\r\n\r\n", 4);
    WRITES(fd, x, 600, 600, 255, 255, 90);
    /* An LF that falls on byte 255 brings its CR into the same chunk. */
    x[254] = '\n';
    WRITES(fd, x, 255, 255, 256);
    x[254] = 'x', x[253] = '\n';
    WRITES(fd, x, 256, 256, 255, 2);
    x[253] = 'x';
    WRITES(fd, x, 0, 0); /* nothing written */

    t_section("text write: short and failing writes");
    k32_short_write(2, 10);
    WRITES(fd, x, 600, 265, 255, 255); /* stops there */
    k32_short_write(1, 3);
    CHECK_EQ(_write(fd, "ab\ncd", 5), 2); /* the chunk's CR is taken off */
    k32_fail_call(K32_WriteFile, 2);
    FAILS(_write(fd, x, 600), EIO); /* whatever the first chunk wrote */
    _close(fd);

    t_section("binary write");
    fd = open_with("w.txt", "", O_WRONLY | O_TRUNC);
    WRITES(fd, "a\nb", 3, 3, 3);
    WRITES(fd, "", 0, 0, 0); /* one write of 0 */
    k32_short_write(1, 1);
    CHECK_EQ(_write(fd, "xyz", 3), 1);
    __set_write_text_flag(fd);
    CHECK_EQ(_write(fd, "\n", 1), 1);
    CHECK_MEM(file, (unsigned)t_read_file("w.txt", file, sizeof file), "a\nbx\r\n", 6);
    _close(fd);

    t_section("append");
    fd = open_with("w.txt", "12345", O_WRONLY | O_APPEND);
    _lseek(fd, 0, 0);
    CHECK_EQ(_write(fd, "ab", 2), 2);
    _lseek(fd, 1, 0);
    CHECK_EQ(_write(fd, "", 0), 0);
    CHECK_EQ(_lseek(fd, 0, 1), 7); /* the seek happens even for nothing */
    _close(fd);
    fd = _open("w.txt", O_WRONLY | O_APPEND | O_TEXT);
    _lseek(fd, 0, 0);
    CHECK_EQ(_write(fd, "\n", 1), 1);
    CHECK_MEM(file, (unsigned)t_read_file("w.txt", file, sizeof file), "12345ab\r\n", 9);
    _close(fd);
    t_remove("w.txt");
}

/* A host's hooks that record what they were given. */
static char seen[1024];
static unsigned seen_len, seen_calls, read_count;
static void *seen_handle;
static int seen_state, write_answer;

static int record_write(const void *buf, unsigned *count, void *handle, int *state) {
    for (unsigned i = 0; i < *count && seen_len < sizeof seen; ++i) seen[seen_len++] = ((const char *)buf)[i];
    ++seen_calls;
    seen_handle = handle;
    seen_state = *state;
    return write_answer < 0 ? (int)*count : write_answer;
}

static int canned_read(void *buf, unsigned count, int *state) {
    read_count = count;
    seen_state = *state;
    for (unsigned i = 0; i < 7; ++i) ((char *)buf)[i] = "in\r\nput"[i];
    return 7;
}

static void reset_seen(int answer) {
    seen_len = seen_calls = read_count = 0;
    seen_handle = 0;
    seen_state = 0;
    write_answer = answer;
}

static void hook_detour(void) {
    struct __tvlkc_funcs saved = __TVLKCFuncs;
    tvlk_c_init(canned_read, record_write, saved.hook_exit, saved.hook_spare);
    static char many[300];
    t_memset(many, '\n', 300);

    t_section("hooks: console output");
    reset_seen(-1);
    CHECK_EQ(_write(1, "hi\n", 3), 3);
    CHECK_MEM(seen, seen_len, "hi\r\n", 4);
    CHECK(seen_handle == GetStdHandle(STD_OUTPUT_HANDLE) && seen_state == -1);
    reset_seen(-1);
    CHECK_EQ(_write(2, many, 300), 300);
    CHECK_EQ(seen_calls, 3);
    CHECK(seen_handle == GetStdHandle(STD_ERROR_HANDLE));
    reset_seen(0);
    FAILS(_write(1, "x", 1), EIO);
    reset_seen(1); /* a short hook write ends the call */
    CHECK_EQ(_write(1, many, 300), 1 - 128);
    CHECK_EQ(seen_calls, 1);

    /* Any descriptor on the standard handle goes the same way. */
    reset_seen(-1);
    struct fd_map *alias = __new_fd_map();
    alias->handle = GetStdHandle(STD_OUTPUT_HANDLE);
    alias->flags = FD_WRITE_TEXT;
    CHECK_EQ(_write(alias->fd, "a\n", 2), 2);
    CHECK_MEM(seen, seen_len, "a\r\n", 3);

    t_section("hooks: console input");
    CHECK_EQ(_read(0, seen, 100), 6);
    CHECK(read_count == 100 && seen_state == -1);
    CHECK_MEM(seen, 6, "in\nput", 6);
    alias->handle = GetStdHandle(STD_INPUT_HANDLE);
    alias->flags = 0;
    CHECK_EQ(_read(alias->fd, seen, 50), 7);
    CHECK_EQ(read_count, 50);
    alias->handle = 0; /* closing it must not close standard input */
    _close(alias->fd);

    t_section("hooks: files are not detoured");
    reset_seen(-1);
    int fd = open_with("h.txt", "abc", O_RDWR | O_TEXT);
    CHECK_EQ(_read(fd, seen, 10), 3);
    CHECK_EQ(_write(fd, "\n", 1), 1);
    CHECK(read_count == 0 && seen_calls == 0);
    _close(fd);
    t_remove("h.txt");
    tvlk_c_init(saved.hook_read, saved.hook_write, saved.hook_exit, saved.hook_spare);
}

/* In a child: the default hooks on the real standard handles; then
   binary output on descriptor 1, which goes straight to WriteFile. */
static int default_hooks(void *arg) {
    (void)arg;
    char b[16];
    if (_read(0, b, 16) != 5 || !t_memeq(b, "ab\nc\n", 5)) return 1;
    if (_write(1, b, 5) != 5 || _write(2, "e\n", 2) != 2) return 2;
    /* The default read hook's failure looks like end of file. */
    k32_fail_call(K32_ReadFile, 1);
    errno = 0;
    if (_read(0, b, 16) != 0 || errno != 0) return 3;
    tvlk_c_init(__TVLKCFuncs.hook_read, record_write, __TVLKCFuncs.hook_exit, __TVLKCFuncs.hook_spare);
    __find_fd_map(1)->flags = 0;
    return _write(1, "raw\n", 4) == 4 && seen_calls == 0 ? 0 : 4;
}

/* In a child on a pipe: the byte behind a final CR can't be put back. */
static int pipe_lookahead(void *arg) {
    (void)arg;
    char b[16];
    if (_isatty(0)) return 3; /* a pipe is no character device */
    if (_read(0, b, 3) != 3 || !t_memeq(b, "ab\r", 3)) return 1;
    return _read(0, b, 16) == 1 && b[0] == 'y' ? 0 : 2;
}

static void standard_handles(void) {
    static t_child child;
    t_section("default hooks; binary standard output");
    t_run_child(&child, default_hooks, 0, "ab\r\nc\r\n", 7);
    CHECK(child.exited && child.status == 0);
    CHECK_MEM(child.out, child.out_len, "ab\r\nc\r\nraw\n", 11);
    CHECK_MEM(child.err, child.err_len, "e\r\n", 3);

    t_section("look-ahead on a pipe");
    t_run_child_piped(&child, pipe_lookahead, 0, "ab\rxy", 5);
    CHECK_EQ(child.status, 0);
}

int main(void) {
    text_read();
    text_write();
    hook_detour();
    standard_handles();
    return t_finish();
}
