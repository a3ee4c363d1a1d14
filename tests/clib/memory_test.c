/* The block functions against a byte-by-byte model (block_model.h); signed
   counts; and blocks and strings that end at an unreadable page. */
#include <stdlib.h>
#include <string.h>

#include "block_model.h"
#include "harness.h"
#include "lib_calls.h"

static void searches(void) {
    t_section("memchr memcmp");
    const char *text = "abc\0abcX\xE9";
    CHECK(memchr(text, 0, 9) == text + 3);
    CHECK(memchr(text, 'X', 7) == 0);
    CHECK(memchr(text, 0x158, 9) == text + 7); /* compared as a byte */
    CHECK(memchr(text, -23, 9) == text + 8);
    CHECK(memchr(text, 'a', 0x80000000u) == 0); /* a signed count */
    CHECK(memchr(text, 'a', 0x7FFFFFFFu) == text);
    int missed = 0;
    for (unsigned at = 0; at < 8; ++at) /* every alignment, the match on every side of the end */
        for (unsigned len = 0; len < 20; ++len)
            for (unsigned hit = 0; hit < 24; ++hit) {
                t_memset(area, 'a', 64);
                area[at + hit] = '\n';
                void *want = hit < len ? area + at + hit : 0;
                missed += memchr(area + at, '\n', len) != want;
            }
    CHECK_EQ(missed, 0);
    CHECK_EQ(memcmp("\xFF", "\x01", 1), 254);
    CHECK_EQ(memcmp("a\0b", "a\0c", 3), -1);
    CHECK_EQ(memcmp("x", "y", 0), 0);
    int wrong = 0;
    for (unsigned at = 0; at < 24; ++at) { /* the first difference decides */
        for (unsigned k = 0; k < 40; ++k) area[40 + k] = area[k];
        area[40 + 3 + at] = (unsigned char)(area[3 + at] + 5);
        area[40 + 4 + at] = (unsigned char)(area[4 + at] - 9);
        wrong += memcmp(area + 3, area + 43, 30) != -5 || memcmp(area + 3, area + 43, at) != 0;
    }
    CHECK_EQ(wrong, 0);
}

/* A page whose successor cannot be read, by raw system calls. */
static unsigned char *guard_page(void) {
    struct { unsigned long addr, len, prot, flags, fd, off; } args = {0, 8192, 3, 0x22, ~0ul, 0};
    long p, r;
    __asm__ volatile("int $0x80" : "=a"(p) : "a"(90 /* old mmap */), "b"(&args) : "memory");
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(125 /* mprotect */), "b"(p + 4096), "c"(4096), "d"(0));
    return (unsigned long)p < 0xFFFFF000ul && r == 0 ? (unsigned char *)p : 0;
}

/* Strings and blocks that end at the page end: a read past it faults. */
static void page_ends(void) {
    t_section("page ends");
    unsigned char *end = guard_page();
    CHECK(end != 0);
    if (!end) return;
    end += 4096;
    int wrong = 0;
    for (unsigned len = 0; len < 12; ++len) {
        char *s = (char *)end - len - 1, copy[16];
        for (unsigned k = 0; k <= len; ++k) s[k] = copy[k] = k < len ? (char)('a' + k) : 0;
        char *dup = strdup(s);
        wrong += strlen(s) != len || strcmp(s, copy) || strcmp(copy, s) || strchr(s, 'z') ||
                 strchr(s, 0) != s + len || strrchr(s, 'z') || strspn(s, "abcdefghijkl") != len ||
                 memchr(s, 'z', len + 1) || memcmp(s, copy, len + 1) || strstr(s, "zz") ||
                 strcmp(dup, copy);
        free(dup);
        memmove(end - len, s, len);
        memset(end - len, 7, len);
        memcpy(copy, end - len, len);
    }
    CHECK_EQ(wrong, 0);
}

int main(void) {
    block_moves_and_fills();
    searches();
    page_ends();
    return t_finish();
}
