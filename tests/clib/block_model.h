/* The block moves and fills against a byte-by-byte model: every small
   offset and length, overlaps both ways, near and far long blocks, blocks
   longer than the buffer that long moves go through, and distances that
   make the string move slow. Shared by the tests of the library as it is
   and of its paths for processors without SSE. */
#ifndef ORV_TEST_BLOCK_MODEL_H
#define ORV_TEST_BLOCK_MODEL_H

#include <string.h>

#include "harness.h"
#include "lib_calls.h"

static unsigned char area[24000], model[24000], saved[12000];

static void pattern(unsigned seed) {
    for (unsigned k = 0; k < sizeof area; ++k) area[k] = model[k] = (unsigned char)(seed + k * 7 + (k >> 3));
}

/* Moves len bytes both in the library and in the model; 0 when they agree. */
static int move_differs(unsigned to, unsigned from, unsigned len, int use_memcpy) {
    for (unsigned k = 0; k < len; ++k) saved[k] = model[from + k];
    for (unsigned k = 0; k < len; ++k) model[to + k] = saved[k];
    void *r = use_memcpy ? memcpy(area + to, area + from, len) : memmove(area + to, area + from, len);
    return r != area + to || !t_memeq(area, model, sizeof area);
}

static void block_moves_and_fills(void) {
    t_section("memmove and memcpy");
    int wrong = 0;
    for (unsigned len = 0; len < 70; ++len)
        for (unsigned from = 8; from < 16; ++from)
            for (unsigned to = 1; to < 24; ++to) {
                pattern(len + from);
                wrong += move_differs(to, from, len, 0);
                wrong += move_differs(100 + to, from, len, 1);
            }
    /* 4095, 4100 and 8200 put the blocks a few bytes apart within a page. */
    static const unsigned lengths[] = {100, 256, 700, 1023, 1500, 5000, 11000};
    static const unsigned gaps[] = {1, 3, 4, 33, 255, 1024, 1027, 4095, 4100, 6000, 8200};
    for (unsigned li = 0; li < 7; ++li)
        for (unsigned gi = 0; gi < 11; ++gi)
            for (unsigned at = 16; at < 20; ++at) {
                pattern(li * 31 + gi);
                wrong += move_differs(at + gaps[gi], at, lengths[li], 0);
                wrong += move_differs(at, at + gaps[gi], lengths[li], 0);
                if (gaps[gi] >= lengths[li]) wrong += move_differs(at + gaps[gi], at, lengths[li], 1);
            }
    CHECK_EQ(wrong, 0);

    t_section("memset");
    for (unsigned len = 0; len < 1200; len += 1 + len / 16)
        for (unsigned at = 1; at < 9; ++at) {
            pattern(len);
            t_memset(model + at, 0xA5, len);
            wrong += memset(area + at, 0x3A5, len) != area + at || !t_memeq(area, model, 1300);
        }
    CHECK_EQ(wrong, 0);
}

#endif
