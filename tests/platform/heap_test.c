/* The process heap, through the C allocation functions and the stand-in's
   own calls: block integrity across size classes, zero-fill, resizing in and
   out of the large path, failures that must leave the old block alone, and
   memory that goes back to the system. */
#include <stdlib.h>

#include "harness.h"
#include "platform/k32_faults.h"
#include "platform/kernel32.h"

/* The old block of a failed realloc is still the caller's: reading it is
   the point of several checks here, and some sizes are meant to be absurd. */
#pragma GCC diagnostic ignored "-Wuse-after-free"
#pragma GCC diagnostic ignored "-Walloc-size-larger-than="

static unsigned rng_state = 12345;
static unsigned rng(void) {
    rng_state = rng_state * 1103515245u + 12345u;
    return rng_state >> 8;
}

/* Each block carries a pattern drawn from the address it was first given;
   large ones on every 61st byte only (SPARSE), which is enough to see a
   block that lost or shares its pages. */
enum { SPARSE = 61 };
static unsigned char pattern(const void *block, unsigned i) {
    return (unsigned char)(((unsigned)block >> 3) + i * 7 + 1);
}
static void fill(void *p, const void *was, unsigned n, unsigned step) {
    for (unsigned i = 0; i < n; i += step) ((unsigned char *)p)[i] = pattern(was, i);
}
/* Whether the first n bytes of p hold the pattern written at `was`. */
static int holds(const void *p, const void *was, unsigned n, unsigned step) {
    int ok = 1;
    for (unsigned i = 0; i < n; i += step) ok &= ((const unsigned char *)p)[i] == pattern(was, i);
    return ok;
}
static int all_zero(const void *p, unsigned n) {
    for (unsigned i = 0; i < n; ++i)
        if (((const unsigned char *)p)[i] != 0) return 0;
    return 1;
}

/* Resident kilobytes, from /proc/self/statm. */
static unsigned resident_kb(void) {
    char text[128];
    int n = t_read_file("/proc/self/statm", text, sizeof text - 1);
    if (n <= 0) return 0;
    int i = 0;
    while (i < n && text[i] != ' ') ++i;
    unsigned pages = 0;
    for (++i; i < n && text[i] >= '0' && text[i] <= '9'; ++i) pages = pages * 10 + (unsigned)(text[i] - '0');
    return pages * 4;
}

static const unsigned sizes[] = {0, 1, 7, 8, 9, 16, 24, 100, 128, 129, 160, 250, 1000, 4096, 5000,
                                 20000, 40000, 65535, 65536, 65537, 100000, 300000};
enum { NSIZES = sizeof sizes / sizeof sizes[0], COPIES = 5 };

/* Blocks of every class hold their bytes apart from each other; freed
   dirty, the same sizes asked again with zero-fill come back clear. */
static void blocks(void) {
    HANDLE heap = GetProcessHeap();
    enum { N = NSIZES * COPIES };
    void *b[N], *old[N];
    for (int round = 0; round < 2; ++round) {
        t_section("distinct blocks across classes");
        int aligned = 1, big_enough = 1, intact = 1, apart = 1, clear = 1, reused = 0;
        for (int i = 0; i < N; ++i) {
            unsigned n = sizes[i % NSIZES];
            b[i] = malloc(n);
            aligned &= b[i] != 0 && ((unsigned)b[i] & (n > 128 ? 15u : 7u)) == 0;
            big_enough &= HeapSize(heap, 0, b[i]) >= n;
            fill(b[i], b[i], HeapSize(heap, 0, b[i]), 1);
        }
        for (int i = 0; i < N; ++i) {
            intact &= holds(b[i], b[i], HeapSize(heap, 0, b[i]), 1);
            for (int j = 0; j < i; ++j) apart &= b[i] != b[j]; /* malloc(0) included */
        }
        CHECK(aligned);
        CHECK(big_enough);
        CHECK(intact);
        CHECK(apart);
        t_section(round == 0 ? "calloc clears reused blocks" : "HEAP_ZERO_MEMORY clears reused blocks");
        for (int i = 0; i < N; ++i) old[i] = b[i], free(b[i]);
        for (int i = 0; i < N; ++i) {
            unsigned n = sizes[i % NSIZES];
            b[i] = round == 0 ? calloc(1, n ? n : 1) : HeapAlloc(heap, HEAP_ZERO_MEMORY, n);
            clear &= b[i] != 0 && all_zero(b[i], HeapSize(heap, 0, b[i]));
            for (int j = 0; j < N; ++j) reused += b[i] == old[j];
        }
        CHECK(clear);
        CHECK(reused > NSIZES); /* the check above saw dirty memory */
        for (int i = 0; i < N; ++i) free(b[i]);
    }
}

static void resizing(void) {
    t_section("realloc keeps contents across classes and paths");
    static const unsigned steps[] = {1, 24, 129, 5000, 65536, 70000, 300000, 1 << 20,
                                     200000, 60000, 3000, 100, 9};
    unsigned char *p = malloc(1), *origin = p;
    fill(p, p, 1, 1);
    unsigned have = 1;
    for (unsigned i = 1; i < sizeof steps / sizeof steps[0]; ++i) {
        unsigned n = steps[i];
        unsigned char *q = realloc(p, n);
        CHECK(q != 0);
        CHECK(holds(q, origin, have < n ? have : n, 1));
        fill(q, origin, n, 1);
        p = q, have = n;
    }
    free(p);

    t_section("HeapReAlloc zero-fills what it adds");
    HANDLE heap = GetProcessHeap();
    static const unsigned from_to[][2] = {{100, 5000}, {100, 200000}, {5000, 65536}, {100000, 400000}, {100000, 30}};
    for (unsigned i = 0; i < sizeof from_to / sizeof from_to[0]; ++i) {
        unsigned to = from_to[i][1];
        unsigned char *a = HeapAlloc(heap, 0, from_to[i][0]);
        unsigned was = HeapSize(heap, 0, a);
        fill(a, a, was, 1);
        unsigned char *b = HeapReAlloc(heap, HEAP_ZERO_MEMORY, a, to);
        CHECK(b != 0);
        unsigned now = HeapSize(heap, 0, b);
        CHECK(now >= to);
        CHECK(holds(b, a, was < to ? was : to, 1));
        if (now > was) CHECK(all_zero(b + was, now - was));
        HeapFree(heap, 0, b);
    }
}

static void failures(void) {
    HANDLE heap = GetProcessHeap();
    t_section("in-place-only");
    unsigned char *p = HeapAlloc(heap, 0, 100);
    unsigned usable = HeapSize(heap, 0, p);
    fill(p, p, usable, 1);
    SetLastError(0);
    CHECK(HeapReAlloc(heap, HEAP_REALLOC_IN_PLACE_ONLY, p, 10000) == 0);
    CHECK_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    CHECK(HeapReAlloc(heap, HEAP_REALLOC_IN_PLACE_ONLY, p, usable) == p);
    CHECK(HeapReAlloc(heap, HEAP_REALLOC_IN_PLACE_ONLY, p, 1) == p);
    CHECK(holds(p, p, usable, 1));
    HeapFree(heap, 0, p);
    unsigned char *big = HeapAlloc(heap, 0, 500000);
    fill(big, big, 500000, 1);
    CHECK(HeapReAlloc(heap, HEAP_REALLOC_IN_PLACE_ONLY, big, 1000) == big);
    CHECK(holds(big, big, 1000, 1));
    HeapFree(heap, 0, big);

    t_section("injected failures");
    p = malloc(300);
    fill(p, p, 300, 1);
    k32_fail_call(K32_HeapReAlloc, 1);
    CHECK(realloc(p, 100000) == 0);
    CHECK(holds(p, p, 300, 1));
    k32_fail_call(K32_HeapAlloc, 1);
    SetLastError(0);
    CHECK(malloc(16) == 0);
    CHECK_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    CHECK(malloc(16) != 0); /* only the chosen call fails; this one leaks */

    t_section("sizes that cannot be had");
    static const unsigned huge[] = {0xFFFFFFFFu, 0xFFFFFFF0u, 0xFFFFF000u, 0xFFFF0000u};
    for (unsigned i = 0; i < sizeof huge / sizeof huge[0]; ++i) {
        SetLastError(0);
        CHECK(HeapAlloc(heap, 0, huge[i]) == 0);
        CHECK_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
        CHECK(realloc(p, huge[i]) == 0);
        CHECK(holds(p, p, 300, 1));
    }
    CHECK(calloc(0x10000, 0xFFFF) == 0);
    free(p);

    t_section("foreign pointers");
    static char foreign[8192] __attribute__((aligned(4096)));
    CHECK_EQ(HeapFree(heap, 0, foreign + 16), 0);
    CHECK_EQ(HeapFree(heap, 0, 0), 1);
}

/* Pages a large block gives back lie right behind it: it grows over them
   again without moving. */
static void large_in_place(void) {
    HANDLE heap = GetProcessHeap();
    t_section("a large block shrinks and grows again in place");
    unsigned char *a = malloc(2 << 20);
    fill(a, a, 2 << 20, 1);
    unsigned char *b = realloc(a, 200000);
    CHECK(b == a);
    unsigned was = HeapSize(heap, 0, b);
    CHECK(was >= 200000 && was < 2 << 20);
    /* The pages given back are dirty: what the block gains must be zeroed. */
    unsigned char *c = HeapReAlloc(heap, HEAP_ZERO_MEMORY, b, 3 << 19);
    CHECK(c == a);
    CHECK(holds(c, a, was, 1));
    CHECK(all_zero(c + was, HeapSize(heap, 0, c) - was));
    free(c);
}

/* Large blocks are cut from pages that earlier blocks gave back, grow over
   freed neighbours and are stretched from smaller kept runs: whatever the
   path, a live block keeps its bytes and no two live blocks share one. */
static void large_reuse(void) {
    HANDLE heap = GetProcessHeap();
    t_section("large blocks over reused pages keep their bytes");
    enum { LIVE = 40 };
    unsigned char *blk[LIVE] = {0};
    void *origin[LIVE];
    unsigned len[LIVE] = {0};
    int intact = 1, got = 1;
    for (int step = 0; step < 3000; ++step) {
        unsigned r = rng(), k = r % LIVE;
        unsigned n = 65537 + (r >> 4) % ((r & 1) ? 1u << 18 : 1u << 20);
        if (blk[k] != 0) intact &= holds(blk[k], origin[k], len[k], SPARSE);
        if (blk[k] != 0 && (r & 2)) {
            unsigned char *q = realloc(blk[k], n);
            got &= q != 0;
            if (q == 0) continue;
            if (n < len[k]) len[k] = n;
            intact &= holds(q, origin[k], len[k], SPARSE);
            blk[k] = q;
        } else {
            free(blk[k]);
            blk[k] = malloc(n);
            got &= blk[k] != 0;
            origin[k] = blk[k], len[k] = n;
        }
        fill(blk[k], origin[k], len[k], SPARSE);
    }
    for (int k = 0; k < LIVE; ++k) intact &= blk[k] == 0 || holds(blk[k], origin[k], len[k], SPARSE);
    CHECK(got && intact);
    int apart = 1;
    for (int i = 0; i < LIVE; ++i)
        for (int j = 0; j < i; ++j) {
            unsigned char *lo = blk[i] < blk[j] ? blk[i] : blk[j], *hi = blk[i] < blk[j] ? blk[j] : blk[i];
            apart &= lo + HeapSize(heap, 0, lo) <= hi;
        }
    CHECK(apart);
    for (int k = 0; k < LIVE; ++k) free(blk[k]);
}

/* Rounds of mixed blocks freed in random order: the footprint must settle,
   and large blocks must go back to the system when freed. */
static void memory_returns(void) {
    t_section("memory is given back");
    enum { N = 1500 };
    static void *b[N];
    unsigned early = 0, late = 0;
    for (int round = 0; round < 60; ++round) {
        for (int i = 0; i < N; ++i) {
            unsigned r = rng();
            unsigned n = r % 16 == 0 ? 65537 + r % 150000 : r % 4 == 0 ? r % 20000 : r % 200;
            b[i] = malloc(n);
            if (n) ((char *)b[i])[n - 1] = 1, ((char *)b[i])[0] = 1;
        }
        for (int i = N - 1; i > 0; --i) {
            int j = (int)(rng() % (unsigned)(i + 1));
            void *t = b[i];
            b[i] = b[j], b[j] = t;
        }
        unsigned kb = resident_kb();
        if (round < 10 && kb > early) early = kb;
        if (round >= 50 && kb > late) late = kb;
        for (int i = 0; i < N; ++i) free(b[i]);
    }
    CHECK(early > 0);
    CHECK(late < early + 2048); /* a leak of one slab a round would show */

    char *big = malloc(16 << 20);
    for (unsigned i = 0; i < 16u << 20; i += 4096) big[i] = 1;
    unsigned touched = resident_kb();
    free(big);
    CHECK(resident_kb() + 15 * 1024 < touched);
}

/* Threads share the heap: each churns blocks of its own and checks that
   nobody else wrote into them. Threads are started with a raw clone, as a
   program's own thread library would. */
enum { THREADS = 2, CHURN = 60000, LIVE = 256 };
static volatile int threads_done, thread_faults;

static void churn(void) {
    void *mine[LIVE] = {0};
    unsigned seed = (unsigned)&mine, sz[LIVE] = {0};
    for (int i = 0; i < CHURN; ++i) {
        seed = seed * 1103515245u + 12345u;
        unsigned k = (seed >> 8) % LIVE;
        if (mine[k] && !holds(mine[k], mine[k], sz[k], 1)) __atomic_add_fetch(&thread_faults, 1, __ATOMIC_RELAXED);
        free(mine[k]);
        sz[k] = (seed >> 12) % 64 == 0 ? 70000 : (seed >> 16) % 3000;
        mine[k] = malloc(sz[k]);
        if (!mine[k]) __atomic_add_fetch(&thread_faults, 1, __ATOMIC_RELAXED);
        else fill(mine[k], mine[k], sz[k], 1);
    }
    for (int k = 0; k < LIVE; ++k) free(mine[k]);
}

static void thread_main(void) {
    churn();
    __atomic_add_fetch(&threads_done, 1, __ATOMIC_RELEASE);
}

static int start_thread(void (*fn)(void), char *stack_top) {
    long r;
    ((void (**)(void))stack_top)[-4] = fn; /* at the new stack pointer, 16-aligned */
    /* The new thread calls fn, then exits: itself only. */
    __asm__ volatile("int $0x80\n\ttest %%eax, %%eax\n\tjnz 1f\n\tcall *(%%esp)\n\t"
                     "movl $1, %%eax\n\txorl %%ebx, %%ebx\n\tint $0x80\n1:"
                     : "=a"(r)
                     : "a"(120 /* clone */), "b"(0x50F00 /* VM FS FILES SIGHAND THREAD SYSVSEM */),
                       "c"(stack_top - 16), "d"(0), "S"(0), "D"(0)
                     : "memory");
    return r > 0;
}

static void threads(void) {
    t_section("threads");
    static char stacks[THREADS][65536] __attribute__((aligned(16)));
    int started = 0;
    for (int i = 0; i < THREADS; ++i) started += start_thread(thread_main, stacks[i] + sizeof stacks[i]);
    CHECK_EQ(started, THREADS);
    churn();
    while (__atomic_load_n(&threads_done, __ATOMIC_ACQUIRE) < started) {
        long r;
        __asm__ volatile("int $0x80" : "=a"(r) : "a"(158 /* sched_yield */) : "memory");
    }
    CHECK_EQ(thread_faults, 0);
}

int main(void) {
    large_in_place(); /* first, while the heap keeps no freed pages */
    blocks();
    resizing();
    failures();
    memory_returns();
    large_reuse(); /* after memory_returns, whose footprint its peak would raise */
    threads();
    return t_finish();
}
