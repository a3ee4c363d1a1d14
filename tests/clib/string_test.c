/* The string functions: signed counts, padding and terminators, the two
   signs of comparison, searches that restart, and tokens. */
#include <stdlib.h>
#include <string.h>

#include "harness.h"
#include "lib_calls.h"

static char d[32];

static void reset(void) { t_memset(d, '#', sizeof d); }

static void copies(void) {
    t_section("strncpy");
    reset();
    CHECK(strncpy(d, "ab", 5) == d);
    CHECK_MEM(d, 6, "ab\0\0\0#", 6);
    reset();
    strncpy(d, "abc", 3);
    CHECK_MEM(d, 4, "abc#", 4);        /* no terminator */
    reset();
    strncpy(d, "abcdef", 3);
    CHECK_MEM(d, 4, "abc#", 4);
    reset();
    strncpy(d, "abc", 0x80000000u);    /* signed count: nothing written */
    CHECK_MEM(d, 2, "##", 2);
    strncpy(d, "abc", 0xFFFFFFFFu);
    CHECK_MEM(d, 2, "##", 2);

    t_section("strncat");
    strcpy(d, "xy");
    CHECK(strncat(d, "abc", 0) == d);
    CHECK_MEM(d, 3, "xy\0", 3);
    strncat(d, "abc", 2);
    CHECK_MEM(d, 5, "xyab\0", 5);      /* always a terminator */
    strncat(d, "c", 10);
    CHECK_STR(d, "xyabc");
    strncat(d, "zzz", 0x80000000u);
    CHECK_STR(d, "xyabc");

    t_section("strcpy strcat strdup");
    CHECK(strcpy(d, "") == d);
    CHECK_EQ(d[0], 0);
    CHECK(strcat(strcat(d, "one"), "two") == d);
    CHECK_STR(d, "onetwo");
    char *p = strdup("hello");
    CHECK(p != 0 && p != d);
    CHECK_STR(p, "hello");
    free(p);
    p = strdup("");
    CHECK(p != 0 && p[0] == 0);
    free(p);

    t_section("strxfrm");
    reset();
    CHECK_EQ(strxfrm(d, "abc", 2), 3);
    CHECK_MEM(d, 3, "ab#", 3);
    reset();
    CHECK_EQ(strxfrm(d, "abc", 0), 3);
    CHECK_EQ(d[0], '#');
    CHECK_EQ(strxfrm(d, "abc", 10), 3);
    CHECK_MEM(d, 5, "abc\0#", 5);      /* stops after the terminator */
    reset();
    CHECK_EQ(strxfrm(d, "abc", 0x90000000u), 3);
    CHECK_EQ(d[0], '#');
}

static void comparisons(void) {
    t_section("strcmp strncmp");
    CHECK_EQ(strcmp("\xFF", "\x01"), 254);
    CHECK_EQ(strcmp("abc", "abc"), 0);
    CHECK_EQ(strcmp("ab", "abc"), -'c');
    CHECK_EQ(strcmp("abc", "ab"), 'c');
    CHECK_EQ(strcmp("", ""), 0);
    /* Differences at every place of long strings, on every alignment pair. */
    char a[48], b[48];
    int wrong = 0;
    for (unsigned ia = 0; ia < 4; ++ia)
        for (unsigned ib = 0; ib < 4; ++ib)
            for (unsigned at = 0; at < 20; ++at) {
                for (unsigned k = 0; k < 24; ++k) a[ia + k] = b[ib + k] = (char)('a' + k);
                a[ia + 24] = b[ib + 24] = 0;
                b[ib + at] = (char)0xC1;
                if (strcmp(a + ia, b + ib) != 'a' + (int)at - 0xC1 ||
                    strcmp(b + ib, a + ia) != 0xC1 - 'a' - (int)at ||
                    strncmp(a + ia, b + ib, at) != 0) ++wrong;
                b[ib + at] = (char)('a' + at);
                if (strcmp(a + ia, b + ib) != 0) ++wrong;
                b[ib + at] = 0; /* one string ends early */
                if (strcmp(a + ia, b + ib) != 'a' + (int)at) ++wrong;
            }
    CHECK_EQ(wrong, 0);
    CHECK_EQ(strncmp("abc", "abd", 0), 0);
    CHECK_EQ(strncmp("abc", "abd", 2), 0);
    CHECK_EQ(strncmp("abc", "abd", 3), -1);
    CHECK_EQ(strncmp("ab", "ab\xF0", 5), -0xF0);

    t_section("strcoll");
    CHECK_EQ(strcoll("\xFF", "\x01"), -2);  /* signed bytes */
    CHECK(strcoll("\x80", "A") < 0);
    CHECK(strcmp("\x80", "A") > 0);
    CHECK_EQ(strcoll("abc", "abc"), 0);
    CHECK_EQ(strcoll("abd", "abc"), 1);

    t_section("strcasecmp");
    CHECK_EQ(strcasecmp("ABC", "abd"), -1);
    CHECK_EQ(strcasecmp("a", "B"), -1);
    CHECK_EQ(strcasecmp("Hello", "hELLO"), 0);
    CHECK_EQ(strcasecmp("[", "a"), '[' - 'A');  /* through toupper */
    CHECK_EQ(strcasecmp("ab", "AB\xE9"), -0xE9);
    CHECK_EQ(strncasecmp("ABC", "abd", 2), 0);
    CHECK_EQ(strncasecmp("ABC", "abd", 3), -1);
    CHECK_EQ(strncasecmp("x", "y", 0), 0);
    CHECK_EQ(strncasecmp("ab", "AB", 100), 0);
}

static void searches(void) {
    t_section("strchr strrchr");
    const char *s = "abcabc";
    CHECK(strchr(s, 'b') == s + 1);
    CHECK(strrchr(s, 'b') == s + 4);
    CHECK(strchr(s, 0) == s + 6);
    CHECK(strrchr(s, 0) == s + 6);
    CHECK(strchr(s, 'z') == 0);
    CHECK(strrchr(s, 'z') == 0);
    CHECK(strchr(s, 'c' + 256) == s + 2);  /* converted to char */
    CHECK(strrchr("a\xE9z\xE9", 0xE9) != 0);

    /* The character or the terminator at each place of a longer string,
       from each alignment; a byte differing only by 0x80 is no match. */
    char text[48];
    int wrong = 0;
    for (unsigned at = 0; at < 4; ++at)
        for (unsigned len = 0; len < 30; ++len) {
            for (unsigned k = 0; k < len; ++k) text[at + k] = (char)('a' + k % 7);
            text[at + len] = 0;
            if (strchr(text + at, 'z') != 0 || strchr(text + at, 0) != text + at + len) ++wrong;
            for (unsigned k = 0; k < len; ++k) {
                char keep = text[at + k];
                text[at + k] = 'z';
                if (strchr(text + at, 'z') != text + at + k) ++wrong;
                text[at + k] = (char)('z' | 0x80);
                if (strchr(text + at, 'z') != 0) ++wrong;
                text[at + k] = keep;
            }
        }
    CHECK_EQ(wrong, 0);

    t_section("spans");
    CHECK_EQ(strspn("aabbcx", "ab"), 4);
    CHECK_EQ(strspn("xab", "ab"), 0);
    CHECK_EQ(strspn("abc", ""), 0);
    CHECK_EQ(strcspn("abcx", "xy"), 3);
    CHECK_EQ(strcspn("abc", ""), 3);
    CHECK_EQ(strcspn("", "a"), 0);
    const char *t = "hello, world";
    CHECK(strpbrk(t, " ,") == t + 5);
    CHECK(strpbrk(t, "") == 0);
    CHECK(strpbrk(t, "XYZ") == 0);

    t_section("strstr");
    const char *aab = "aab";
    CHECK(strstr(aab, "ab") == aab + 1);
    const char *e = "";
    CHECK(strstr(e, "") == e);
    CHECK(strstr(e, "a") == 0);
    CHECK(strstr(aab, "") == aab);
    const char *h = "aaabaaabaaaab";
    CHECK(strstr(h, "aaaab") == h + 8);
    CHECK(strstr(h, "aab") == h + 1);
    CHECK(strstr(h, "b") == h + 3);
    CHECK(strstr(h, "aaaaa") == 0);
    CHECK(strstr("ab", "abc") == 0);
}

static void tokens(void) {
    t_section("strtok");
    char text[] = ",,a,,b";
    char *tok = strtok(text, ",");
    CHECK(tok == text + 2);
    CHECK_STR(tok, "a");
    tok = strtok(0, ",");
    CHECK(tok == text + 5);
    CHECK_STR(tok, "b");
    CHECK(strtok(0, ",") == 0);
    CHECK(strtok(0, ",") == 0);
    CHECK_MEM(text, 7, ",,a\0,b\0", 7);

    /* The delimiters may change between calls; a trailing delimiter is cut. */
    char line[] = "  key = value ;rest";
    CHECK_STR(strtok(line, " "), "key");
    CHECK_STR(strtok(0, " ="), "value");
    CHECK_STR(strtok(0, ";"), "rest");
    CHECK(strtok(0, ";") == 0);

    char only[] = ";;;";
    CHECK(strtok(only, ";") == 0);
    CHECK(strtok(0, ";") == 0);
    char empty[] = "";
    CHECK(strtok(empty, ",") == 0);
    char whole[] = "word";
    CHECK(strtok(whole, "") == whole);
    CHECK(strtok(0, "") == 0);
}

int main(void) {
    copies();
    comparisons();
    searches();
    tokens();
    return t_finish();
}
