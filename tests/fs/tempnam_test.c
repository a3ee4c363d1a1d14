/* Temporary names: counters, prefixes, directories with and without a
   trailing backslash, names that already exist. */
#include <stdio.h>
#include <stdlib.h>

#include "clib/fs/temp_names.h"
#include "harness.h"
#include "platform/kernel32.h"

static void make_dir(const char *path) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(39), "b"(path), "c"(0755) : "memory");
}

static int starts_with(const char *s, const char *prefix) {
    while (*prefix)
        if (*s++ != *prefix++) return 0;
    return 1;
}

static long raw_execve(const char *path, char *const *argv, char *const *envp) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(11), "b"(path), "c"(argv), "d"(envp) : "memory");
    return r;
}

/* A TMP of 1023 characters: with the separator the directory no longer fits
   the first 1024 bytes, so the buffer grows and is asked again. */
static char long_tmp[4 + 1023 + 1] = "TMP=";

static int run_with_long_tmp(void *arg) {
    (void)arg;
    static char self[] = "/proc/self/exe", flag[] = "--long-tmp";
    char *argv[] = {self, flag, 0};
    char *envp[] = {long_tmp, 0};
    raw_execve(self, argv, envp);
    return 99;
}

static int report_long_tmp(void) {
    char *dir = _orv_get_tmpdir();
    if (dir == NULL || t_strlen(dir) != 1024 || dir[1023] != '\\') return 1;
    return t_memeq(dir, long_tmp + 4, 1023) && _orv_get_tmpdir() == dir ? 0 : 2;
}

int main(int argc, char **argv) {
    for (unsigned i = 4; i < 4 + 1023; ++i) long_tmp[i] = (char)('a' + i % 26);
    long_tmp[4] = '/';
    if (argc > 1 && argv[1][0] == '-') return report_long_tmp();

    t_section("tmpnam");
    t_remove("tnm00001");
    t_remove("tnm00002");
    CHECK_EQ(t_write_file("tnm00003", "", 0), 0);
    char *first = tmpnam(NULL);
    CHECK_STR(first, "tnm00001");
    char mine[9];
    CHECK(tmpnam(mine) == mine);
    CHECK_STR(mine, "tnm00002");
    CHECK(tmpnam(NULL) == first); /* one static buffer */
    CHECK_STR(first, "tnm00004"); /* tnm00003 exists */

    t_section("tempnam in a given directory");
    make_dir("C:");
    make_dir("C:/TMP");
    t_remove("C:/TMP/abcde00001");
    t_remove("C:/TMP/tpn00002");
    CHECK_EQ(t_write_file("C:/TMP/tpn00003", "", 0), 0);
    /* prefixes cut to five characters; the same counter goes on, past
       the name that exists */
    static const char *const given[][3] = {
        {"C:\\TMP", "abcdefgh", "C:\\TMP\\abcde00001"}, {"C:\\TMP\\", NULL, "C:\\TMP\\tpn00002"},
        {"C:\\TMP", NULL, "C:\\TMP\\tpn00004"}, {"C:\\TMP", "", "C:\\TMP\\00005"}};
    for (unsigned i = 0; i < 4; ++i) {
        char *p = tempnam(given[i][0], given[i][1]);
        CHECK_STR(p, given[i][2]);
        free(p);
    }

    t_section("the temporary directory");
    char *dir = _orv_get_tmpdir();
    CHECK(dir != NULL && _orv_get_tmpdir() == dir);
    unsigned len = t_strlen(dir);
    CHECK(len > 1 && (dir[len - 1] == '\\' || dir[len - 1] == '/'));
    char buf[1100];
    CHECK_EQ(GetTempPathA(0, NULL), len + 1);
    CHECK_EQ(GetTempPathA(len, buf), len + 1);
    CHECK_EQ(GetTempPathA(len + 1, buf), len);
    CHECK_STR(buf, dir);
    char *p = tempnam(NULL, "dflt");
    CHECK(starts_with(p, dir));
    CHECK_STR(p + len, "dflt00006");
    free(p);
    p = tempnam("", "e"); /* an empty directory counts as none */
    CHECK(starts_with(p, dir));
    CHECK_STR(p + len, "e00007");
    free(p);
    t_child child;
    t_run_child(&child, run_with_long_tmp, NULL, "", 0);
    CHECK(child.exited && child.status == 0);

    t_section("tmpfile leaves nothing behind");
    char path[1100];
    for (unsigned i = 0; i <= len + 8; ++i) path[i] = i < len ? dir[i] : "tfl00001"[i - len];
    path[len - 1] = '/';
    t_remove(path);
    FILE *f = tmpfile();
    CHECK(f != NULL && (f->_flag & _IOTMP) && (f->_flag & _IORW));
    CHECK(t_exists(path));
    CHECK_EQ(fputs("scratch", f), 0);
    CHECK_EQ(fclose(f), 0);
    CHECK(!t_exists(path));
    return t_finish();
}
