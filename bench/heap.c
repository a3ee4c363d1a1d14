/*
 * The heap under a mixed load: small-block churn, a mix of small, medium
 * and large blocks replaced at random, blocks freed in random order, and
 * buffers grown by realloc. Every block is written, so that memory that is
 * handed out is really paid for.
 */
#include <stdlib.h>

#include "bench.h"

static unsigned rng_state = 2463534242u;
static unsigned rng(void) {
    rng_state ^= rng_state << 13;
    rng_state ^= rng_state >> 17;
    rng_state ^= rng_state << 5;
    return rng_state;
}

/* Writes the first, last and every 4096th byte of a block. */
static void touch(char *p, unsigned n, unsigned v) {
    if (n == 0) return;
    for (unsigned i = 0; i < n; i += 4096) p[i] = (char)(v + i);
    p[n - 1] = (char)v;
}

/* Sizes weighted as programs tend to ask: mostly small, some medium, few
   large. */
static unsigned mixed_size(void) {
    unsigned r = rng(), pick = r % 1000;
    r >>= 10;
    if (pick < 700) return 8 + r % 120;
    if (pick < 900) return 128 + r % 3968;
    if (pick < 985) return 4096 + r % 61440;
    return 65536 + r % 458752;
}

enum { SLOTS = 20000 };
static void *slot[SLOTS];
static unsigned slot_size[SLOTS];

static void clear_slots(void) {
    for (int i = 0; i < SLOTS; ++i) free(slot[i]), slot[i] = 0;
}

static void small_churn(void) {
    for (int i = 0; i < 3000000; ++i) {
        unsigned r = rng(), k = r % SLOTS;
        free(slot[k]);
        unsigned n = 8 + (r >> 16) % 248;
        slot[k] = malloc(n);
        touch(slot[k], n, r);
    }
    clear_slots();
}

static void mixed(void) {
    for (int i = 0; i < 400000; ++i) {
        unsigned k = rng() % (SLOTS / 4);
        free(slot[k]);
        unsigned n = mixed_size();
        slot[k] = malloc(n);
        touch(slot[k], n, (unsigned)i);
    }
    clear_slots();
}

static void random_order_free(void) {
    for (int round = 0; round < 40; ++round) {
        for (int i = 0; i < SLOTS; ++i) {
            unsigned n = rng() % 8 == 0 ? mixed_size() : 8 + rng() % 200;
            slot[i] = malloc(n);
            touch(slot[i], n, (unsigned)i);
        }
        for (int i = SLOTS - 1; i > 0; --i) {
            int j = (int)(rng() % (unsigned)(i + 1));
            void *t = slot[i];
            slot[i] = slot[j], slot[j] = t;
        }
        clear_slots();
    }
}

/* Buffers that grow by half again each step, like a growing array, some up
   to the large path, interleaved so that they do not grow alone. */
static void realloc_growth(void) {
    enum { BUFS = 64 };
    for (int round = 0; round < 300; ++round) {
        for (int i = 0; i < BUFS; ++i) slot_size[i] = 16, slot[i] = malloc(16);
        unsigned limit = 1024u << (round % 9);
        for (int step = 0; step < 40; ++step)
            for (int i = 0; i < BUFS; ++i) {
                unsigned n = slot_size[i] + slot_size[i] / 2 + 8;
                if (n > limit) continue;
                slot[i] = realloc(slot[i], n);
                touch(slot[i], n, (unsigned)step);
                slot_size[i] = n;
            }
        for (int i = 0; i < BUFS; ++i) free(slot[i]), slot[i] = 0;
    }
}

static void run(const char *name, void (*fn)(void)) {
    double t = bench_now();
    fn();
    bench_report(name, bench_now() - t);
}

int main(void) {
    run("small_churn", small_churn);
    run("mixed_sizes", mixed);
    run("random_order_free", random_order_free);
    run("realloc_growth", realloc_growth);
    return 0;
}
