/* Error texts and their shared buffers, perror's forms, and the
   last-resort diagnostics, which stop the process. */
#include <assert.h>
#include <errno.h>
#include <string.h>

#include "harness.h"

void perror(const char *prefix);
void __pure_error_(void);

static void texts(void) {
    t_section("strerror");
    static const struct { int e; const char *text; } table[] = {
        {0, "no error"}, {1, "domain error"}, {2, "range error"}, {3, "bad file number"},
        {4, "i/o error"}, {5, "invalid argument"}, {6, "permission denied"},
        {7, "too many open files"}, {8, "error #0008"}, {9999, "error #9999"},
        {10000, "error #0000"}, {123456, "error #3456"}, {-1, "unknown error"},
        {-2147483647 - 1, "unknown error"},
    };
    for (unsigned k = 0; k < sizeof table / sizeof table[0]; ++k) CHECK_STR(strerror(table[k].e), table[k].text);
    char *first = strerror(100);
    CHECK(strerror(200) == first);          /* one buffer, overwritten */
    CHECK(strerror(EBADF) != first);
    CHECK_STR(first, "error #0200");
    char mine[12] = "#";
    CHECK(__orv_strerror(EINVAL, mine)[0] == 'i' && mine[0] == '#'); /* buffer untouched */
    CHECK(__orv_strerror(42, mine) == mine && __orv_strerror(77, 0) == first);
    CHECK_MEM(mine, 12, "error #0042", 12);
}

static int perror_child(void *prefix) {
    char *earlier = strerror(1234);
    errno = EBADF;
    perror(prefix);
    errno = 5678;
    perror("p");
    return strcmp(earlier, "error #1234"); /* perror has its own buffer */
}

static int gripe_child(void *arg) { return _gripe_("a.c", 12, arg), 77; }
static int pure_child(void *arg) { return __pure_error_(), arg != 0; }

static int assert_child(void *arg) {
    int *p = arg;
    assert(p != 0);
    assert(*p == 2);
    return 78;
}

/* Runs fn in a child and checks its error output begins with `text` and
   that it stopped, with status 1, instead of returning; answers the
   child's record, its error output as a string. */
static t_child *stops_with(int (*fn)(void *), void *arg, const char *text) {
    static t_child c;
    t_run_child(&c, fn, arg, 0, 0);
    CHECK(c.exited && c.status == 1);
    unsigned n = t_strlen(text);
    CHECK_MEM(c.err, c.err_len < n ? c.err_len : n, text, n);
    c.err[c.err_len < sizeof c.err ? c.err_len : sizeof c.err - 1] = 0;
    return &c;
}

static void diagnostics(void) {
    static t_child c;
    t_section("perror");
    static const char *const prefixes[] = {"x", "", 0};
    for (int k = 0; k < 3; ++k) {
        t_run_child(&c, perror_child, (void *)prefixes[k], 0, 0);
        CHECK_EQ(c.status, 0);
        const char *out = "x: bad file number\r\np: error #5678\r\n" + (k ? 3 : 0);
        CHECK_MEM(c.err, c.err_len, out, t_strlen(out));
    }

    t_section("_gripe_, assert, __pure_error_");
    stops_with(gripe_child, "p != 0", "***Assertion failed in file a.c line 12:\r\n\tp != 0\r\n");
    int one = 1;
    const char *err = stops_with(assert_child, &one, "***Assertion failed in file ")->err;
    CHECK(strstr(err, "error_test.c line ") != 0 && strstr(err, ":\r\n\t*p == 2\r\n") != 0);
    stops_with(pure_child, 0, "****Pure virtual function called\r\n");
}

int main(void) {
    CHECK_EQ(errno, 0);
    texts();
    diagnostics();
    return t_finish();
}
