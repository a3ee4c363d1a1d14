/* Streams, exit handlers, the environment, a shell command and a signal. */
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
    fputs("position at end: ", stdout);
    long pos = ftell(f); /* file bytes: each LF stands as CR LF */
    char digits[12], *p = digits + sizeof digits;
    *--p = 0;
    do *--p = (char)('0' + pos % 10); while ((pos /= 10) != 0);
    puts(p);
    fclose(f);
    remove("demo_stream.txt");

    const char *home = getenv("HOME");
    fputs("HOME is ", stdout);
    puts(home ? home : "(not set)");
    if (getenv("SHELL")) system("echo a child through the shell");

    signal(SIGINT, on_signal);
    raise(SIGINT);
    return 0;
}
