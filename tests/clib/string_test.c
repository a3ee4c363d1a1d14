/* The string functions: signed counts, padding and terminators, the signs
   of comparison, word skipping at every alignment and across pages,
   restarts, tokens. */
#include <stdlib.h>
#include <string.h>

#include "harness.h"
#include "lib_calls.h"

static char d[32];
static char *reset(void) { t_memset(d, '#', sizeof d); return d; }

static void copies(void) {
    t_section("counted copies");
    CHECK(strncpy(reset(), "ab", 5) == d);
    CHECK_MEM(d, 6, "ab\0\0\0#", 6);
    strncpy(reset(), "abcdef", 3);
    CHECK_MEM(d, 4, "abc#", 4);                 /* no terminator */
    strncpy(reset(), "abc", 0x80000000u);       /* a signed count: nothing */
    CHECK_EQ(strxfrm(d, "abc", 0xFFFFFFFFu), 3);
    CHECK_EQ(strxfrm(d, "abc", 0), 3);
    CHECK_EQ(d[0], '#');
    CHECK_EQ(strxfrm(d, "abc", 2), 3);
    CHECK_MEM(d, 3, "ab#", 3);
    strxfrm(d, "abc", 10);
    CHECK_MEM(d, 5, "abc\0#", 5);
    strcat(strcpy(d, "x"), "y");
    CHECK(strncat(d, "abc", 0) == d);
    strncat(d, "zzz", 0x80000000u);
    strncat(strncat(d, "abc", 2), "c", 10);
    CHECK_STR(d, "xyabc");
    char *p = strdup(d);
    CHECK(p != 0 && p != d && strcmp(p, "xyabc") == 0);
    free(p);
}

static void comparisons(void) {
    t_section("comparisons");
    CHECK_EQ(strcmp("\xFF", "\x01"), 254);
    CHECK_EQ(strcoll("\xFF", "\x01"), -2);      /* signed bytes */
    CHECK(strcoll("\x80", "A") < 0 && strcmp("\x80", "A") > 0);
    CHECK_EQ(strcmp("ab", "abc"), -'c');
    CHECK_EQ(strncmp("abc", "abd", 2), 0);
    CHECK_EQ(strncmp("ab", "ab\xF0", 5), -0xF0);
    CHECK_EQ(strcasecmp("ABC", "abd"), -1);
    CHECK_EQ(strcasecmp("[", "a"), '[' - 'A');  /* through toupper */
    CHECK_EQ(strncasecmp("ABC", "abd", 2), 0);
    CHECK_EQ(strncasecmp("x", "y", 0), 0);
    /* A difference, or an early end, at each place, on each alignment pair;
       the text has bytes from 0x80 on, which look like terminators to a
       quick word test. */
    char a[64], b[64];
    int wrong = 0;
    for (unsigned ia = 0; ia < 8; ++ia)
        for (unsigned ib = 0; ib < 8; ++ib)
            for (unsigned at = 0; at < 40; ++at) {
                for (unsigned k = 0; k <= 44; ++k) a[ia + k] = b[ib + k] = k < 44 ? (char)(k % 3 ? 'a' + k : 0x7F + k) : 0;
                wrong += strcmp(a + ia, b + ib) != 0;
                int was = (unsigned char)b[ib + at];
                b[ib + at] = (char)0xC1;
                wrong += strcmp(a + ia, b + ib) != was - 0xC1 || strncmp(a + ia, b + ib, at);
                b[ib + at] = 0;
                wrong += strcmp(a + ia, b + ib) != was || strcmp(b + ib, a + ia) != -was;
            }
    CHECK_EQ(wrong, 0);
}

static void searches(void) {
    t_section("searches");
    const char *s = "abcabc", *h = "aaabaaabaaaab", *e = "";
    CHECK(strrchr(s, 'b') == s + 4);
    CHECK(strchr(s, 0) == s + 6 && strrchr(s, 0) == s + 6);
    CHECK(strchr(s, 'c' + 256) == s + 2);       /* converted to char */
    CHECK_EQ(strspn("aabbcx", "ab"), 4);
    CHECK_EQ(strcspn("abc", ""), 3);
    CHECK(strpbrk(s, "") == 0 && strpbrk(s, "xc") == s + 2);
    CHECK(strstr("aab", "ab") != 0 && *strstr("aab", "ab") == 'a');
    CHECK(strstr(h, "aaaab") == h + 8);         /* restarts one place on */
    CHECK(strstr(e, "") == e && strstr(e, "a") == 0 && strstr(s, "") == s);
    CHECK(strstr("ab", "abc") == 0);
    /* The character at each place from each alignment; 'z' | 0x80 is no match. */
    char text[64];
    int wrong = 0;
    for (unsigned at = 0; at < 8; ++at)
        for (unsigned len = 0; len < 40; ++len) {
            for (unsigned k = 0; k <= len; ++k) text[at + k] = k < len ? (char)(k % 5 ? 'a' + k % 7 : 0x81 + k) : 0;
            wrong += strchr(text + at, 'z') != 0 || strchr(text + at, 0) != text + at + len;
            wrong += strlen(text + at) != len;
            for (unsigned k = 0; k < len; ++k) {
                char keep = text[at + k];
                text[at + k] = 'z';
                wrong += strchr(text + at, 'z') != text + at + k;
                text[at + k] = (char)0xFA;
                wrong += strchr(text + at, 'z') != 0;
                text[at + k] = keep;
            }
        }
    CHECK_EQ(wrong, 0);
}

/* Strings that run over a page boundary, both pages readable: the word
   scans go byte by byte to the boundary and on in the next page. */
static void page_crossing(void) {
    t_section("across a page");
    static char area[3 * 4096];
    char *page = (char *)(((unsigned long)area + 4096) & ~4095ul), other[64];
    int wrong = 0;
    for (unsigned before = 1; before < 20; ++before)
        for (unsigned shift = 0; shift < 9; ++shift) {
            char *s = page - before, *t = page + 4096 - before - shift;
            for (unsigned k = 0; k <= 40; ++k) s[k] = other[k] = k < 40 ? (char)('A' + k) : 0;
            wrong += strlen(s) != 40 || strchr(s, 'A' + 30) != s + 30 || strchr(s, 'z') != 0;
            wrong += strcmp(s, other) != 0 || strcmp(other, s) != 0;
            for (unsigned k = 0; k <= 40; ++k) t[k] = other[k];
            t[35] = 'z';
            wrong += strcmp(s, t) != 'A' + 35 - 'z' || strcmp(t, s) != 'z' - 'A' - 35;
        }
    CHECK_EQ(wrong, 0);
}

static void tokens(void) {
    t_section("strtok");
    char text[] = ",,a,,b", line[] = " key = value;", only[] = ";;";
    CHECK(strtok(text, ",") == text + 2 && strtok(0, ",") == text + 5);
    CHECK(strtok(0, ",") == 0 && strtok(0, ",") == 0);
    CHECK_MEM(text, 7, ",,a\0,b\0", 7);
    CHECK_STR(strtok(line, " "), "key");
    CHECK_STR(strtok(0, " =;"), "value");       /* delimiters may change */
    CHECK(strtok(0, ";") == 0);
    CHECK(strtok(only, ";") == 0 && strtok(0, "") == 0);
}

int main(void) {
    copies();
    comparisons();
    searches();
    page_crossing();
    tokens();
    return t_finish();
}
