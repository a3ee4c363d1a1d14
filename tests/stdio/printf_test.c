/* The formatted output engine: conversions, padding, the argument area,
   the sinks, the batch buffer and failures. */
/* The formats are this library's, which the compiler's checks do not know. */
#pragma GCC diagnostic ignored "-Wformat"
#pragma GCC diagnostic ignored "-Wformat-extra-args"
#include <errno.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include "harness.h"
#include "platform/k32_faults.h"

#define SAME(want, ...)                                          \
    do {                                                         \
        char out_[256];                                          \
        int n_ = sprintf(out_, __VA_ARGS__);                     \
        CHECK_STR(out_, want);                                   \
        CHECK_EQ(n_, (int)strlen(want));                         \
    } while (0)

static void integers(void) {
    t_section("integers and padding");
    SAME("   42|42   |00042|-0042|+42| 42", "%5d|%-5d|%05d|%05d|%+d|% d", 42, 42, 42, -42, 42, 42);
    SAME("005|  005||", "%.3d|%05.3d|%.0d|%5.0d", 5, 5, 0, 0);
    SAME("010|0|0xff|0XFF|0x000000ff|0x0", "%#o|%#o|%#x|%#X|%#010x|%#x", 8, 0, 255, 255, 255, 0);
    SAME("-1|65535|-9223372036854775808|18446744073709551615", "%hd|%hu|%lld|%llu", 65535, 65535,
         (long long)(-9223372036854775807LL - 1), 18446744073709551615ULL);
    SAME("4294967295|-1|ffffffffffffffff", "%Lu|%Ld|%llx", 4294967295u, -1, -1LL);
    SAME("0|1000|FFFFFFFF80000000|0p1000", "%p|%p|%p|%#p", (void *)0, (void *)0x1000, (void *)0x80000000u,
         (void *)0x1000);
    SAME("  -7|-7  |7", "%*d|%*d|%.*d", 4, -7, -4, -7, -3, 7);
    SAME("   000012", "%9.6u", 12);
}

static void text(void) {
    t_section("characters and strings");
    const char unterminated[3] = {'a', 'b', 'c'};
    SAME("abc|       abc|abc       |     hello", "%.3s|%10.3s|%-10.3s|%010s", "abcdef", unterminated,
         "abcdef", "hello");
    char out[32];
    CHECK_EQ(sprintf(out, "[%c][%3c]", 0, 0), 7); /* no character, just padding */
    CHECK_STR(out, "[][   ]");
    SAME("y|    y|%|    %", "%y|%5y|%%|%5%");
    SAME("\xff", "\xff");
    int five = 0;
    short half = 0;
    SAME("hello", "hello%n%hn", &five, &half);
    CHECK(five == 5 && half == 5);
    SAME("ab", "ab%");   /* a format that ends behind '%' stops there */
    SAME("x", "x%-0");
    const char *volatile no_format = NULL;
    CHECK_EQ(sprintf(out, no_format), 0);
    /* A double takes 8 bytes of the argument area, a quad 16 (2.5 + 2.5). */
    SAME("1.500000|7|59", "%f|%d|%llg%d", 1.5, 7, 2.5, 2.5, 9);
}

/* A sink that fails after a number of characters. */
static char sunk[64];
static int sunk_n, fail_at;
static int put_limited(int c, void *ctx) {
    (void)ctx;
    if (sunk_n == fail_at) return -1;
    sunk[sunk_n++] = (char)c;
    return c;
}

static void sinks(void) {
    t_section("sinks and failures");
    struct _orv_sink sink = {0, put_limited};
    int arg = 12345;
    fail_at = 100;
    CHECK_EQ(_printf_(&sink, "n=%d!", &arg), 8);
    sunk_n = 0, fail_at = 4;
    CHECK_EQ(_printf_(&sink, "n=%d!", &arg), -1);
    CHECK_MEM(sunk, sunk_n, "n=12", 4);

    FILE *f = fopen("out.txt", "w");
    CHECK_EQ(fprintf(f, "%s-%d", "x", 3), 3);
    fclose(f);
    char buf[64];
    CHECK_MEM(buf, (unsigned)t_read_file("out.txt", buf, sizeof buf), "x-3", 3);
    f = fopen("out.txt", "r");
    errno = 0;
    CHECK_EQ(fprintf(f, "x"), -1);
    CHECK_EQ(errno, EBADF);
    fclose(f);
}

/* Every sink gets the same text: memory, a buffered stream, an unbuffered
   one through the batch area, and a sink of the caller's that takes one
   character at a time. Wide fields and long texts cross the stream's
   buffer and the batch area. */
static char collected[8192];
static int collected_n;
static int collect(int c, void *ctx) {
    (void)ctx;
    if (collected_n < (int)sizeof collected) collected[collected_n++] = (char)c;
    return c;
}

static int same_everywhere(const char *format, ...) {
    static char want[8192], got[8192];
    va_list args;
    va_start(args, format);
    int n = vsprintf(want, format, args);
    collected_n = 0;
    struct _orv_sink sink = {0, collect};
    int ok = _printf_(&sink, format, args) == n && collected_n == n && t_memeq(collected, want, (unsigned)n);
    for (int unbuffered = 0; unbuffered < 2; ++unbuffered) {
        FILE *f = fopen("sinks.bin", "wb");
        if (unbuffered) setvbuf(f, NULL, _IONBF, 0);
        fputs("lead", f); /* the buffer is part used when the call starts */
        ok &= vfprintf(f, format, args) == n;
        fclose(f);
        ok &= t_read_file("sinks.bin", got, sizeof got) == n + 4 && t_memeq(got + 4, want, (unsigned)n);
    }
    va_end(args);
    return ok;
}

static void every_sink(void) {
    t_section("the same text through every sink");
    static char long_text[3000];
    memset(long_text, 'L', sizeof long_text - 1);
    CHECK(same_everywhere("%d|%-40d|%040d|%+1500d|%-1100s|", -12345, 7, -7, 99, "x"));
    CHECK(same_everywhere("%s%2000.1500s%#-70x%#070X|%c%-3c", long_text, long_text, 255, 255, 'q', 0));
    CHECK(same_everywhere("%5%%-5y%.0d%05.3u%lld", 0, 42, -9223372036854775807LL));
}

/* Unbuffered streams gather a whole call into writes of 1024. */
static void batching(void) {
    t_section("batch buffer");
    static char big[3001];
    memset(big, 'q', 3000);
    FILE *f = fopen("batch.txt", "wb");
    setvbuf(f, NULL, _IONBF, 0);
    K32TraceEntry trace[16];
    k32_trace_start(trace, 16);
    CHECK_EQ(fprintf(f, "%s", big), 3000);
    unsigned n = k32_trace_stop();
    CHECK(n == 3 && trace[0].count == 1024 && trace[1].count == 1024 && trace[2].count == 952);
    k32_fail_call(K32_WriteFile, 1);
    CHECK_EQ(fprintf(f, "%s", big), -1);
    CHECK(!ferror(f)); /* the batch bypasses the stream's flags */
    fclose(f);

    /* A sink of the program's own with fputc is batched the same, and the
       record keeps the batch put, whose bytes every later call flushes. */
    f = fopen("batch.txt", "wb");
    setvbuf(f, NULL, _IONBF, 0);
    struct _orv_sink sink = {f, (int (*)(int, void *))fputc};
    int arg = 42;
    k32_trace_start(trace, 16);
    CHECK_EQ(_printf_(&sink, "one %d;", &arg), 7);
    CHECK(sink.put != (int (*)(int, void *))fputc);
    CHECK_EQ(_printf_(&sink, "two %d;", &arg), 7);
    n = k32_trace_stop();
    CHECK(n == 2 && trace[0].count == 7 && trace[1].count == 7);
    fclose(f);
    char back[32];
    CHECK_MEM(back, (unsigned)t_read_file("batch.txt", back, sizeof back), "one 42;two 42;", 14);
}

int main(void) {
    integers();
    text();
    sinks();
    every_sink();
    batching();
    return t_finish();
}
