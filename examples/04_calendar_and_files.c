/*
 * Calendar time and file status: today's date in several strftime forms,
 * a few fixed dates, the C generator's first values, and the size and
 * times of a few files.
 */
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <time.h>

static void show(const char *label, const char *format, const struct tm *tm) {
    char text[128];
    strftime(text, sizeof text, format, tm);
    printf("%-15s%s\n", label, text);
}

static void list(const char *name) {
    struct stat st;
    if (_stat(name, &st) != 0) {
        printf("%s: not found\n", name);
        return;
    }
    char when[64];
    strftime(when, sizeof when, "%Y-%m-%d %H:%M:%S", localtime(&st.st_mtime));
    printf("%s: %ld bytes, mode 0%06o, written %s\n", name, st.st_size, st.st_mode, when);
}

int main(int argc, char **argv) {
    time_t now = time(NULL);
    struct tm *local = localtime(&now);
    printf("%-15s%s", "ctime:", ctime(&now));
    show("ISO-like:", "%Y-%m-%d %H:%M:%S", local);
    show("long:", "%A, %d %B %Y", local);
    show("12-hour clock:", "%I:%M:%S %p", local);
    show("day and week:", "day %j, week %U (Sunday) / %W (Monday)", local);
    show("%x and %X:", "%x / %X", local);

    static const time_t fixed[] = {0, 951782400, 2147483647, -2147483647 - 1};
    for (unsigned i = 0; i < sizeof fixed / sizeof fixed[0]; ++i)
        printf("UTC of %ld: %s", fixed[i], asctime(gmtime(&fixed[i])));

    srand(42);
    printf("random:");
    for (int i = 0; i < 3; ++i) printf(" %d", rand());
    printf("\n");

    list(argc > 0 ? argv[0] : "04_calendar_and_files");
    list("01_foundation");
    list("no_such_file");
    return 0;
}
