/* Streams, formatted output, exit handlers, the environment, a shell command and a signal. */
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>

static void farewell(void) { puts("exit handler: runs before exit closes the streams"); }

static void on_signal(int sig) {
    fputs(sig == SIGINT ? "handler for SIGINT ran once\n" : "other signal\n", stdout);
}

int main(void) {
    atexit(farewell);
    fputs("stdout is line buffered; ", stdout);
    puts("this line went out at its LF");

    /* Copy a text file, upper-casing it on the way. */
    FILE *f = fopen("demo_stream.txt", "w+");
    fputs("first line\nsecond line\n", f);
    rewind(f);
    FILE *copy = fopen("demo_copy.txt", "w");
    int c;
    while ((c = getc(f)) != EOF) putc(c >= 'a' && c <= 'z' ? c - 32 : c, copy);
    fclose(copy);
    copy = fopen("demo_copy.txt", "r");
    char line[64];
    while (fgets(line, sizeof line, copy)) fputs(line, stdout);
    fclose(copy);
    remove("demo_copy.txt");
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
    /* Fully buffered from here: this line is still in the buffer when main
       returns, and exit writes it out. */
    setvbuf(stdout, NULL, _IOFBF, 512);
    printf("pending at exit, written by exit\n");
    return 0;
}
