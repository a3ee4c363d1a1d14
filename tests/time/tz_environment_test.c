/* The zone comes from the TZ variable of the environment the process
   started with: the test runs itself again under chosen environments. */
#include <time.h>

#include "harness.h"
#include "platform/kernel32.h"

static long raw_execve(const char *path, char *const *argv, char *const *envp) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(11), "b"(path), "c"(argv), "d"(envp) : "memory");
    return r;
}

static int run_with(void *env_entry) {
    static char self[] = "/proc/self/exe", child_flag[] = "--child";
    char *argv[] = {self, child_flag, 0};
    char *envp[] = {"A=1", (char *)env_entry, "B=2", 0};
    raw_execve(self, argv, envp);
    return 99;
}

/* In the re-run: print bias, daylight state and the local hour of time 0. */
static int report(void) {
    TIME_ZONE_INFORMATION info;
    DWORD state = GetTimeZoneInformation(&info);
    time_t t = 0;
    struct tm *r = localtime(&t);
    char line[] = "+000 0 00\n";
    long bias = info.Bias < 0 ? -info.Bias : info.Bias;
    line[0] = info.Bias < 0 ? '-' : '+';
    for (int i = 3; i >= 1; --i, bias /= 10) line[i] = (char)('0' + bias % 10);
    line[5] = (char)('0' + (int)state);
    line[7] = (char)('0' + r->tm_hour / 10), line[8] = (char)('0' + r->tm_hour % 10);
    DWORD done;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), line, sizeof line - 1, &done, 0);
    return 0;
}

static t_child child;

static void expect(const char *entry, const char *line, unsigned len) {
    t_run_child(&child, run_with, (void *)entry, "", 0);
    CHECK(child.exited && child.status == 0);
    CHECK_MEM(child.out, child.out_len, line, len);
}

int main(int argc, char **argv) {
    if (argc > 1 && argv[1][0] == '-') return report();
    t_section("TZ rules");
    expect("TZ=XST5XDT,J1/0,J365/25", "+300 2 20\n", 10);
    expect("TZ=EST5", "+300 0 19\n", 10);
    expect("TZ=<+0330>-3:30", "-210 0 03\n", 10);
    expect("TZ=nonsense", "+000 0 00\n", 10);
    /* Without TZ the machine's zone applies, whatever it is; variables that
       merely contain the name change nothing. */
    static char machine[64];
    t_run_child(&child, run_with, (void *)"C=3", "", 0);
    CHECK_EQ(child.out_len, 10);
    for (unsigned i = 0; i < 10; ++i) machine[i] = child.out[i];
    expect("TZX=EST5", machine, 10);
    expect("XTZ=EST5", machine, 10);
    if (t_exists("/usr/share/zoneinfo/Asia/Tokyo")) {
        t_section("TZ naming a zone file");
        expect("TZ=Asia/Tokyo", "-540 0 09\n", 10);
        expect("TZ=:Asia/Tokyo", "-540 0 09\n", 10);
    }
    return t_finish();
}
