/*
 * Runs a benchmark built against liborv and the same source built against
 * the host's C library, alternately, several times, and prints for every
 * case the best time of each, their ratio, and each build's peak memory.
 *
 *   runner ROUNDS ORV_BINARY HOST_BINARY [ARGS...]
 *
 * A ratio below 1 means liborv was faster (or smaller).
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

enum { MAX_CASES = 64 };

struct side {
    char names[MAX_CASES][100];
    double best[MAX_CASES];
    int count;
    long peak_kb;
};

static int find(struct side *s, const char *name) {
    for (int i = 0; i < s->count; ++i)
        if (strcmp(s->names[i], name) == 0) return i;
    if (s->count == MAX_CASES) return -1;
    snprintf(s->names[s->count], sizeof s->names[0], "%s", name);
    s->best[s->count] = 1e30;
    return s->count++;
}

static int run(struct side *s, char **argv) {
    int fds[2];
    if (pipe(fds) != 0) return -1;
    pid_t pid = fork();
    if (pid == 0) {
        dup2(fds[1], 1);
        close(fds[0]);
        execv(argv[0], argv);
        _exit(127);
    }
    close(fds[1]);
    FILE *in = fdopen(fds[0], "r");
    char line[256], name[128];
    double secs;
    while (fgets(line, sizeof line, in))
        if (sscanf(line, "%127s %lf", name, &secs) == 2) {
            int i = find(s, name);
            if (i >= 0 && secs < s->best[i]) s->best[i] = secs;
        }
    fclose(in);
    int status;
    struct rusage ru;
    wait4(pid, &status, 0, &ru);
    if (ru.ru_maxrss > s->peak_kb) s->peak_kb = ru.ru_maxrss;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        fprintf(stderr, "%s failed (status %d)\n", argv[0], status);
        return -1;
    }
    return 0;
}

int main(int argc, char **argv) {
    if (argc < 4) {
        fprintf(stderr, "usage: runner ROUNDS ORV_BINARY HOST_BINARY [ARGS...]\n");
        return 2;
    }
    int rounds = atoi(argv[1]);
    static struct side orv, host;
    char *args[64];
    int nargs = argc - 4 < 60 ? argc - 4 : 60;
    for (int r = 0; r < rounds; ++r) {
        for (int which = 0; which < 2; ++which) {
            args[0] = argv[2 + which];
            for (int i = 0; i < nargs; ++i) args[1 + i] = argv[4 + i];
            args[1 + nargs] = NULL;
            if (run(which == 0 ? &orv : &host, args) != 0) return 1;
        }
    }
    const char *title = strrchr(argv[2], '/') ? strrchr(argv[2], '/') + 1 : argv[2];
    printf("%s (best of %d runs)\n", title, rounds);
    printf("  %-28s %12s %12s %8s\n", "case", "liborv s", "host s", "ratio");
    for (int i = 0; i < orv.count; ++i) {
        int j = find(&host, orv.names[i]);
        double h = j >= 0 ? host.best[j] : 0;
        printf("  %-28s %12.6f %12.6f %8.3f\n", orv.names[i], orv.best[i], h,
               h > 0 ? orv.best[i] / h : 0.0);
    }
    printf("  %-28s %12ld %12ld %8.3f\n", "peak memory (KiB)", orv.peak_kb, host.peak_kb,
           host.peak_kb ? (double)orv.peak_kb / host.peak_kb : 0.0);
    return 0;
}
