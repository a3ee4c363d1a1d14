/*
 * What the foundation gives a program: descriptors with text translation,
 * a host hook that sees console output, the heap, non-local jumps, and the
 * floating-point state that every program starts with.
 */
#include <fcntl.h>
#include <io.h>
#include <setjmp.h>
#include <stdlib.h>
#include <tvlkc.h>

/* Until formatted output exists, text is put together by hand. */
static void say(const char *s) {
    unsigned n = 0;
    while (s[n]) ++n;
    _write(1, s, n);
}

static void say_hex(const char *label, unsigned v, int digits) {
    char buf[16];
    int i = 0;
    say(label);
    buf[i++] = '0';
    buf[i++] = 'x';
    while (digits--) buf[i++] = "0123456789ABCDEF"[(v >> (4 * digits)) & 15];
    buf[i++] = '\n';
    _write(1, buf, (unsigned)i);
}

static void say_num(const char *label, long v) {
    char buf[16];
    int i = 15;
    buf[i] = '\n';
    unsigned long u = v < 0 ? 0UL - (unsigned long)v : (unsigned long)v;
    do buf[--i] = (char)('0' + u % 10); while (u /= 10);
    if (v < 0) buf[--i] = '-';
    say(label);
    _write(1, buf + i, (unsigned)(16 - i));
}

/* A host hook that marks every chunk of console output it passes on. */
static __hook_write_t plain_write;
static int marking_write(const void *buf, unsigned *count, void *handle, int *state) {
    unsigned mark = 2;
    plain_write("| ", &mark, handle, state);
    return plain_write(buf, count, handle, state);
}

static jmp_buf restart;

__attribute__((noreturn)) static void deep(int level) {
    if (level < 3) deep(level + 1);
    else longjmp(restart, level);
}

int main(void) {
    unsigned short cw;
    unsigned mxcsr;
    __asm__ volatile("fnstcw %0" : "=m"(cw));
    __asm__ volatile("stmxcsr %0" : "=m"(mxcsr));
    say("Floating-point state at main:\n");
    say_hex("  x87 control word ", cw, 4);
    say_hex("  MXCSR            ", mxcsr, 4);

    say("Descriptors:\n");
    int fd = _open("demo.txt", O_WRONLY | O_CREAT | O_TRUNC | O_TEXT);
    say_num("  _open gave descriptor ", fd);
    say_num("  text write of 2 lines, count returned ", _write(fd, "one\ntwo\n", 8));
    say_num("  file size with CR LF line ends ", _lseek(fd, 0, 2));
    _close(fd);
    fd = _open("demo.txt", O_RDONLY | O_TEXT);
    char back[32];
    say_num("  text read gives back bytes ", _read(fd, back, sizeof back));
    _close(fd);
    fd = _open("demo.txt", O_RDONLY | O_BINARY);
    say_num("  binary read gives back bytes ", _read(fd, back, sizeof back));
    _close(fd);
    _unlink("demo.txt");

    say("Heap:\n");
    unsigned *table = calloc(1000, sizeof *table);
    long sum = 0;
    for (int i = 0; i < 1000; ++i) sum += table[i];
    say_num("  calloc(1000, 4) zero-filled, sum ", sum);
    table = realloc(table, 1000000 * sizeof *table);
    table[999999] = 42;
    say_num("  realloc to 4 MB, last entry ", table[999999]);
    free(table);
    volatile size_t big = 0x10000;
    say(calloc(big, big) == 0 ? "  calloc(0x10000, 0x10000) refused: the size overflows\n" : "  ?\n");

    say("Non-local jump:\n");
    int value = setjmp(restart);
    if (value == 0) deep(0);
    say_num("  came back from depth ", value);

    say("A host hook on console output:\n");
    plain_write = __TVLKCFuncs.hook_write;
    tvlk_c_init(__TVLKCFuncs.hook_read, marking_write, __TVLKCFuncs.hook_exit,
                __TVLKCFuncs.hook_spare);
    say("this line went through the hook\n");
    tvlk_c_init(__TVLKCFuncs.hook_read, plain_write, __TVLKCFuncs.hook_exit,
                __TVLKCFuncs.hook_spare);
    say("and this one did not\n");
    return 0;
}
