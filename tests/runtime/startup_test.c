/* What a program finds when it starts: the floating-point state set by the
   entry point, and the host hook table with its defaults; and what later
   entry-point calls for threads do. */
#include <fdmap.h>
#include <tvlkc.h>

#include "harness.h"

static unsigned x87_control(void) { unsigned short w; __asm__ volatile("fnstcw %0" : "=m"(w)); return w; }
static void x87_load(unsigned short w) { __asm__ volatile("fldcw %0" : : "m"(w)); }
static unsigned mxcsr(void) { unsigned v; __asm__ volatile("stmxcsr %0" : "=m"(v)); return v; }
static void mxcsr_load(unsigned v) { __asm__ volatile("ldmxcsr %0" : : "m"(v)); }

/* The first initialiser of the library seeds the shared generator (an
   unseeded one answers 0 for ever), so a walk of the lists would start its
   sequence over. */
unsigned long __long_random(unsigned long limit) __asm__("_Z13__long_randomm");

static void entry_calls(void) {
    static const struct { const char *name; unsigned long reason; unsigned short cw; } rows[] = {
        {"thread attach", 2, 0x37F}, {"thread detach", 3, 0x37F}, {"process detach", 0, 0x37F},
        {"rounding toward zero", 2, 0xF7F}};
    unsigned long first = __long_random(1000003);
    t_section("the load-time walk ran");
    CHECK(first != 0);
    for (unsigned i = 0; i < 4; ++i) {
        t_section(rows[i].name);
        x87_load(rows[i].cw);
        mxcsr_load(0x1F80 | 0x3F); /* no flush, flags raised */
        CHECK_EQ(_start(0, rows[i].reason, 0), 1);
        CHECK_HEX(x87_control(), 0x27F);
        CHECK_HEX(mxcsr(), 0x9FC0); /* the flags are cleared too */
    }
    t_section("only process attach walks the lists");
    CHECK(__long_random(1000003) != first);
}

static int fake_read(void *b, unsigned n, int *s) { (void)b; (void)s; return (int)n; }
static int fake_write(const void *b, unsigned *n, void *h, int *s) {
    (void)b; (void)h; (void)s; return (int)*n;
}
static int fake_exit(void) { return 5; }
static int fake_spare(void) { return 6; }

/* The table is four plain words, as a host sees it. */
static void table_is(int line, void *read, void *write, void *exit, void *spare) {
    void *want[4] = {read, write, exit, spare};
    t_check_mem(&__TVLKCFuncs, sizeof __TVLKCFuncs, want, sizeof want, "the hook table", __FILE__, line);
}

static void hooks(void) {
    t_section("hook defaults");
    struct __tvlkc_funcs saved = __TVLKCFuncs;
    CHECK(saved.hook_read != 0 && saved.hook_write != 0);
    CHECK(saved.hook_exit() == 0 && saved.hook_spare() == 0);

    t_section("tvlk_c_init");
    tvlk_c_init(fake_read, fake_write, fake_exit, fake_spare);
    table_is(__LINE__, (void *)fake_read, (void *)fake_write, (void *)fake_exit, (void *)fake_spare);
    tvlk_c_init(0, 0, 0, 0); /* stored without checks */
    table_is(__LINE__, 0, 0, 0, 0);
    tvlk_c_init(saved.hook_read, saved.hook_write, saved.hook_exit, saved.hook_spare);
}

/* The program's own static constructors run once, after the start code
   has registered the standard descriptors. */
static int constructed, saw_descriptors;
__attribute__((constructor)) static void program_constructor(void) {
    ++constructed;
    saw_descriptors = __find_fd_map(0) && __find_fd_map(1) && __find_fd_map(2);
}

int main(void) {
    /* Before anything else can touch it. */
    unsigned cw = x87_control(), csr = mxcsr();
    t_section("start code");
    CHECK(constructed == 1 && saw_descriptors && __find_fd_map(3) == 0);
    CHECK_EQ(__find_fd_map(1)->flags, FD_TEXT);
    t_section("state seen by main");
    CHECK(cw == 0x27F && csr == 0x9FC0);
    entry_calls();
    hooks();
    return t_finish();
}
