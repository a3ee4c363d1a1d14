/* The environment cache, the shell, the command line a child sees, and the
   signal table. The program re-runs itself under /usr/bin/env to get the
   environments it needs. */
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "harness.h"
#include "platform/kernel32.h"

static int run(const char *line) {
    STARTUPINFOA si;
    PROCESS_INFORMATION pi;
    memset(&si, 0, sizeof si);
    si.cb = sizeof si;
    if (!CreateProcessA(NULL, (char *)line, NULL, NULL, 1, 0x20, NULL, NULL, &si, &pi)) return -1;
    DWORD code = 0;
    CHECK_EQ(WaitForSingleObject(pi.hProcess, INFINITE), WAIT_OBJECT_0);
    CHECK(GetExitCodeProcess(pi.hProcess, &code));
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return (int)code;
}

/* The parts one after the other into out. */
static char *join(char *out, const char *a, const char *b, const char *c) {
    strcpy(out, a);
    strcat(out, b);
    return strcat(out, c);
}

static const char quoted_args[] = " args a\\\"b \"c d\" e\\\\\\\\\"f g\" h\\\\i \"j\"\"k\"";

static void cache(void) {
    t_section("getenv");
    char *a = getenv("ORV_T"), *b = getenv("ORV_T"), *c = getenv("orv_t");
    CHECK(a && a == b && c && c != a);
    CHECK_STR(c, "value");
    CHECK(getenv("ORV_") == NULL);  /* a prefix of a cached name */
    CHECK(getenv("") == NULL);
    CHECK(getenv("ORV_EMPTY") == NULL);
    char *longer = getenv("ORV_LONG"); /* 300 characters: the buffer grows */
    CHECK(longer && strlen(longer) == 300 && longer[299] == 'y');
    char name[16] = "ORV_N";
    for (int i = 0; i < 260; ++i) { /* past the first 256 slots */
        name[5] = (char)('a' + i / 26), name[6] = (char)('a' + i % 26), name[7] = 0;
        getenv(name);
    }
    CHECK(getenv("ORV_T") == a);
    CHECK_EQ(GetEnvironmentVariableA("ORV_T", name, 5), 6);
    CHECK_EQ(GetEnvironmentVariableA("orv_t", name, 6), 5);
    CHECK_STR(name, "value");
}

static void shell(const char *self) {
    t_section("system");
    CHECK_EQ(system(NULL), 1);
    CHECK_EQ(system("exit 3"), 3);
    char line[512];
    CHECK_EQ(system("true; echo 'a b' >sys.txt"), 0);
    char got[64];
    int n = t_read_file("sys.txt", got, sizeof got);
    CHECK_MEM(got, (unsigned)(n < 0 ? 0 : n), "a b\n", 4);
    /* The command line a child gets, split by the platform's rules. */
    join(line, "\"", self, "\"");
    CHECK_EQ(run(strcat(line, quoted_args)), 0);
    CHECK_EQ(run("no-such-program-anywhere"), -1);
}

/* Child modes. */
static int child_args(int argc, char **argv) {
    static const char *const want[] = {"a\"b", "c d", "e\\\\f g", "h\\\\i", "j\"k"};
    if (argc != 7) return 10 + argc;
    for (int i = 0; i < 5; ++i)
        if (strcmp(argv[i + 2], want[i]) != 0) return 20 + i;
    return 0;
}

static int hits;
static void handler(int sig) { hits += sig; }

static int second_raise(void *arg) {
    (void)arg;
    signal(SIGINT, handler);
    raise(SIGINT);
    raise(SIGINT);
    return 99;
}

static void signals(void) {
    t_section("signals");
    CHECK(signal(0, handler) == SIG_ERR);
    CHECK(signal(17, handler) == SIG_ERR);
    CHECK(signal(16, handler) == SIG_DFL);
    CHECK(signal(16, SIG_IGN) == handler);
    CHECK_EQ(raise(16), 0);
    CHECK_EQ(raise(0), -1);
    CHECK_EQ(raise(17), -1);
    signal(3, handler);
    CHECK_EQ(raise(3), 0);
    CHECK_EQ(hits, 3);
    CHECK(signal(3, SIG_DFL) == SIG_DFL); /* one-shot */
    t_child c;
    t_run_child(&c, second_raise, 0, "", 0);
    CHECK_EQ(c.status, 1);
    CHECK_MEM(c.err, c.err_len, "signal #2 -- terminating\r\n", 26);
}

/* Without SHELL the shell is COMSPEC's; without either it is the
   platform's interpreter, which this machine does not have. */
static int other_shells(const char *mode) {
    if (strcmp(mode, "comspec") == 0) return system("exit 4") == 4 ? 0 : 1;
    return system("exit 4") == -1 ? 0 : 1;
}

static int outer(const char *self, const char *env, const char *mode) {
    static char line[1024];
    join(line, "env -i ", env, " \"");
    join(line + strlen(line), self, "\" ", mode);
    return run(line);
}

int main(int argc, char **argv) {
    if (argc > 1 && strcmp(argv[1], "args") == 0) return child_args(argc, argv);
    if (argc > 1 && strcmp(argv[1], "inside") == 0) {
        cache();
        shell(argv[0]);
        signals();
        return t_finish();
    }
    if (argc > 1) return other_shells(argv[1]);
    static char env[512], longer[301];
    memset(longer, 'y', 300);
    join(env, "PATH=/usr/bin:/bin SHELL=/bin/sh ORV_T=value ORV_EMPTY= ORV_LONG=", longer, "");
    CHECK_EQ(outer(argv[0], env, "inside"), 0);
    CHECK_EQ(outer(argv[0], "PATH=/usr/bin:/bin COMSPEC=/bin/sh", "comspec"), 0);
    CHECK_EQ(outer(argv[0], "PATH=/usr/bin:/bin", "bare"), 0);
    return t_finish();
}
