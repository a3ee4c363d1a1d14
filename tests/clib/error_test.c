/* Error texts and their buffers, perror's forms, and the last-resort
   diagnostics, which end the process. */
#include <assert.h>
#include <errno.h>
#include <string.h>

#include "harness.h"

void perror(const char *prefix);
void __pure_error_(void);

static void texts(void) {
    t_section("strerror texts");
    static const char *const known[] = {
        "no error", "domain error", "range error", "bad file number",
        "i/o error", "invalid argument", "permission denied", "too many open files",
    };
    for (int e = 0; e < 8; ++e) CHECK_STR(strerror(e), known[e]);
    CHECK_STR(strerror(EDOM), "domain error");
    CHECK_STR(strerror(EMFILE), "too many open files");
    CHECK_STR(strerror(ENOENT), "error #0008");
    CHECK_STR(strerror(9999), "error #9999");
    CHECK_STR(strerror(10000), "error #0000");
    CHECK_STR(strerror(123456), "error #3456");
    CHECK_STR(strerror(2147483647), "error #3647");
    CHECK_STR(strerror(-1), "unknown error");
    CHECK_STR(strerror(-2147483647 - 1), "unknown error");

    t_section("strerror buffer");
    char *first = strerror(100);
    char *second = strerror(200);
    CHECK(first == second);
    CHECK_STR(first, "error #0200");
    CHECK(strerror(3) != first);   /* constant texts leave the buffer alone */
    CHECK_STR(first, "error #0200");

    t_section("__orv_strerror");
    char mine[12];
    t_memset(mine, '#', sizeof mine);
    CHECK(__orv_strerror(42, mine) == mine);
    CHECK_MEM(mine, 12, "error #0042", 12);
    t_memset(mine, '#', sizeof mine);
    CHECK_STR(__orv_strerror(5, mine), "invalid argument");
    CHECK_EQ(mine[0], '#');          /* untouched */
    CHECK_STR(__orv_strerror(-3, mine), "unknown error");
    CHECK_STR(first, "error #0200"); /* a caller's buffer is not strerror's */
    CHECK(__orv_strerror(77, 0) == first);
    CHECK_STR(first, "error #0077");
}

static int perror_prefix(void *arg) {
    errno = 3;
    perror((const char *)arg);
    return 0;
}

static int perror_numbered(void *arg) {
    (void)arg;
    char *before = strerror(1234);
    errno = 5678;
    perror("p");
    errno = -4;
    perror(0);
    /* perror has its own buffer. */
    return strcmp(before, "error #1234") == 0 ? 0 : 9;
}

static void perror_forms(void) {
    static t_child c;
    t_section("perror");
    t_run_child(&c, perror_prefix, "x", 0, 0);
    CHECK_EQ(c.status, 0);
    CHECK_MEM(c.err, c.err_len, "x: bad file number\r\n", 20);
    CHECK_EQ(c.out_len, 0);
    t_run_child(&c, perror_prefix, "", 0, 0);
    CHECK_MEM(c.err, c.err_len, "bad file number\r\n", 17);
    t_run_child(&c, perror_prefix, 0, 0, 0);
    CHECK_MEM(c.err, c.err_len, "bad file number\r\n", 17);
    t_run_child(&c, perror_numbered, 0, 0, 0);
    CHECK_EQ(c.status, 0);
    CHECK_MEM(c.err, c.err_len, "p: error #5678\r\nunknown error\r\n", 31);
}

static int gripe(void *arg) {
    (void)arg;
    _gripe_("a.c", 12, "p != 0");
    return 77;
}

static int failed_assert(void *arg) {
    int *p = arg;
    assert(p != 0);
    assert(*p == 2);
    return 78;
}

static int pure(void *arg) {
    (void)arg;
    __pure_error_();
    return 79;
}

static int starts_with(const char *text, unsigned len, const char *prefix) {
    unsigned n = t_strlen(prefix);
    return len >= n && t_memeq(text, prefix, n);
}

static void diagnostics(void) {
    static t_child c;
    t_section("_gripe_");
    t_run_child(&c, gripe, 0, 0, 0);
    CHECK(c.exited && c.status == 1);  /* stopped through abort, not returned */
    CHECK(starts_with(c.err, c.err_len, "***Assertion failed in file a.c line 12:\r\n\tp != 0\r\n"));

    t_section("assert");
    int one = 1;
    t_run_child(&c, failed_assert, &one, 0, 0);
    CHECK(c.exited && c.status == 1);
    CHECK(starts_with(c.err, c.err_len, "***Assertion failed in file "));
    c.err[c.err_len < sizeof c.err ? c.err_len : sizeof c.err - 1] = 0;
    CHECK(strstr(c.err, "error_test.c line ") != 0);
    CHECK(strstr(c.err, ":\r\n\t*p == 2\r\n") != 0);
    CHECK(strstr(c.err, "p != 0") == 0);   /* the first assertion held */

    t_section("__pure_error_");
    t_run_child(&c, pure, 0, 0, 0);
    CHECK(c.exited && c.status == 1);
    CHECK(starts_with(c.err, c.err_len, "****Pure virtual function called\r\n"));
}

int main(void) {
    CHECK_EQ(errno, 0);
    texts();
    perror_forms();
    diagnostics();
    return t_finish();
}
