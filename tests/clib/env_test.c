/* The environment cache, the shell, the command line a child sees, and the
   signal table. The program re-runs itself under /usr/bin/env to get the
   environments it needs. */
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "harness.h"
#include "platform/k32_faults.h"
#include "platform/kernel32.h"

static unsigned allocs(void) { return k32_call_count(K32_HeapAlloc); }

static int run(const char *line) {
    STARTUPINFOA si;
    PROCESS_INFORMATION pi;
    memset(&si, 0, sizeof si);
    si.cb = sizeof si;
    if (!CreateProcessA(NULL, (char *)line, NULL, NULL, 1, 0x20, NULL, NULL, &si, &pi)) return -1;
    DWORD code = 0;
    CHECK_EQ(WaitForSingleObject(pi.hProcess, INFINITE), WAIT_OBJECT_0);
    CHECK(GetExitCodeProcess(pi.hProcess, &code));
    CHECK(CloseHandle(pi.hThread));
    CHECK(CloseHandle(pi.hProcess));
    CHECK_EQ(WaitForSingleObject(pi.hProcess, INFINITE), WAIT_FAILED); /* closed */
    return (int)code;
}

/* The parts one after the other into out. */
static char *join(char *out, const char *a, const char *b, const char *c) {
    strcpy(out, a);
    strcat(out, b);
    return strcat(out, c);
}

static const char quoted_args[] = " args a\\\"b \"c d\" e\\\\\\\\\"f g\" h\\\\i \"j\"\"k\"";

/* The value buffer holds 256 bytes at first and is replaced by one of
   exactly the size the platform asks for. The heap calls tell: a fresh
   name costs its entry, and a new buffer before it when it did not fit. */
static void value_buffer(void) {
    t_section("value buffer");
    /* The last: found in the cache, with no heap call. */
    static const char *const names[] = {"ORV_255", "ORV_256", "ORV_256B", "ORV_257", "ORV_257"};
    static const unsigned lengths[] = {255, 256, 256, 257, 257}, grown[] = {1, 2, 1, 2, 0};
    char *v = NULL;
    for (unsigned i = 0; i < 5; ++i) {
        unsigned before = allocs();
        char *was = v;
        v = getenv(names[i]);
        CHECK(v && strlen(v) == lengths[i] && v[lengths[i] - 1] == 'y' && (grown[i] || v == was));
        CHECK_EQ(allocs() - before, grown[i]);
    }
}

/* Case variant i of ORV_CASEVAR: bit k of i lowers letter k. */
static void case_variant(char *out, unsigned i) {
    strcpy(out, "ORV_CASEVAR");
    for (unsigned k = 0, letter = 0; out[k]; ++k)
        if (out[k] != '_' && (i >> letter++ & 1)) out[k] = (char)(out[k] + 32);
}

static void cache(void) {
    t_section("first call without memory");
    k32_fail_call(K32_HeapAlloc, 1);
    CHECK(getenv("ORV_T") == NULL);
    k32_clear_faults();

    t_section("getenv");
    char *a = getenv("ORV_T"), *b = getenv("ORV_T"), *c = getenv("orv_t");
    CHECK(a && a == b && c && c != a);
    CHECK_STR(a, "value");
    CHECK_STR(c, "value");
    /* A prefix of a cached name, no name, an empty value. */
    CHECK(getenv("ORV_") == NULL && getenv("") == NULL && getenv("ORV_EMPTY") == NULL);
    value_buffer();
    char *longer = getenv("ORV_LONG"); /* 300 characters */
    CHECK(longer && strlen(longer) == 300 && longer[299] == 'y');
    k32_fail_call(K32_HeapAlloc, 1); /* no room for the entry: nothing kept */
    CHECK(getenv("ORV_F") == NULL);
    CHECK_STR(getenv("ORV_F"), "f");

    t_section("entry table grows by 256");
    /* Names that differ only in case are entries of their own; 300 more
       cross 256 entries once. */
    static char *seen[300];
    char name[16];
    unsigned grows = k32_call_count(K32_HeapReAlloc);
    for (unsigned i = 0; i < 300; ++i) {
        case_variant(name, i);
        seen[i] = getenv(name);
    }
    CHECK_EQ(k32_call_count(K32_HeapReAlloc) - grows, 1);
    int kept = 1;
    for (unsigned i = 0; i < 300; ++i) {
        case_variant(name, i);
        kept &= seen[i] != NULL && getenv(name) == seen[i] && strcmp(seen[i], "c") == 0;
    }
    CHECK(kept);
    CHECK(getenv("ORV_T") == a);

    t_section("GetEnvironmentVariableA");
    CHECK_EQ(GetEnvironmentVariableA("ORV_T", name, 5), 6);
    CHECK_EQ(GetEnvironmentVariableA("orv_t", name, 6), 5);
    CHECK_STR(name, "value");
    CHECK_EQ(GetEnvironmentVariableA("ORV_EMPTY", name, sizeof name), 0);
    CHECK_EQ(GetEnvironmentVariableA("ORV_EMPTY", NULL, 0) + GetEnvironmentVariableA("ORV_NOT_SET", name, 9), 0);
}

/* The child writes to the standard handles it inherited. */
static int echo(void *arg) {
    (void)arg;
    return system("echo inherited; exit 2");
}

static void shell(const char *self) {
    t_section("system");
    CHECK_EQ(system(NULL), 1);
    CHECK_EQ(system("exit 3"), 3);
    char line[512];
    CHECK_EQ(system("true; echo 'a b' >sys.txt"), 0);
    char got[64];
    CHECK_MEM(got, (unsigned)t_read_file("sys.txt", got, sizeof got), "a b\n", 4);
    t_child c;
    t_run_child(&c, echo, 0, "", 0);
    CHECK_EQ(c.status, 2);
    CHECK_MEM(c.out, c.out_len, "inherited\n", 10);
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
    CHECK(signal(0, handler) == SIG_ERR && signal(17, handler) == SIG_ERR);
    CHECK(signal(16, handler) == SIG_DFL && signal(16, SIG_IGN) == handler);
    CHECK(raise(16) == 0 && raise(0) == -1 && raise(17) == -1);
    signal(3, handler);
    CHECK_EQ(raise(3), 0);
    CHECK_EQ(hits, 3);
    CHECK(signal(3, SIG_DFL) == SIG_DFL); /* one-shot */
    t_child c;
    t_run_child(&c, second_raise, 0, "", 0);
    CHECK_EQ(c.status, 1);
    CHECK_MEM(c.err, c.err_len, "signal #2 -- terminating\r\n", 26);
}

/* The shells of the other modes are this program again, which checks the
   command line it was given: "-c" and the command as one argument behind
   the shell's path, or "/c" and the command unquoted behind cmd.exe. It
   answers the status that the command names. */
static int as_shell(int argc, char **argv) {
    if (strcmp(argv[1], "-c") == 0 && argc == 3 && strncmp(argv[2], "exit ", 5) == 0)
        return atoi(argv[2] + 5);
    if (strcmp(argv[1], "/c") == 0 && argc == 4 && strcmp(argv[0], "cmd.exe") == 0 &&
        strcmp(argv[2], "exit") == 0)
        return atoi(argv[3]);
    return 100 + argc;
}

static int other_shells(const char *mode) {
    if (strcmp(mode, "missing") == 0) {
        unsigned before = allocs();
        if (system(NULL) != 1 || allocs() != before) return 1; /* getenv untouched */
        return system("exit 5") == -1 ? 0 : 2;
    }
    return system("exit 5") == 5 ? 0 : 1;
}

static int outer(const char *self, const char *env, const char *mode) {
    static char line[1024];
    join(line, "env -i ", env, " \"");
    join(line + strlen(line), self, "\" ", mode);
    return run(line);
}

int main(int argc, char **argv) {
    if (argc > 1 && strcmp(argv[1], "args") == 0) return child_args(argc, argv);
    if (argc > 1 && (strcmp(argv[1], "-c") == 0 || strcmp(argv[1], "/c") == 0))
        return as_shell(argc, argv);
    if (argc > 1 && strcmp(argv[1], "inside") == 0) {
        cache();
        shell(argv[0]);
        signals();
        return t_finish();
    }
    if (argc > 1) return other_shells(argv[1]);
    static char env[2048], self[512], ys[301];
    memset(ys, 'y', 300);
    strcpy(env, "PATH=/usr/bin:/bin SHELL=/bin/sh ORV_T=value ORV_EMPTY= ORV_F=f ORV_CASEVAR=c");
    static const unsigned lengths[] = {255, 256, 256, 257, 300};
    static const char *const names[] = {" ORV_255=", " ORV_256=", " ORV_256B=", " ORV_257=", " ORV_LONG="};
    for (unsigned i = 0; i < 5; ++i) {
        strcat(env, names[i]);
        strcat(env, ys + 300 - lengths[i]);
    }
    t_section("environments");
    CHECK_EQ(outer(argv[0], env, "inside"), 0);
    join(self, "SHELL=", argv[0], " COMSPEC=/no/such/shell");
    CHECK_EQ(outer(argv[0], self, "shell"), 0); /* SHELL comes first */
    join(self, "COMSPEC=", argv[0], "");
    CHECK_EQ(outer(argv[0], self, "comspec"), 0);
    CHECK_EQ(outer(argv[0], "COMSPEC=/no/such/shell", "missing"), 0);
    /* Neither variable: the platform's interpreter, found on PATH. */
    join(self, "/bin/ln -sf \"", argv[0], "\" cmd.exe");
    CHECK_EQ(run(self), 0);
    CHECK_EQ(outer(argv[0], "PATH=.", "bare"), 0);
    return t_finish();
}
