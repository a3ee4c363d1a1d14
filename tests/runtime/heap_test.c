/* The C rules of the four allocation calls, seen from the heap calls they
   make: what reaches the heap and what is decided before it. Only the rules
   are checked, not how blocks are carved. */
#include <errno.h>
#include <stdlib.h>

#include "harness.h"
#include "platform/k32_faults.h"

/* The calls must reach the library as written, whatever the compiler
   knows of them. */
#pragma GCC diagnostic ignored "-Wuse-after-free"
static void *volatile sink;

static unsigned allocs(void) { return k32_call_count(K32_HeapAlloc); }

static void c_calloc(void) {
    /* Volatile, so that the compiler neither folds nor warns. */
    static const volatile size_t refused[][2] = {
        {0, 8}, {8, 0}, {0, 0}, {0x10000, 0x10000}, {3, 0x55555556}, {0xFFFFFFFF, 2}, {2, 0xFFFFFFFF}};
    unsigned before = allocs();
    for (unsigned i = 0; i < sizeof refused / sizeof refused[0]; ++i) {
        t_section(i < 3 ? "calloc: a zero count or size" : "calloc: overflow");
        CHECK(calloc(refused[i][0], refused[i][1]) == 0);
    }
    CHECK_EQ(allocs(), before); /* none of these reached the heap */

    t_section("calloc: products that fit go to the heap, however large");
    static const volatile size_t fits[][2] = {{0x10000, 0xFFFF}, {3, 0x55555555}};
    for (unsigned i = 0; i < 2; ++i) {
        sink = calloc(fits[i][0], fits[i][1]);
        CHECK_EQ(allocs(), ++before);
    }
}

static void c_realloc(void) {
    t_section("realloc of nothing, and to nothing");
    char *p = realloc(0, 0); /* malloc(0): a block in practice */
    CHECK(p != 0);
    CHECK(realloc(p, 0) == 0); /* frees */
    free(0);

    /* A failed call answers null and nothing else; a failed resize leaves
       the block as it was. */
    t_section("failures");
    p = realloc(0, 8);
    for (int i = 0; i < 8; ++i) p[i] = (char)('a' + i);
    errno = 0;
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(malloc(1 << 20) == 0);
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(calloc(1 << 18, 4) == 0);
    k32_fail_call(K32_HeapReAlloc, 1);
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(realloc(p, 1 << 20) == 0);
    k32_clear_faults();
    CHECK_EQ(errno, 0);
    CHECK_MEM(p, 8, "abcdefgh", 8);
    free(p);
}

int main(void) {
    c_calloc();
    c_realloc();
    return t_finish();
}
