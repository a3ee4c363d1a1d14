/* Streams, formatted output, exit handlers, the environment, a shell command and a signal. */
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>

static void farewell(void) { puts("exit handler: runs before the streams are closed"); }

static void on_signal(int sig) {
    fputs(sig == SIGINT ? "handler for SIGINT ran once\n" : "other signal\n", stdout);
}

int main(void) {
    atexit(farewell);
    fputs("stdout is line buffered; ", stdout);
    puts("this line went out at its LF");

    FILE *f = fopen("demo_stream.txt", "w+");
    fputs("first line\nsecond line\n", f);
    rewind(f);
    char line[64];
    while (fgets(line, sizeof line, f)) fputs(line, stdout);
    printf("position at end: %ld (file bytes: each LF stands as CR LF)\n", ftell(f));
    fclose(f);
    remove("demo_stream.txt");

    const char *home = getenv("HOME");
    printf("HOME is %s\n", home ? home : "(not set)");
    printf("[%5d] [%-5d] [%05d] [%#x] [%p] [%lld] [%.3s]\n", 42, 42, -42, 255, (void *)0x1000,
           -9223372036854775807LL - 1, "abcdef");
    if (getenv("SHELL")) system("echo a child through the shell");

    signal(SIGINT, on_signal);
    raise(SIGINT);
    return 0;
}
