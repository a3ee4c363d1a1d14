/* FILE streams: the records, opening, the buffer rules and the calls they
   make of the descriptor layer, positions, and the failure answers. */
#include <errno.h>
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <string.h>

#include "harness.h"
#include "platform/k32_faults.h"

/* A call that answers `want` and leaves errno at `code`. */
#define ANSWERS(call, want, code) (errno = 0, CHECK_EQ((call), (want)), CHECK_EQ(errno, (code)))

static K32TraceEntry trace[64];

/* Ends the trace begun with trace_on; answers the WriteFile calls in it. */
static void trace_on(void) { k32_trace_start(trace, 64); }
static int writes(void) {
    unsigned n = k32_trace_stop();
    int w = 0;
    for (unsigned i = 0; i < n && i < 64; ++i) w += trace[i].op == K32_WriteFile;
    return w;
}

static FILE *reopen_with(const char *text, const char *mode) {
    t_write_file("f.txt", text, t_strlen(text));
    return fopen("f.txt", mode);
}

static void initial_records(void) {
    t_section("initial records");
    CHECK(sizeof(FILE) == 24 && stdin == _orviob);
    CHECK_HEX(stdin->_flag, 0x89);
    CHECK_HEX(stdout->_flag, 0x8A);
    CHECK_HEX(stderr->_flag, 0x0E);
    CHECK(stdin->_bufsiz == 512 && stderr->_bufsiz == 1 && stdin->_base != stdout->_base);
}

static void modes(void) {
    t_section("modes");
    static const struct { const char *mode; int flag; } good[] = {
        {"r", 0x401}, {"w", 0x402}, {"a", 0x402}, {"rb+", 0x500}, {"r+b", 0x500}, {"wbb", 0x402}, {"a+", 0x500}};
    t_write_file("m.txt", "x", 1);
    for (unsigned i = 0; i < sizeof good / sizeof good[0]; ++i) {
        FILE *f = fopen("m.txt", good[i].mode);
        t_section(good[i].mode);
        CHECK_HEX(f ? f->_flag : 0, good[i].flag);
        CHECK(f && f->_bufsiz == 1024 && fclose(f) == 0);
    }
    t_section("modes refused");
    static const char *const bad[] = {"", "rt", "x", "r+x", "b"};
    for (unsigned i = 0; i < sizeof bad / sizeof bad[0]; ++i) {
        errno = 0;
        CHECK(fopen("m.txt", bad[i]) == NULL);
        CHECK_EQ(errno, EINVAL);
    }
    errno = 0;
    CHECK(fopen("missing.txt", "r") == NULL && errno == EACCES);
    FILE *dev = fopen("/dev/null", "w");
    CHECK(dev && (dev->_flag & _IONBF) && dev->_bufsiz == 1);
    fclose(dev);
    errno = 0;
    CHECK(fdopen(0x7FFFFFFF, "r") == NULL && errno == EDOM);
    errno = 0;
    CHECK(freopen("m.txt", "r", (FILE *)&errno) == NULL && errno == EDOM);
}

/* A full buffer goes out in one write, only when its last byte is stored. */
static void buffer_rules(void) {
    t_section("buffer rules");
    FILE *f = fopen("w.bin", "wb");
    trace_on();
    for (int i = 0; i < 1023; ++i) putc('a' + i % 26, f);
    CHECK_EQ(writes(), 0);
    trace_on();
    putc('!', f);
    CHECK(writes() == 1 && trace[0].count == 1024);
    putc('x', f);
    CHECK_EQ(f->_cnt, 1022);
    CHECK_EQ(fclose(f), 0);
    char buf[2048];
    CHECK_EQ(t_read_file("w.bin", buf, sizeof buf), 1025);

    f = fopen("u.bin", "wb");
    CHECK_EQ(setvbuf(f, NULL, _IONBF, 0), 0);
    trace_on();
    fputs("abc", f);
    CHECK_EQ(writes(), 3);
    CHECK_EQ(setvbuf(f, NULL, _IOLBF, 64), 0);
    trace_on();
    fputs("one\ntwo", f);
    CHECK(writes() == 1 && trace[0].count == 4);
    CHECK_EQ(setvbuf(f, NULL, 0, 64), -1); /* output pending */
    CHECK_EQ(fflush(f), 0);
    CHECK_EQ(setvbuf(f, NULL, 0, 65536), 0);
    CHECK_EQ(setvbuf(f, NULL, 0, 65537), -1);
    CHECK_EQ(setvbuf(f, NULL, 1, 64), -1);
    setbuf(f, NULL);
    CHECK(f->_flag & _IONBF);
    static char mine[BUFSIZ];
    setbuf(f, mine);
    CHECK(f->_base == (unsigned char *)mine && f->_bufsiz == 1024 && (f->_flag & _IOUSERBUF));
    fclose(f);
    CHECK_EQ(t_read_file("u.bin", buf, sizeof buf), 10);
}

static void block_and_line_io(void) {
    t_section("block and line operations");
    FILE *f = fopen("b.bin", "wb");
    CHECK_EQ(fwrite("xyz", 0, 5, f), 5);
    CHECK_EQ(fwrite("abcdefg", 2, 3, f), 3);
    CHECK_EQ(_putw(0x64636261, f), 0x64636261);
    fclose(f);
    f = fopen("b.bin", "rb");
    char items[16] = {0};
    CHECK_EQ(fread(items, 4, 3, f), 2); /* 10 bytes: the partial item is consumed */
    CHECK_MEM(items, 10, "abcdefabcd", 10);
    CHECK(feof(f) == 16);
    fclose(f);

    f = reopen_with("ab\r\ncd\r\nlast", "r");
    char line[16];
    memset(line, '#', sizeof line);
    CHECK(fgets(line, 1, f) == line && line[0] == '#');
    CHECK(fgets(line, 3, f) == line && strcmp(line, "ab") == 0);
    CHECK(fgets(line, sizeof line, f) == line && strcmp(line, "\n") == 0);
    CHECK_EQ(ftell(f), 4); /* the CR LF counts for two */
    CHECK(fgets(line, sizeof line, f) && fgets(line, sizeof line, f));
    CHECK_STR(line, "last");
    CHECK(fgets(line, sizeof line, f) == NULL);
    CHECK_STR(line, "last");
    fclose(f);
}

/* Block and line operations move what the buffer holds as runs: they must
   make the very descriptor calls, with the same counts, that the same bytes
   make through putc and getc one by one, whatever the buffer. */
enum { DATA = 5000, LOG = 6000 };
static unsigned char data[DATA];
static K32TraceEntry log_a[LOG], log_b[LOG];
static const unsigned pieces[] = {1, 3, 700, 1, 1500, 57, 1024, 9, 2048, 4000};

static int same_calls(unsigned na, unsigned nb) {
    if (na != nb || na > LOG) return 0;
    for (unsigned i = 0; i < na; ++i)
        if (log_a[i].op != log_b[i].op || log_a[i].count != log_b[i].count || log_a[i].result != log_b[i].result)
            return 0;
    return 1;
}

/* Buffering 0: as opened; 1: a 7-byte buffer of the caller's; 2: line
   buffered in 64 bytes; 3: unbuffered. */
static FILE *open_buffered(const char *path, const char *mode, int how) {
    static char small[7];
    FILE *f = fopen(path, mode);
    if (how == 1) setvbuf(f, small, _IOFBF, sizeof small);
    if (how == 2) setvbuf(f, NULL, _IOLBF, 64);
    if (how == 3) setvbuf(f, NULL, _IONBF, 0);
    return f;
}

static void put_blocks(FILE *f, int with_fputs) {
    unsigned at = 0;
    for (unsigned i = 0; at < DATA; ++i) {
        unsigned n = pieces[i % 10] < DATA - at ? pieces[i % 10] : DATA - at;
        if (with_fputs) {
            char piece[4001];
            memcpy(piece, data + at, n);
            piece[n] = 0;
            fputs(piece, f);
        } else {
            fwrite(data + at, 1, n, f);
        }
        at += n;
    }
}

static unsigned get_blocks(FILE *f, unsigned char *to, int with_fgets) {
    unsigned at = 0;
    for (unsigned i = 0;; ++i) {
        unsigned n = pieces[i % 10];
        if (with_fgets) {
            if (!fgets((char *)to + at, (int)n + 1, f)) return at;
            at += strlen((char *)to + at);
        } else {
            unsigned got = fread(to + at, 1, n, f);
            at += got;
            if (got < n) return at;
        }
    }
}

static void runs_make_byte_calls(void) {
    t_section("block operations make the byte path's calls");
    unsigned r = 1;
    for (unsigned i = 0; i < DATA; ++i) {
        r = r * 1103515245u + 12345u;
        data[i] = (r >> 16) % 9 == 0 ? '\n' : 'A' + (r >> 16) % 26;
    }
    static unsigned char back[DATA + 8], want[DATA + 8];
    int calls = 1, bytes = 1;
    for (int how = 0; how < 4; ++how)
        for (int text = 0; text < 2; ++text)
            for (int line_ops = 0; line_ops < 2; ++line_ops) {
                FILE *f = open_buffered("ra.txt", text ? "w" : "wb", how);
                k32_trace_start(log_a, LOG);
                for (unsigned i = 0; i < DATA; ++i) putc(data[i], f);
                fclose(f);
                unsigned na = k32_trace_stop();
                f = open_buffered("rb.txt", text ? "w" : "wb", how);
                k32_trace_start(log_b, LOG);
                put_blocks(f, line_ops);
                fclose(f);
                calls &= same_calls(na, k32_trace_stop());
                int la = t_read_file("ra.txt", want, sizeof want), lb = t_read_file("rb.txt", back, sizeof back);
                bytes &= la == lb && t_memeq(want, back, (unsigned)la);

                f = open_buffered("ra.txt", text ? "r" : "rb", how);
                k32_trace_start(log_a, LOG);
                unsigned n = 0;
                for (int c; (c = getc(f)) != EOF;) want[n++] = (unsigned char)c;
                fclose(f);
                na = k32_trace_stop();
                f = open_buffered("ra.txt", text ? "r" : "rb", how);
                k32_trace_start(log_b, LOG);
                unsigned m = get_blocks(f, back, line_ops);
                fclose(f);
                calls &= same_calls(na, k32_trace_stop());
                bytes &= n == DATA && m == n && t_memeq(want, back, n) && t_memeq(want, data, n);
            }
    CHECK(calls);
    CHECK(bytes);
}

static void positions_and_pushback(void) {
    t_section("positions and push-back");
    FILE *f = reopen_with("a\r\nb\r\nc\r\n", "r");
    CHECK(getc(f) == 'a' && ftell(f) == 1);
    CHECK(getc(f) == '\n' && getc(f) == 'b');
    CHECK_EQ(ftell(f), 4); /* unread LFs stood as CR LF on the file */
    CHECK(getc(f) == '\n' && fseek(f, 0, SEEK_SET) == 0);
    CHECK_EQ(ungetc('z', f), 'z');
    CHECK(f->_cnt == 1 && f->_ptr == f->_base + f->_bufsiz - 1);
    CHECK(getc(f) == 'z' && ungetc(EOF, f) == EOF);
    ANSWERS(fseek(f, 0, 3), -1, 0);
    while (getc(f) != EOF) {}
    CHECK(feof(f));
    CHECK(ungetc('q', f) == 'q' && !feof(f));
    fclose(f);

    /* Line buffering keeps _cnt at 0, so each step reaches _filbuf or
       _flsbuf, which see the direction the stream last went. */
    f = fopen("p.txt", "w+");
    setvbuf(f, NULL, _IOLBF, 64);
    fputs("h", f);
    ANSWERS(getc(f), EOF, 0); /* reading a writing stream */
    CHECK_EQ(ferror(f), 32);
    CHECK(rewind(f) == 0 && ferror(f));
    clearerr(f);
    CHECK_EQ(getc(f), 'h');
    ANSWERS(putc('x', f), EOF, EBADF); /* read data in hand */
    fclose(f);
}

static void failures(void) {
    t_section("failures");
    FILE *f = fopen("e.bin", "wb");
    fputs("pending", f);
    k32_fail_call(K32_WriteFile, 1);
    CHECK_EQ(fflush(f), -1);
    CHECK(!ferror(f)); /* a failed flush sets no flag, and drops the data */
    CHECK_EQ(fflush(f), 0);
    setvbuf(f, NULL, _IONBF, 0);
    k32_fail_call(K32_WriteFile, 1);
    ANSWERS(putc('x', f), EOF, EIO);
    CHECK(ferror(f));
    fclose(f);
    char buf[16];
    CHECK_EQ(t_read_file("e.bin", buf, sizeof buf), 1); /* the byte that failed goes out at fclose */
    ANSWERS(fclose(f), -1, EBADF);
    CHECK_EQ(fflush(f), -1);

    /* A failed write of a full buffer leaves its bytes there: the next
       store has no room and fails, rather than store past the buffer, and
       a flush writes the bytes that were held. */
    static char area[12];
    t_memset(area, '#', sizeof area);
    f = fopen("e.bin", "wb");
    setvbuf(f, area, _IOFBF, 8);
    k32_fail_call(K32_WriteFile, 1);
    for (int i = 0; i < 7; ++i) putc('a' + i, f);
    CHECK_EQ(putc('h', f), EOF);
    ANSWERS(putc('i', f), EOF, EIO);
    CHECK_MEM(area + 8, 4, "####", 4);
    CHECK_EQ(fflush(f), 0);
    clearerr(f);
    CHECK_EQ(putc('j', f), 'j');
    fclose(f);
    CHECK_MEM(buf, (unsigned)t_read_file("e.bin", buf, sizeof buf), "abcdefghj", 9);

    f = reopen_with("data", "r");
    k32_fail_call(K32_ReadFile, 1);
    CHECK_EQ(getc(f), EOF);
    CHECK(ferror(f) && feof(f));
    fclose(f);

    FILE *all[FOPEN_MAX];
    int opened = 0;
    while ((all[opened] = fopen("m.txt", "r")) != NULL) ++opened;
    CHECK(errno == EMFILE && opened == FOPEN_MAX - 3);
    while (opened > 0) fclose(all[--opened]);
    CHECK_EQ(fclose(stdin), 0);
    f = fopen("m.txt", "r");
    CHECK(f == stdin);
}

int main(void) {
    initial_records();
    modes();
    buffer_rules();
    block_and_line_io();
    runs_make_byte_calls();
    positions_and_pushback();
    failures();
    return t_finish();
}
