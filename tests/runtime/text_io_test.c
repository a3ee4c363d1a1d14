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

static int open_with(const char *path, const void *data, unsigned len, int oflag) {
    t_write_file(path, data, len);
    return _open(path, oflag);
}

static void text_read(void) {
    t_section("text read");
    char b[32];
    int fd = open_with("r.txt", "ab\r\ncd", 6, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 32), 5);
    CHECK_MEM(b, 5, "ab\ncd", 5);
    _close(fd);

    fd = open_with("r.txt", "a\rb\r\r\n", 6, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 32), 5); /* lone CRs stay */
    CHECK_MEM(b, 5, "a\rb\r\n", 5);
    _close(fd);

    t_section("text read: CR ending the block");
    fd = open_with("r.txt", "ab\r\ncd", 6, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 3), 3);
    CHECK_MEM(b, 3, "ab\n", 3);
    CHECK_EQ(_lseek(fd, 0, 1), 4); /* behind the LF */
    CHECK_EQ(_read(fd, b, 32), 2);
    CHECK_MEM(b, 2, "cd", 2);
    _close(fd);

    fd = open_with("r.txt", "ab\rxy", 5, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 3), 3);
    CHECK_MEM(b, 3, "ab\r", 3);
    CHECK_EQ(_lseek(fd, 0, 1), 3); /* the look-ahead byte went back */
    CHECK_EQ(_read(fd, b, 32), 2);
    CHECK_MEM(b, 2, "xy", 2);
    _close(fd);

    fd = open_with("r.txt", "ab\r", 3, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 32), 3); /* nothing behind it: the CR stays */
    CHECK_MEM(b, 3, "ab\r", 3);
    CHECK_EQ(_read(fd, b, 32), 0);
    _close(fd);

    /* A failing look-ahead only means the CR stays a CR. */
    fd = open_with("r.txt", "ab\r\n", 4, O_RDONLY | O_TEXT);
    k32_fail_call(K32_ReadFile, 2);
    errno = 0;
    CHECK_EQ(_read(fd, b, 3), 3);
    CHECK_MEM(b, 3, "ab\r", 3);
    CHECK_EQ(errno, 0);
    _close(fd);

    t_section("text read: Ctrl-Z");
    fd = open_with("r.txt", "ab\x1a" "cd\r\nef", 9, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 5), 2);
    CHECK_MEM(b, 2, "ab", 2);
    CHECK_EQ(_read(fd, b, 32), 3); /* goes on behind the block */
    CHECK_MEM(b, 3, "\nef", 3);
    _close(fd);
    fd = open_with("r.txt", "\x1a" "abc", 4, O_RDONLY | O_TEXT);
    CHECK_EQ(_read(fd, b, 32), 0);
    _close(fd);

    t_section("binary read");
    fd = open_with("r.txt", "a\r\n\x1a" "b", 5, O_RDONLY | O_BINARY);
    CHECK_EQ(_read(fd, b, 32), 5);
    CHECK_MEM(b, 5, "a\r\n\x1a" "b", 5);
    _close(fd);
    /* Write-only translation leaves input raw. */
    fd = open_with("r.txt", "a\r\n", 3, O_RDWR);
    __set_write_text_flag(fd);
    CHECK_EQ(__orv_read(fd, b, 32), 3);
    CHECK_MEM(b, 3, "a\r\n", 3);
    _close(fd);
    t_remove("r.txt");
}

/* What one traced write of `len` bytes did: the WriteFile counts. */
static unsigned traced_write(int fd, const void *data, unsigned len, int *result,
                             unsigned long *counts, unsigned max) {
    K32TraceEntry log[16];
    k32_trace_start(log, 16);
    *result = _write(fd, data, len);
    unsigned n = k32_trace_stop(), w = 0;
    for (unsigned i = 0; i < n && i < 16; ++i)
        if (log[i].op == K32_WriteFile && w < max) counts[w++] = log[i].count;
    return w;
}

static void text_write(void) {
    static char data[700], file[1400];
    unsigned long counts[8];
    int r;
    t_section("text write");
    int fd = open_with("w.txt", "", 0, O_WRONLY | O_TRUNC | O_TEXT);
    CHECK_EQ(_write(fd, "a\nb\r\n", 5), 5);
    CHECK_EQ(t_read_file("w.txt", file, sizeof file), 7);
    CHECK_MEM(file, 7, "a\r\nb\r\r\n", 7); /* a CR in the data is not special */

    t_section("text write: chunks");
    _lseek(fd, 0, 0);
    t_memset(data, '\n', 300);
    CHECK_EQ(traced_write(fd, data, 300, &r, counts, 8), 3);
    CHECK_EQ(r, 300);
    CHECK_EQ(counts[0], 256);
    CHECK_EQ(counts[1], 256);
    CHECK_EQ(counts[2], 88);
    CHECK_EQ(t_read_file("w.txt", file, sizeof file), 600);
    CHECK_MEM(file + 596, 4, "\r\n\r\n", 4);

    t_memset(data, 'x', 600);
    CHECK_EQ(traced_write(fd, data, 600, &r, counts, 8), 3);
    CHECK_EQ(r, 600);
    CHECK_EQ(counts[0], 255);
    CHECK_EQ(counts[1], 255);
    CHECK_EQ(counts[2], 90);
    /* An LF that falls on byte 255 brings its CR into the same chunk. */
    data[254] = '\n';
    CHECK_EQ(traced_write(fd, data, 255, &r, counts, 8), 1);
    CHECK_EQ(counts[0], 256);
    CHECK_EQ(r, 255);
    data[254] = 'x';
    data[253] = '\n';
    CHECK_EQ(traced_write(fd, data, 256, &r, counts, 8), 2);
    CHECK_EQ(counts[0], 255);
    CHECK_EQ(counts[1], 2);
    CHECK_EQ(r, 256);
    data[253] = 'x';

    CHECK_EQ(traced_write(fd, data, 0, &r, counts, 8), 0); /* nothing written */
    CHECK_EQ(r, 0);

    t_section("text write: short and failing writes");
    k32_short_write(2, 10);
    CHECK_EQ(traced_write(fd, data, 600, &r, counts, 8), 2); /* stops there */
    CHECK_EQ(r, 265);
    k32_short_write(1, 3);
    CHECK_EQ(_write(fd, "ab\ncd", 5), 2); /* the chunk's CR is taken off */
    k32_fail_call(K32_WriteFile, 2);
    FAILS(_write(fd, data, 600), EIO); /* whatever the first chunk wrote */
    _close(fd);

    t_section("binary write");
    fd = open_with("w.txt", "", 0, O_WRONLY | O_TRUNC);
    CHECK_EQ(traced_write(fd, "a\nb", 3, &r, counts, 8), 1);
    CHECK_EQ(r, 3);
    CHECK_EQ(traced_write(fd, "", 0, &r, counts, 8), 1); /* one write of 0 */
    CHECK_EQ(counts[0], 0);
    CHECK_EQ(r, 0);
    k32_short_write(1, 1);
    CHECK_EQ(_write(fd, "xyz", 3), 1);
    __set_write_text_flag(fd);
    CHECK_EQ(_write(fd, "\n", 1), 1);
    CHECK_EQ(t_read_file("w.txt", file, sizeof file), 6);
    CHECK_MEM(file, 6, "a\nbx\r\n", 6);
    _close(fd);

    t_section("append");
    fd = open_with("w.txt", "12345", 5, O_WRONLY | O_APPEND);
    _lseek(fd, 0, 0);
    CHECK_EQ(_write(fd, "ab", 2), 2);
    _lseek(fd, 1, 0);
    CHECK_EQ(_write(fd, "", 0), 0);
    CHECK_EQ(_lseek(fd, 0, 1), 7); /* the seek happens even for nothing */
    _close(fd);
    fd = _open("w.txt", O_WRONLY | O_APPEND | O_TEXT);
    _lseek(fd, 0, 0);
    CHECK_EQ(_write(fd, "\n", 1), 1);
    CHECK_EQ(t_read_file("w.txt", file, sizeof file), 9);
    CHECK_MEM(file, 9, "12345ab\r\n", 9);
    _close(fd);
    t_remove("w.txt");
}

/* A host's hooks that record what they were given. */
static char seen[1024];
static unsigned seen_len, seen_calls;
static void *seen_handle;
static int seen_state, write_answer = -1;

static int record_write(const void *buf, unsigned *count, void *handle, int *state) {
    for (unsigned i = 0; i < *count && seen_len < sizeof seen; ++i)
        seen[seen_len++] = ((const char *)buf)[i];
    ++seen_calls;
    seen_handle = handle;
    seen_state = *state;
    return write_answer < 0 ? (int)*count : write_answer;
}

static unsigned read_count;
static int canned_read(void *buf, unsigned count, int *state) {
    read_count = count;
    seen_state = *state;
    const char *text = "in\r\nput";
    for (unsigned i = 0; i < 7; ++i) ((char *)buf)[i] = text[i];
    return 7;
}

static void reset_seen(void) {
    seen_len = seen_calls = 0;
    seen_handle = 0;
    seen_state = 0;
    write_answer = -1;
}

static void hook_detour(void) {
    struct __tvlkc_funcs saved = __TVLKCFuncs;
    tvlk_c_init(canned_read, record_write, saved.hook_exit, saved.hook_spare);

    t_section("hooks: console output");
    reset_seen();
    CHECK_EQ(_write(1, "hi\n", 3), 3);
    CHECK_MEM(seen, seen_len, "hi\r\n", 4);
    CHECK(seen_handle == GetStdHandle(STD_OUTPUT_HANDLE) && seen_state == -1);
    reset_seen();
    static char many[300];
    t_memset(many, '\n', 300);
    CHECK_EQ(_write(2, many, 300), 300);
    CHECK_EQ(seen_calls, 3);
    CHECK(seen_handle == GetStdHandle(STD_ERROR_HANDLE));
    reset_seen();
    write_answer = 0;
    FAILS(_write(1, "x", 1), EIO);
    reset_seen();
    write_answer = 1; /* a short hook write ends the call */
    CHECK_EQ(_write(1, many, 300), 1 - 128);
    CHECK_EQ(seen_calls, 1);

    /* Any descriptor on the standard handle goes the same way. */
    reset_seen();
    struct fd_map *alias = __new_fd_map();
    alias->handle = GetStdHandle(STD_OUTPUT_HANDLE);
    alias->flags = FD_WRITE_TEXT;
    CHECK_EQ(_write(alias->fd, "a\n", 2), 2);
    CHECK_MEM(seen, seen_len, "a\r\n", 3);

    t_section("hooks: console input");
    CHECK_EQ(_read(0, seen, 100), 6);
    CHECK_EQ(read_count, 100);
    CHECK_EQ(seen_state, -1);
    CHECK_MEM(seen, 6, "in\nput", 6);
    alias->handle = GetStdHandle(STD_INPUT_HANDLE);
    alias->flags = 0;
    CHECK_EQ(_read(alias->fd, seen, 50), 7);
    CHECK_EQ(read_count, 50);
    alias->handle = 0; /* closing it must not close standard input */
    _close(alias->fd);

    t_section("hooks: files are not detoured");
    reset_seen();
    read_count = 0;
    int fd = open_with("h.txt", "abc", 3, O_RDWR | O_TEXT);
    CHECK_EQ(_read(fd, seen, 10), 3);
    CHECK_EQ(read_count, 0);
    CHECK_EQ(_write(fd, "\n", 1), 1);
    CHECK_EQ(seen_calls, 0);
    _close(fd);
    t_remove("h.txt");

    tvlk_c_init(saved.hook_read, saved.hook_write, saved.hook_exit, saved.hook_spare);
}

/* In a child: binary output on descriptor 1 goes straight to WriteFile. */
static int binary_stdout(void *arg) {
    (void)arg;
    struct __tvlkc_funcs saved = __TVLKCFuncs;
    tvlk_c_init(saved.hook_read, record_write, saved.hook_exit, saved.hook_spare);
    __find_fd_map(1)->flags = 0;
    int r = _write(1, "raw\n", 4);
    return seen_calls == 0 && r == 4 ? 0 : 1;
}

/* In a child: the default hooks on the real standard handles. */
static int default_hooks(void *arg) {
    (void)arg;
    char b[16];
    int n = _read(0, b, 16);
    if (n != 5 || !t_memeq(b, "ab\nc\n", 5)) return 1;
    if (_write(1, b, 5) != 5) return 2;
    if (_write(2, "e\n", 2) != 2) return 3;
    /* The default read hook's failure looks like end of file. */
    k32_fail_call(K32_ReadFile, 1);
    errno = 0;
    if (_read(0, b, 16) != 0 || errno != 0) return 4;
    return 0;
}

/* In a child on a pipe: the byte behind a final CR can't be put back. */
static int pipe_lookahead(void *arg) {
    (void)arg;
    char b[16];
    if (_isatty(0)) return 3; /* a pipe is no character device */
    if (_read(0, b, 3) != 3 || !t_memeq(b, "ab\r", 3)) return 1;
    int n = _read(0, b, 16);
    if (n != 1 || b[0] != 'y') return 2;
    return 0;
}

static void standard_handles(void) {
    static t_child child;
    t_section("binary standard output");
    t_run_child(&child, binary_stdout, 0, "", 0);
    CHECK_EQ(child.status, 0);
    CHECK_MEM(child.out, child.out_len, "raw\n", 4);

    t_section("default hooks");
    t_run_child(&child, default_hooks, 0, "ab\r\nc\r\n", 7);
    CHECK_EQ(child.exited, 1);
    CHECK_EQ(child.status, 0);
    CHECK_MEM(child.out, child.out_len, "ab\r\nc\r\n", 7);
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
