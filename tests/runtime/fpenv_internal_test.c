/* The floating-point control operations. This program holds its own copy
   of them (and of __sse_state and __mxcsr_mask), so the probe runs here
   from its initial state. */
#include "harness.h"
#include "platform/kernel32.h"

extern int __sse_state;
extern unsigned __mxcsr_mask;
void __fp_set_control_ref(const int *value);
void __fp_set_control(int value);
unsigned __fp_get_control(void);
unsigned __fp_get_status(void);
void __fp_set_status_ref(const unsigned *status);
unsigned __fp_get_environment(void);
void __fp_set_environment_ref(const unsigned *environment);
void __fp_reset(void);
unsigned __mxcsr_writable_mask(void);
unsigned __mxcsr_set_masked(unsigned value);

static unsigned cw(void) { unsigned short w; __asm__ volatile("fnstcw %0" : "=m"(w)); return w; }
static unsigned sw(void) { unsigned short w; __asm__ volatile("fnstsw %0" : "=m"(w)); return w; }
static unsigned csr(void) { unsigned v; __asm__ volatile("stmxcsr %0" : "=m"(v)); return v; }
static void set_csr(unsigned v) { __asm__ volatile("ldmxcsr %0" : : "m"(v)); }
static void clear_x87_flags(void) { __asm__ volatile("fnclex"); }
/* Raises the x87 zero-divide flag (masked). */
static void x87_divide_by_zero(void) {
    __asm__ volatile("fld1\n\tfldz\n\tfdivrp\n\tfstp %%st(0)" ::: "st");
}
static unsigned fxsave_mask(void) {
    static unsigned area[128] __attribute__((aligned(16)));
    area[7] = 0;
    __asm__ volatile("fxsave %0" : "+m"(area));
    return area[7] ? area[7] : 0xFFBF;
}

static void probe(void) {
    t_section("first setting probes");
    CHECK_EQ(__sse_state, 0);
    CHECK_EQ(__mxcsr_mask, 0);
    NT_TIB *tib = NtCurrentTeb();
    EXCEPTION_REGISTRATION_RECORD *head = tib->ExceptionList;
    set_csr(0x1F80 | 0x3F);
    __fp_set_control(0x1027F);
    CHECK_EQ(__sse_state, 1);
    CHECK_HEX(__mxcsr_mask, fxsave_mask());
    CHECK(tib->ExceptionList == head); /* the probe's record is gone */
    CHECK_HEX(cw(), 0x27F);
    CHECK_HEX(csr(), 0x9FC0 & __mxcsr_mask);

    /* A record of our own below it survives a second probe. */
    EXCEPTION_REGISTRATION_RECORD mine = {head, 0};
    tib->ExceptionList = &mine;
    __sse_state = 0;
    __fp_set_control(0x1027F);
    CHECK_EQ(__sse_state, 1);
    CHECK(tib->ExceptionList == &mine);
    tib->ExceptionList = head;
}

static void control(void) {
    /* sse: the probe's answer; mask: the writable MXCSR bits, 0 for the
       processor's own. */
    static const struct { int sse; unsigned mask; int value; unsigned before, x87, mxcsr; } rows[] = {
        {1, 0, 0x027F, 0x1F80 | 0x8040 | 0x3F, 0x27F, 0x9FC0}, /* flush bits kept */
        {1, 0, 0x027F, 0x1F80, 0x27F, 0x1F80},
        {1, 0, 0x1027F, 0x0000, 0x27F, 0x9FC0},
        {1, 0, 0x2027F, 0x9FC0, 0x27F, 0x1F80},                /* flush off */
        {1, 0, (int)0xFFFF027F, 0x9FC0, 0x27F, 0x1F80},
        {1, 0, 0x10E7F, 0x1F80, 0xE7F, 0xFFC0},                /* toward zero */
        {1, 0, 0x2067F, 0x1F80, 0x67F, 0x3F80},                /* down */
        {1, 0, 0x20A7F, 0x1F80, 0xA7F, 0x5F80},                /* up */
        {1, 0, 0x2037F, 0x1F80, 0x37F, 0x1F80},                /* precision has no twin */
        {1, 0, 0x20272, 0x1F80, 0x272, 0x1900},                /* some unmasked */
        {-1, 0, 0x10E7F, 0x1F80, 0xE7F, 0x1F80},               /* no SSE: the x87 word only */
        {1, 0xFFBF, 0x1027F, 0x1F80, 0x27F, 0x9F80},           /* no denormals-are-zero */
    };
    t_section("control words");
    unsigned own_mask = __mxcsr_mask;
    for (unsigned i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        __sse_state = rows[i].sse;
        __mxcsr_mask = rows[i].mask ? rows[i].mask : own_mask;
        set_csr(rows[i].before);
        __fp_set_control_ref(&rows[i].value);
        CHECK_HEX(cw(), rows[i].x87);
        CHECK_HEX(__fp_get_control(), rows[i].x87);
        CHECK_HEX(csr(), rows[i].mxcsr & __mxcsr_mask);
    }

    t_section("writable mask"); /* still 0xFFBF from the last row */
    CHECK_EQ(__mxcsr_writable_mask(), 0xFFBF);
    CHECK_HEX(__mxcsr_set_masked(0x1FC0), 0x9F80);
    CHECK_HEX(csr(), 0x1F80);
    __mxcsr_mask = own_mask;

    t_section("reset");
    set_csr(0x8040 | 0x1F80);
    __fp_set_control(0x37F);
    __fp_reset();
    CHECK_HEX(cw(), 0x27F);
    CHECK_HEX(csr(), 0x9FC0 & __mxcsr_mask);
}

static void status(void) {
    t_section("status");
    clear_x87_flags();
    x87_divide_by_zero();
    set_csr(0x9FC0 | 0x20);
    CHECK_HEX(__fp_get_status() & 0x3F, 0x24); /* both units' flags */
    __sse_state = -1;
    CHECK_HEX(__fp_get_status() & 0x3F, 0x04); /* the x87 word alone */
    __sse_state = 1;

    unsigned w = 0x01;
    __fp_set_status_ref(&w);
    CHECK_HEX(sw() & 0x3F, 0x01);
    CHECK_HEX(csr(), 0x9FC0 | 0x01); /* only the low six bits change */
    w = 0;
    __fp_set_status_ref(&w);
    CHECK((sw() & 0x3F) == 0 && csr() == 0x9FC0);
    __sse_state = -1;
    set_csr(0x9FC0 | 0x10);
    __fp_set_status_ref(&w);
    CHECK_HEX(csr(), 0x9FC0 | 0x10); /* no SSE step without SSE */
    __sse_state = 1;
    set_csr(0x9FC0);

    t_section("environment");
    __fp_set_control(0x1027F);
    clear_x87_flags();
    x87_divide_by_zero();
    CHECK_HEX(__fp_get_environment(), (__fp_get_status() << 16) | 0x27F);
    CHECK_HEX(__fp_get_environment() >> 16 & 0x3F, 0x04);
    set_csr(0x8040 | 0x1F80);
    unsigned env = (0x08u << 16) | 0x0E7F;
    __fp_set_environment_ref(&env);
    CHECK_HEX(cw(), 0xE7F);
    CHECK_HEX(sw() & 0x3F, 0x08);
    CHECK_HEX(csr(), (0xFFC0 | 0x08) & __mxcsr_mask); /* flush kept: mode 0 */
}

int main(void) {
    probe();
    control();
    status();
    return t_finish();
}
