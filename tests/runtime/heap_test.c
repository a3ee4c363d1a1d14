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
static volatile size_t big = 0x10000;

static unsigned allocs(void) { return k32_call_count(K32_HeapAlloc); }

static void c_malloc(void) {
    t_section("malloc and free");
    char *p = malloc(0), *q = malloc(0); /* passed on: a block in practice */
    CHECK(p != 0 && q != 0 && p != q);
    free(p);
    free(q);
    free(0);
    p = malloc(100);
    for (int i = 0; i < 100; ++i) p[i] = (char)i;
    CHECK_EQ(p[99], 99);
    free(p);

    errno = 0;
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(malloc(1 << 20) == 0);
    CHECK_EQ(errno, 0); /* a null result and nothing else */
}

static void c_calloc(void) {
    t_section("calloc: zero and overflow");
    unsigned before = allocs();
    CHECK(calloc(0, 8) == 0);
    CHECK(calloc(8, 0) == 0);
    CHECK(calloc(0, 0) == 0);
    CHECK(calloc(big, big) == 0);
    CHECK(calloc(3, big * 0x5555 + 0x5556) == 0);
    CHECK(calloc(big * big - 1, 2) == 0);
    CHECK(calloc(2, big * big - 1) == 0);
    CHECK_EQ(allocs(), before); /* none of these reached the heap */

    /* Products that fit go to the heap, however large. */
    sink = calloc(big, big - 1);
    CHECK(allocs() > before);
    before = allocs();
    sink = calloc(3, big * 0x5555 + 0x5555);
    CHECK(allocs() > before);

    t_section("calloc: a zeroed block");
    unsigned *q = calloc(1000, 4);
    CHECK(q != 0);
    unsigned any = 0;
    for (int i = 0; i < 1000; ++i) any |= q[i];
    CHECK_EQ(any, 0);
    free(q);
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
    CHECK(q != 0);
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
