/* The single locale and the byte-per-character conversions. */
#include <locale.h>
#include <stdlib.h>

#include "harness.h"

/* Fills a buffer of six wide or narrow characters with a mark. */
static void mark_w(wchar_t *w) { for (int i = 0; i < 6; ++i) w[i] = 0x7777; }
static void mark_n(char *n) { for (int i = 0; i < 6; ++i) n[i] = 7; }

int main(void) {
    t_section("setlocale");
    char *c = setlocale(LC_ALL, NULL);
    CHECK_STR(c, "C");
    CHECK(setlocale(0, "") == c && setlocale(99, "C") == c); /* one static name */
    CHECK(setlocale(0, "POSIX") == NULL && setlocale(0, "c") == NULL);
    CHECK(setlocale(0, "C.UTF-8") == NULL);
    c[0] = 'X'; /* every successful call writes the name again */
    CHECK_STR(setlocale(LC_TIME, NULL), "C");

    t_section("mblen, mbtowc, wctomb");
    CHECK_EQ(mblen("", 0), 0);
    CHECK_EQ(mblen("a", 0), -1);
    CHECK_EQ(mblen("a", 1), 1);
    CHECK_EQ(mblen("a", -5), 1);
    CHECK_EQ(mblen(NULL, 1), 0);
    CHECK_EQ(mblen("\xFF", 1), 1);
    wchar_t w = 0x5555;
    CHECK(mbtowc(&w, "a", 0) == -1 && w == 0x5555);
    CHECK(mbtowc(&w, "", 0) == 0 && w == 0);
    CHECK(mbtowc(&w, "\xE9", 1) == 1 && w == 0xFFE9);
    CHECK(mbtowc(&w, "\x7F", 1) == 1 && w == 0x7F);
    CHECK_EQ(mbtowc(NULL, "a", 1), 1);
    CHECK_EQ(mbtowc(&w, NULL, 1), 0);
    CHECK_EQ(sizeof(wchar_t), 2);
    char b[4] = {9, 9, 9, 9};
    CHECK(wctomb(b, 127) == 1 && b[0] == 0x7F);
    b[0] = 9;
    CHECK(wctomb(b, 128) == -1 && b[0] == 9);
    CHECK_EQ(wctomb(b, 0xFFE9), -1); /* mbtowc's widening does not come back */
    CHECK_EQ(wctomb(NULL, 128), 0);
    CHECK(wctomb(b, 0) == 1 && b[0] == 0);

    t_section("mbstowcs");
    wchar_t wd[6];
    mark_w(wd);
    CHECK_EQ(mbstowcs(wd, "ab", 5), 2);
    CHECK(wd[0] == 'a' && wd[1] == 'b' && wd[2] == 0 && wd[3] == 0x7777); /* nothing past the end */
    mark_w(wd);
    CHECK_EQ(mbstowcs(wd, "abc", 2), 2);
    CHECK(wd[1] == 'b' && wd[2] == 0x7777); /* no terminator */
    CHECK(mbstowcs(wd, "x\xE9", 6) == 2 && wd[1] == 0xFFE9);
    mark_w(wd);
    CHECK(mbstowcs(wd, "abc", 0) == 0 && wd[0] == 0x7777);
    CHECK(mbstowcs(wd, "abc", 0x80000000u) == 3 && wd[0] == 0x7777); /* negative count: no copy */

    t_section("wcstombs");
    static const wchar_t ab[] = {'a', 'b', 0}, wide[] = {0x0141, 0x0100, 0x0042, 0};
    char nb[6];
    mark_n(nb);
    CHECK_EQ(wcstombs(nb, ab, 5), 2);
    CHECK_MEM(nb, 4, "ab\0\7", 4);
    mark_n(nb);
    CHECK_EQ(wcstombs(nb, wide, 5), 1);
    CHECK_MEM(nb, 3, "\x41\0\7", 3);
    mark_n(nb);
    CHECK_EQ(wcstombs(nb, ab, 1), 1);
    CHECK_MEM(nb, 2, "a\7", 2);
    CHECK_EQ(wcstombs(nb, ab, 0), 0);
    return t_finish();
}
