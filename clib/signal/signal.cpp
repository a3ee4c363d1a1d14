#include "include/signal.h"
#include "include/stdio.h"
#include "include/stdlib.h"
#include "runtime/export.h"

namespace {

constexpr int signal_count = 16;

// Slot 0 is signal 1. The values 0 and 1 are SIG_DFL and SIG_IGN.
__signal_handler_t table[signal_count];

bool in_range(int sig) { return sig >= 1 && sig <= signal_count; }

// "signal #N -- terminating", then the ordinary road out.
[[noreturn]] void default_action(int sig) {
    char digits[4];
    char *p = digits + sizeof digits;
    *--p = 0;
    do *--p = static_cast<char>('0' + sig % 10); while ((sig /= 10) != 0);
    fputs("signal #", stderr);
    fputs(p, stderr);
    fputs(" -- terminating\n", stderr);
    exit(1);
}

} // namespace

extern "C" ORV_EXPORT __signal_handler_t signal(int sig, __signal_handler_t handler) {
    if (!in_range(sig)) return SIG_ERR;
    __signal_handler_t old = table[sig - 1];
    table[sig - 1] = handler;
    return old;
}

// A handler is one-shot: its slot goes back to SIG_DFL before it runs.
extern "C" ORV_EXPORT int raise(int sig) {
    if (!in_range(sig)) return -1;
    __signal_handler_t handler = table[sig - 1];
    if (handler == SIG_DFL) default_action(sig);
    if (handler == SIG_IGN) return 0;
    table[sig - 1] = SIG_DFL;
    handler(sig);
    return 0;
}
