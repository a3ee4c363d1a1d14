/*
 * Calendar time and file status: today's date in several strftime forms,
 * a few fixed dates, and the size and times of the example programs.
 */
#include <io.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <time.h>

/* Until formatted output exists, text is put together by hand. */
static void say(const char *s) {
    unsigned n = 0;
    while (s[n]) ++n;
    _write(1, s, n);
}

static void say_num(long v) {
    char buf[16];
    int i = 16;
    unsigned long u = v < 0 ? 0UL - (unsigned long)v : (unsigned long)v;
    do buf[--i] = (char)('0' + u % 10); while (u /= 10);
    if (v < 0) buf[--i] = '-';
    _write(1, buf + i, (unsigned)(16 - i));
}

static void show(const char *label, const char *format, const struct tm *tm) {
    char text[128];
    strftime(text, sizeof text, format, tm);
    say(label);
    say(text);
    say("\n");
}

static void list(const char *name) {
    struct stat st;
    if (_stat(name, &st) != 0) {
        say(name);
        say(": not found\n");
        return;
    }
    char when[64];
    strftime(when, sizeof when, "%Y-%m-%d %H:%M:%S", localtime(&st.st_mtime));
    say(name);
    say(": ");
    say_num(st.st_size);
    say(" bytes, mode 0");
    char mode[7];
    for (int i = 0; i < 6; ++i) mode[i] = (char)('0' + ((st.st_mode >> (3 * (5 - i))) & 7));
    mode[6] = 0;
    say(mode);
    say(", written ");
    say(when);
    say("\n");
}

int main(int argc, char **argv) {
    time_t now = time(NULL);
    struct tm *local = localtime(&now);
    say("ctime:         ");
    say(ctime(&now));
    show("ISO-like:      ", "%Y-%m-%d %H:%M:%S", local);
    show("long:          ", "%A, %d %B %Y", local);
    show("12-hour clock: ", "%I:%M:%S %p", local);
    show("day and week:  ", "day %j, week %U (Sunday) / %W (Monday)", local);
    show("%x and %X:     ", "%x / %X", local);

    static const time_t fixed[] = {0, 951782400, 2147483647, -2147483647 - 1};
    for (unsigned i = 0; i < sizeof fixed / sizeof fixed[0]; ++i) {
        say("UTC of ");
        say_num(fixed[i]);
        say(": ");
        say(asctime(gmtime(&fixed[i])));
    }

    say("random: ");
    srand(42);
    for (int i = 0; i < 3; ++i) {
        say_num(rand());
        say(" ");
    }
    say("\n");

    list(argc > 0 ? argv[0] : "02_calendar_and_files");
    list("01_foundation");
    list("no_such_file");
    return 0;
}
