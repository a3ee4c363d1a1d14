/* What a program finds when it starts: the floating-point state set by the
   entry point, and the host hook table with its defaults; and what later
   entry-point calls for threads do. */
#include <fdmap.h>
#include <tvlkc.h>

#include "harness.h"

static unsigned x87_control(void) {
    unsigned short w;
    __asm__ volatile("fnstcw %0" : "=m"(w));
    return w;
}

static void x87_load(unsigned w) {
    unsigned short v = (unsigned short)w;
    __asm__ volatile("fldcw %0" : : "m"(v));
}

static unsigned mxcsr(void) {
    unsigned v;
    __asm__ volatile("stmxcsr %0" : "=m"(v));
    return v;
}

static void mxcsr_load(unsigned v) { __asm__ volatile("ldmxcsr %0" : : "m"(v)); }

/* The first initialiser of the library seeds the shared generator (an
   unseeded one answers 0 for ever), so a walk of the lists would start its
   sequence over. */
unsigned long __long_random(unsigned long limit) __asm__("_Z13__long_randomm");

static void entry_calls(void) {
    static const unsigned long reasons[] = {2, 3, 0};
    unsigned long first = __long_random(1000003);
    t_section("the load-time walk ran");
    CHECK(first != 0);
    for (unsigned i = 0; i < 3; ++i) {
        t_section(i == 0 ? "thread attach" : i == 1 ? "thread detach" : "process detach");
        x87_load(0x37F);
        mxcsr_load(0x1F80 | 0x3F); /* 64-bit precision, no flush, flags raised */
        CHECK_EQ(_start(0, reasons[i], 0), 1);
        CHECK_HEX(x87_control(), 0x27F);
        CHECK_HEX(mxcsr(), 0x9FC0); /* the flags are cleared too */
    }
    t_section("only process attach walks the lists");
    CHECK(__long_random(1000003) != first);
    t_section("rounding toward zero");
    x87_load(0xF7F);
    CHECK_EQ(_start(0, 2, 0), 1);
    CHECK_HEX(x87_control(), 0x27F);
}

static int fake_read(void *b, unsigned n, int *s) { (void)b; (void)s; return (int)n; }
static int fake_write(const void *b, unsigned *n, void *h, int *s) {
    (void)b; (void)h; (void)s; return (int)*n;
}
static int fake_exit(void) { return 5; }
static int fake_spare(void) { return 6; }

static void hooks(void) {
    t_section("hook defaults");
    struct __tvlkc_funcs saved = __TVLKCFuncs;
    CHECK(saved.hook_read != 0);
    CHECK(saved.hook_write != 0);
    CHECK_EQ(saved.hook_exit(), 0);
    CHECK_EQ(saved.hook_spare(), 0);

    t_section("tvlk_c_init");
    tvlk_c_init(fake_read, fake_write, fake_exit, fake_spare);
    CHECK(__TVLKCFuncs.hook_read == fake_read);
    CHECK(__TVLKCFuncs.hook_write == fake_write);
    CHECK(__TVLKCFuncs.hook_exit == fake_exit);
    CHECK(__TVLKCFuncs.hook_spare == fake_spare);
    CHECK_EQ(sizeof __TVLKCFuncs, 16);
    /* The table is four plain words, as a host sees it. */
    void **words = (void **)&__TVLKCFuncs;
    CHECK(words[2] == (void *)fake_exit);
    tvlk_c_init(0, 0, 0, 0); /* stored without checks */
    CHECK(__TVLKCFuncs.hook_read == 0 && __TVLKCFuncs.hook_write == 0);
    CHECK(__TVLKCFuncs.hook_exit == 0 && __TVLKCFuncs.hook_spare == 0);
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
    CHECK_EQ(constructed, 1);
    CHECK(saw_descriptors);
    CHECK(__find_fd_map(3) == 0);
    CHECK_EQ(__find_fd_map(1)->flags, FD_TEXT);
    t_section("state seen by main");
    CHECK_HEX(cw, 0x27F);
    CHECK_HEX(csr, 0x9FC0);
    entry_calls();
    hooks();
    return t_finish();
}
