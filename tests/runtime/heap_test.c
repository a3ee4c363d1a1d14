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

static void c_malloc(void) {
    t_section("malloc and free");
    char *p = malloc(0), *q = malloc(0); /* passed on: a block in practice */
    CHECK(p != 0 && q != 0 && p != q);
    free(p);
    free(q);
    free(0);
    errno = 0;
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(malloc(1 << 20) == 0);
    CHECK_EQ(errno, 0); /* a null result and nothing else */
}

static void c_calloc(void) {
    t_section("calloc: zero and overflow");
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
    errno = 0;
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(calloc(1 << 18, 4) == 0);
    CHECK_EQ(errno, 0);
}

static void c_realloc(void) {
    t_section("realloc");
    char *p = realloc(0, 0); /* malloc(0) */
    CHECK(p != 0);
    CHECK(realloc(p, 0) == 0); /* frees */

    p = realloc(0, 8);
    for (int i = 0; i < 8; ++i) p[i] = (char)('a' + i);
    char *q = realloc(p, 10000);
    CHECK_MEM(q, 8, "abcdefgh", 8);

    /* A failed resize answers null and leaves the block as it was. */
    errno = 0;
    k32_fail_call(K32_HeapReAlloc, 1);
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(realloc(q, 1 << 20) == 0);
    k32_clear_faults();
    CHECK_EQ(errno, 0);
    CHECK_MEM(q, 8, "abcdefgh", 8);
    q[9999] = 'z';
    free(q);
}

int main(void) {
    c_malloc();
    c_calloc();
    c_realloc();
    return t_finish();
}
