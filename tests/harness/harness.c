#include "harness.h"

enum {
    SYS_exit_group = 252, SYS_fork = 2, SYS_read = 3, SYS_write = 4,
    SYS_open = 5, SYS_close = 6, SYS_waitpid = 7, SYS_unlink = 10,
    SYS_lseek = 19, SYS_pipe = 42, SYS_dup2 = 63, SYS_access = 33,
    SYS_memfd_create = 356
};

static long sys3(long nr, long a, long b, long c) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(nr), "b"(a), "c"(b), "d"(c) : "memory");
    return r;
}

static int passed, failed;
static const char *section = "";

unsigned t_strlen(const char *s) {
    unsigned n = 0;
    while (s[n]) ++n;
    return n;
}

int t_memeq(const void *a, const void *b, unsigned n) {
    const unsigned char *x = (const unsigned char *)a, *y = (const unsigned char *)b;
    for (unsigned i = 0; i < n; ++i)
        if (x[i] != y[i]) return 0;
    return 1;
}

void t_memset(void *p, int byte, unsigned n) {
    unsigned char *q = (unsigned char *)p;
    for (unsigned i = 0; i < n; ++i) q[i] = (unsigned char)byte;
}

static void put(const char *s, unsigned n) {
    while (n > 0) {
        long r = sys3(SYS_write, 2, (long)s, (long)n);
        if (r <= 0) return;
        s += r;
        n -= (unsigned)r;
    }
}

static void puts_raw(const char *s) { put(s, t_strlen(s)); }

static void put_dec(long long v) {
    char buf[24];
    int i = 23;
    unsigned long long u = v < 0 ? 0ULL - (unsigned long long)v : (unsigned long long)v;
    buf[i] = 0;
    do {
        buf[--i] = (char)('0' + u % 10);
        u /= 10;
    } while (u);
    if (v < 0) buf[--i] = '-';
    puts_raw(buf + i);
}

static void put_hex(unsigned long long v) {
    char buf[20];
    int i = 19;
    buf[i] = 0;
    do {
        buf[--i] = "0123456789abcdef"[v & 15];
        v >>= 4;
    } while (v);
    buf[--i] = 'x';
    buf[--i] = '0';
    puts_raw(buf + i);
}

/* Shows bytes with control characters escaped, at most 200 of them. */
static void put_escaped(const void *p, unsigned n) {
    const unsigned char *s = (const unsigned char *)p;
    puts_raw("\"");
    for (unsigned i = 0; i < n && i < 200; ++i) {
        unsigned char c = s[i];
        if (c == '\n') puts_raw("\\n");
        else if (c == '\r') puts_raw("\\r");
        else if (c == '\t') puts_raw("\\t");
        else if (c < 32 || c >= 127 || c == '"' || c == '\\') {
            char e[5] = {'\\', 'x', "0123456789abcdef"[c >> 4], "0123456789abcdef"[c & 15], 0};
            puts_raw(e);
        } else put((const char *)&s[i], 1);
    }
    puts_raw(n > 200 ? "\"..." : "\"");
}

static void fail_head(const char *what, const char *file, int line) {
    ++failed;
    puts_raw("FAIL ");
    puts_raw(file);
    puts_raw(":");
    put_dec(line);
    if (section[0]) {
        puts_raw(" [");
        puts_raw(section);
        puts_raw("]");
    }
    puts_raw(": ");
    puts_raw(what);
}

void t_section(const char *name) { section = name; }

void t_note(const char *text) {
    puts_raw(text);
    puts_raw("\n");
}

void t_check(int ok, const char *what, const char *file, int line) {
    if (ok) {
        ++passed;
        return;
    }
    fail_head(what, file, line);
    puts_raw("\n");
}

void t_check_int(long long got, long long want, const char *what, const char *file, int line) {
    if (got == want) {
        ++passed;
        return;
    }
    fail_head(what, file, line);
    puts_raw("\n    got ");
    put_dec(got);
    puts_raw(", want ");
    put_dec(want);
    puts_raw("\n");
}

void t_check_hex(unsigned long long got, unsigned long long want, const char *what,
                 const char *file, int line) {
    if (got == want) {
        ++passed;
        return;
    }
    fail_head(what, file, line);
    puts_raw("\n    got ");
    put_hex(got);
    puts_raw(", want ");
    put_hex(want);
    puts_raw("\n");
}

void t_check_mem(const void *got, unsigned got_len, const void *want, unsigned want_len,
                 const char *what, const char *file, int line) {
    if (got_len == want_len && t_memeq(got, want, got_len)) {
        ++passed;
        return;
    }
    fail_head(what, file, line);
    puts_raw("\n    got  ");
    put_escaped(got, got_len);
    puts_raw(" (");
    put_dec(got_len);
    puts_raw(" bytes)\n    want ");
    put_escaped(want, want_len);
    puts_raw(" (");
    put_dec(want_len);
    puts_raw(" bytes)\n");
}

void t_check_str(const char *got, const char *want, const char *what, const char *file, int line) {
    if (got == 0 || want == 0) {
        t_check(got == want, what, file, line);
        return;
    }
    t_check_mem(got, t_strlen(got), want, t_strlen(want), what, file, line);
}

int t_finish(void) {
    put_dec(passed);
    puts_raw(" passed, ");
    put_dec(failed);
    puts_raw(" failed\n");
    return failed ? 1 : 0;
}

/* Child processes. */

static int memfd(void) { return (int)sys3(SYS_memfd_create, (long)"t_child", 0, 0); }

static unsigned slurp(int fd, char *buf, unsigned cap) {
    unsigned n = 0;
    sys3(SYS_lseek, fd, 0, 0);
    for (;;) {
        long r = sys3(SYS_read, fd, (long)(buf + n), (long)(cap - n));
        if (r <= 0 || (n += (unsigned)r) == cap) break;
    }
    sys3(SYS_close, fd, 0, 0);
    return n;
}

static void write_all(int fd, const void *data, unsigned len) {
    const char *p = (const char *)data;
    while (len > 0) {
        long r = sys3(SYS_write, fd, (long)p, (long)len);
        if (r <= 0) return;
        p += r;
        len -= (unsigned)r;
    }
}

static void run(t_child *c, int (*fn)(void *), void *arg, int in_fd) {
    int out = memfd(), err = memfd();
    long pid = sys3(SYS_fork, 0, 0, 0);
    if (pid == 0) {
        sys3(SYS_dup2, in_fd, 0, 0);
        sys3(SYS_dup2, out, 1, 0);
        sys3(SYS_dup2, err, 2, 0);
        int status = fn(arg);
        sys3(SYS_exit_group, status, 0, 0);
    }
    sys3(SYS_close, in_fd, 0, 0);
    int status = 0;
    sys3(SYS_waitpid, pid, (long)&status, 0);
    c->exited = (status & 0x7F) == 0;
    c->status = c->exited ? (status >> 8) & 0xFF : status & 0x7F;
    c->out_len = slurp(out, c->out, sizeof c->out);
    c->err_len = slurp(err, c->err, sizeof c->err);
}

void t_run_child(t_child *c, int (*fn)(void *), void *arg, const void *input, unsigned input_len) {
    int in = memfd();
    write_all(in, input, input_len);
    sys3(SYS_lseek, in, 0, 0);
    run(c, fn, arg, in);
}

void t_run_child_piped(t_child *c, int (*fn)(void *), void *arg, const void *input,
                       unsigned input_len) {
    int fds[2];
    sys3(SYS_pipe, (long)fds, 0, 0);
    write_all(fds[1], input, input_len); /* small inputs fit in the pipe */
    sys3(SYS_close, fds[1], 0, 0);
    run(c, fn, arg, fds[0]);
}

int t_read_file(const char *path, void *buffer, unsigned capacity) {
    long fd = sys3(SYS_open, (long)path, 0, 0);
    if (fd < 0) return -1;
    unsigned n = 0;
    for (;;) {
        long r = sys3(SYS_read, fd, (long)((char *)buffer + n), (long)(capacity - n));
        if (r <= 0 || (n += (unsigned)r) == capacity) break;
    }
    sys3(SYS_close, fd, 0, 0);
    return (int)n;
}

int t_write_file(const char *path, const void *data, unsigned length) {
    long fd = sys3(SYS_open, (long)path, 01 | 0100 | 01000, 0644);
    if (fd < 0) return -1;
    write_all((int)fd, data, length);
    sys3(SYS_close, fd, 0, 0);
    return 0;
}

int t_exists(const char *path) { return sys3(SYS_access, (long)path, 0, 0) == 0; }

void t_remove(const char *path) { sys3(SYS_unlink, (long)path, 0, 0); }
