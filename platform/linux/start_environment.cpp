#include "start_environment.h"

#include "syscall.h"

namespace orv::k32 {

bool startup_variable(const char *name, char *out, unsigned capacity) {
    long fd = sys::call3(sys::nr_open, sys::arg("/proc/self/environ"),
                         sys::o_rdonly | sys::o_largefile, 0);
    if (sys::failed(fd)) return false;
    // Entries are NAME=value, each ended by a zero byte: match the name and
    // its "=" at the start of an entry, then copy up to the zero.
    unsigned matched = 0, n = 0;
    bool in_value = false, skipping = false, found = false;
    char buf[512];
    for (;;) {
        long got = sys::call3(sys::nr_read, fd, sys::arg(buf), sizeof buf);
        if (got <= 0) {
            found = in_value;
            break;
        }
        long i = 0;
        for (; i < got; ++i) {
            char c = buf[i];
            if (in_value) {
                if (c == 0) break;
                if (n + 1 < capacity) out[n++] = c;
            } else if (c == 0) {
                matched = 0, skipping = false;
            } else if (!skipping) {
                char want = name[matched] ? name[matched] : '=';
                if (c != want) {
                    skipping = true;
                } else if (name[matched++] == 0) {
                    in_value = true;
                }
            }
        }
        if (i < got) {
            found = true;
            break;
        }
    }
    sys::call1(sys::nr_close, fd);
    if (found && capacity) out[n] = 0;
    return found;
}

} // namespace orv::k32
