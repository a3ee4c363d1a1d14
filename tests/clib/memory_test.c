/* The block functions: overlapping moves in both directions, every small
   alignment and length against a byte-by-byte model, signed counts, and
   blocks that end at an unreadable page. */
#include <stdlib.h>
#include <string.h>

#include "guard_page.h"
#include "harness.h"
#include "lib_calls.h"

#define AREA 160

static unsigned char area[AREA], model[AREA];

static void fill_pattern(unsigned char *p, unsigned n, unsigned seed) {
    for (unsigned k = 0; k < n; ++k) p[k] = (unsigned char)(seed + k * 7 + (k >> 3));
}

/* memmove and memcpy against a plain model, for every pair of offsets and
   every length that crosses the byte/word switch, guards around. */
static void moves(void) {
    t_section("memmove both directions");
    int wrong = 0;
    for (unsigned len = 0; len < 70 && !wrong; ++len)
        for (unsigned from = 8; from < 16 && !wrong; ++from)
            for (unsigned to = 1; to < 24 && !wrong; ++to) {
                fill_pattern(area, AREA, len + from);
                fill_pattern(model, AREA, len + from);
                unsigned char tmp[AREA];
                for (unsigned k = 0; k < len; ++k) tmp[k] = model[from + k];
                for (unsigned k = 0; k < len; ++k) model[to + k] = tmp[k];
                void *r = memmove(area + to, area + from, len);
                if (r != area + to || !t_memeq(area, model, AREA)) {
                    CHECK_EQ(len * 10000 + from * 100 + to, -1);
                    wrong = 1;
                }
            }
    CHECK_EQ(wrong, 0);

    /* One byte either way over 20 bytes. */
    unsigned char s[24] = "abcdefghijklmnopqrst";
    memmove(s + 1, s, 20);
    CHECK_MEM(s, 21, "aabcdefghijklmnopqrst", 21);
    memmove(s, s + 1, 20);
    CHECK_MEM(s, 21, "abcdefghijklmnopqrstt", 21);

    /* A long overlap, destination above: the words go from the end. */
    static unsigned char big[5000], want[5000];
    fill_pattern(big, 5000, 3);
    fill_pattern(want, 5000, 3);
    for (int k = 4000 - 1; k >= 0; --k) want[k + 999] = want[k];
    memmove(big + 999, big, 4000);
    CHECK(t_memeq(big, want, 5000));
    fill_pattern(big, 5000, 5);
    fill_pattern(want, 5000, 5);
    for (int k = 0; k < 4000; ++k) want[k + 1] = want[k + 998];
    memmove(big + 1, big + 998, 4000);
    CHECK(t_memeq(big, want, 5000));

    /* Long blocks at many distances, both ways: near blocks, far blocks,
       pieces that end partway, every alignment of the source. */
    static const unsigned lengths[] = {256, 300, 1023, 1024, 1500, 3001, 5000};
    static const unsigned gaps[] = {1, 2, 3, 4, 5, 255, 1024, 1027, 2000, 6000};
    static unsigned char wide[12000], wide_model[12000], saved[5000];
    wrong = 0;
    for (unsigned li = 0; li < sizeof lengths / sizeof lengths[0] && !wrong; ++li)
        for (unsigned gi = 0; gi < sizeof gaps / sizeof gaps[0] && !wrong; ++gi)
            for (unsigned at = 0; at < 4 && !wrong; ++at)
                for (int up = 0; up < 2 && !wrong; ++up) {
                    unsigned len = lengths[li], low = 16 + at, high = low + gaps[gi];
                    unsigned from = up ? low : high, to = up ? high : low;
                    fill_pattern(wide, sizeof wide, li * 31 + gi);
                    fill_pattern(wide_model, sizeof wide, li * 31 + gi);
                    for (unsigned k = 0; k < len; ++k) saved[k] = wide_model[from + k];
                    for (unsigned k = 0; k < len; ++k) wide_model[to + k] = saved[k];
                    memmove(wide + to, wide + from, len);
                    if (!t_memeq(wide, wide_model, sizeof wide)) {
                        CHECK_EQ(len * 100000 + gaps[gi] * 10 + at, up - 2);
                        wrong = 1;
                    }
                }
    CHECK_EQ(wrong, 0);

    t_section("memcpy");
    wrong = 0;
    for (unsigned len = 0; len < 70 && !wrong; ++len)
        for (unsigned from = 0; from < 8 && !wrong; ++from)
            for (unsigned to = 80; to < 88 && !wrong; ++to) {
                fill_pattern(area, AREA, len);
                fill_pattern(model, AREA, len);
                for (unsigned k = 0; k < len; ++k) model[to + k] = model[from + k];
                if (memcpy(area + to, area + from, len) != area + to || !t_memeq(area, model, AREA)) {
                    CHECK_EQ(len * 10000 + from * 100 + to, -1);
                    wrong = 1;
                }
            }
    CHECK_EQ(wrong, 0);
    CHECK(memcpy(area, area, 10) == area);
    CHECK(memcpy(area, 0, 0) == area);
}

static void fills(void) {
    t_section("memset");
    int wrong = 0;
    for (unsigned len = 0; len < 40 && !wrong; ++len)
        for (unsigned at = 1; at < 9 && !wrong; ++at) {
            t_memset(area, 0xEE, 64);
            t_memset(model, 0xEE, 64);
            t_memset(model + at, 0xA5, len);
            if (memset(area + at, 0x3A5, len) != area + at || !t_memeq(area, model, 64)) {
                CHECK_EQ(len * 100 + at, -1);
                wrong = 1;
            }
        }
    CHECK_EQ(wrong, 0);
    unsigned char ten[12];
    t_memset(ten, 0, 12);
    memset(ten, 0x141, 10);
    CHECK_MEM(ten, 12, "AAAAAAAAAA\0\0", 12);
}

static void searches(void) {
    t_section("memchr");
    const char *text = "abc\0abcX\xE9";
    CHECK(memchr(text, 'X', 9) == text + 7);
    CHECK(memchr(text, 0, 9) == text + 3);
    CHECK(memchr(text, 'X', 7) == 0);
    CHECK(memchr(text, 0x158, 9) == text + 7);  /* compared as a byte */
    CHECK(memchr(text, -23, 9) == text + 8);    /* 0xE9 */
    CHECK(memchr(text, 'a', 0) == 0);
    /* A count above 0x7FFFFFFF is negative: nothing is searched. */
    CHECK(memchr(text, 'a', 0x80000000u) == 0);
    CHECK(memchr(text, 'a', 0xFFFFFFFFu) == 0);
    CHECK(memchr(text, 'a', 0x7FFFFFFFu) == text);

    t_section("memcmp");
    CHECK_EQ(memcmp("\xFF", "\x01", 1), 254);
    CHECK_EQ(memcmp("\x01", "\xFF", 1), -254);
    CHECK_EQ(memcmp("abc", "abd", 0), 0);
    CHECK_EQ(memcmp("a\0b", "a\0c", 3), 'b' - 'c'); /* zeros do not stop it */
    /* A difference at each place of a longer block, unaligned on both sides. */
    unsigned char a[40], b[40];
    for (unsigned at = 0; at < 24; ++at) {
        fill_pattern(a, 40, 1);
        fill_pattern(b, 40, 1);
        b[3 + at] = (unsigned char)(a[3 + at] + 5);
        b[3 + at + 1] = (unsigned char)(a[3 + at + 1] - 9); /* later, opposite sign */
        int r = memcmp(a + 3, b + 3, 30);
        if (r != -5) { CHECK_EQ(r, -5); break; }
        if (memcmp(a + 3, b + 3, at) != 0) { CHECK_EQ(at, -1); break; }
    }
}

/* Blocks and strings that end exactly at a page whose successor faults:
   no function may read past the end. */
static void page_ends(void) {
    t_section("page ends");
    unsigned char *page = guard_page();
    CHECK(page != 0);
    if (!page) return;
    unsigned char *end = page + 4096;
    for (unsigned len = 0; len < 12; ++len) {
        char *s = (char *)end - len - 1;
        for (unsigned k = 0; k < len; ++k) s[k] = (char)('a' + k);
        s[len] = 0;
        char copy[16];
        for (unsigned k = 0; k <= len; ++k) copy[k] = s[k];
        CHECK_EQ(strlen(s), len);
        CHECK_EQ(strcmp(s, copy), 0);
        CHECK_EQ(strcmp(copy, s), 0);
        CHECK(strchr(s, 0) == s + len);
        CHECK(strchr(s, 'z') == 0);
        CHECK(strrchr(s, 'z') == 0);
        CHECK_EQ(strncmp(s, copy, 100), 0);
        CHECK_EQ(strspn(s, "abcdefghijkl"), len);
        CHECK(memchr(s, 'z', len + 1) == 0);
        CHECK_EQ(memcmp(s, copy, len + 1), 0);
        CHECK(strstr(s, "zz") == 0);
        char *dup = strdup(s);
        CHECK(dup != 0 && strcmp(dup, copy) == 0);
        free(dup);
        unsigned char *block = end - len;
        for (unsigned k = 0; k < len; ++k) block[k] = (unsigned char)k;
        unsigned char target[16];
        memcpy(target, block, len);
        memmove(block, block, len);
        CHECK(t_memeq(target, block, len));
        memset(block, 7, len);
        memmove(target, block, len);
        CHECK(len == 0 || target[len - 1] == 7);
    }
}

int main(void) {
    moves();
    fills();
    searches();
    page_ends();
    return t_finish();
}
