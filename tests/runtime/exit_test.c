/* Process end: the handler list, the closing of streams, the hook. */
#include <io.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <fdmap.h>
#include <tvlkc.h>

#include "harness.h"
#include "platform/k32_faults.h"

extern int __atexit_count;
extern void (**__atexit_table)(void);

static char order[400];
static int ran;
static void note(char c) { order[ran++] = c; }

static void h_a(void) { note('a'); }
static void h_b(void) { note('b'); }
static void h_late(void) { note('L'); }
static void h_adds(void) { note('+'); atexit(h_late); }
static void h_exits(void) { note('x'); exit(7); }
static void h_print(void) { fputs(order, stdout); }

/* By the time the hook runs exit has closed descriptors 0 to 2: the hook
   appends to a file by raw calls instead, C when descriptor 1 is gone by
   then and O when it is still open. */
static int hook_write(void) {
    char seen[8];
    int n = t_read_file("hook.txt", seen, sizeof seen - 1);
    if (n < 0) n = 0;
    seen[n++] = __find_fd_map(1) ? 'O' : 'C';
    t_write_file("hook.txt", seen, (unsigned)n);
    return 0;
}
static void h_before_hook(void) { _write(1, "h", 1); }

/* Registered first, runs last: shows the order the others ran in. */
static int lifo(void *arg) {
    (void)arg;
    atexit(h_print);
    atexit(h_a);
    atexit(h_exits);
    atexit(h_b);
    atexit(h_adds);
    exit(3);
}

/* 300 handlers of two kinds in an irregular order, across two growths of
   the table: they must run as the exact reverse of it. */
static int past_128(void *arg) {
    (void)arg;
    atexit(h_print);
    for (int i = 0; i < 300; ++i) atexit(i * 7 % 11 < 5 ? h_a : h_b);
    exit(0);
}

static int streams_closed(void *arg) {
    FILE *f = fopen("exit.txt", "w");
    fputs("kept", f);
    fputs("buffered", stdout);
    if (arg) _exit(4);
    exit(5);
}

static int hook_once(void *arg) {
    tvlk_c_init(__TVLKCFuncs.hook_read, __TVLKCFuncs.hook_write, hook_write, __TVLKCFuncs.hook_spare);
    atexit(h_before_hook);
    if (arg) _exit(0);
    exit(0);
}

static int abort_hits;
static void on_abort(int sig) { abort_hits += sig == SIGABRT; }

static int aborted(void *arg) {
    (void)arg;
    atexit(h_a);
    fputs("out", stdout);
    abort();
    return 9;
}

int main(void) {
    t_child c;
    t_section("handlers run last registered first");
    t_run_child(&c, lifo, 0, "", 0);
    CHECK_EQ(c.status, 7); /* the inner exit carried on and ended */
    CHECK_MEM(c.out, c.out_len, "+Lbxa", 5);

    t_run_child(&c, past_128, 0, "", 0);
    char reversed[300]; /* its registrations backwards */
    for (int i = 0; i < 300; ++i) reversed[i] = (299 - i) * 7 % 11 < 5 ? 'a' : 'b';
    CHECK_MEM(c.out, c.out_len, reversed, 300);

    t_section("the table grows by 128 and keeps its entries");
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK_EQ(atexit(h_a), -1);
    CHECK(__atexit_table == 0 && __atexit_count == 0);
    unsigned grown = k32_call_count(K32_HeapReAlloc);
    for (int i = 0; i < 128; ++i) atexit(i == 0 ? h_b : h_a);
    CHECK_EQ(k32_call_count(K32_HeapReAlloc), grown); /* 128 fit the first block */
    void (**table)(void) = __atexit_table;
    k32_fail_call(K32_HeapReAlloc, 1);
    CHECK_EQ(atexit(h_late), -1); /* nothing lost */
    CHECK(__atexit_table == table && __atexit_count == 128);
    CHECK(atexit(h_late) == 0 && __atexit_count == 129);
    CHECK(__atexit_table[0] == h_b && __atexit_table[127] == h_a && __atexit_table[128] == h_late);
    __atexit_count = 0;

    t_section("exit closes every stream; _exit loses buffered data");
    t_remove("exit.txt");
    t_run_child(&c, streams_closed, 0, "", 0);
    char buf[16];
    CHECK_EQ(c.status, 5);
    CHECK_MEM(c.out, c.out_len, "buffered", 8);
    CHECK_EQ(t_read_file("exit.txt", buf, sizeof buf), 4);
    t_run_child(&c, streams_closed, (void *)1, "", 0);
    CHECK(c.status == 4 && c.out_len == 0);
    CHECK_EQ(t_read_file("exit.txt", buf, sizeof buf), 0);

    t_section("hook_exit once, after the handlers and the streams");
    for (int fast = 0; fast < 2; ++fast) {
        t_remove("hook.txt");
        t_run_child(&c, hook_once, (void *)(long)fast, "", 0);
        CHECK_MEM(c.out, c.out_len, "h", fast ? 0u : 1u);
        CHECK_MEM(buf, (unsigned)t_read_file("hook.txt", buf, sizeof buf), fast ? "O" : "C", 1);
    }

    t_section("abort");
    t_run_child(&c, aborted, 0, "", 0);
    CHECK_EQ(c.status, 1);
    CHECK_MEM(c.err, c.err_len, "signal #6 -- terminating\r\n", 26);
    CHECK_MEM(c.out, c.out_len, "out", 3);
    /* abort returns when the handler does, or when the signal is ignored.
       The compiler takes abort for a function that never returns: call it
       through a pointer it cannot see through. */
    void (*volatile call_abort)(void) = abort;
    signal(SIGABRT, on_abort);
    call_abort();
    CHECK_EQ(abort_hits, 1);
    CHECK(signal(SIGABRT, SIG_IGN) == SIG_DFL);
    call_abort();
    CHECK(signal(SIGABRT, SIG_DFL) == SIG_IGN);
    return t_finish();
}
