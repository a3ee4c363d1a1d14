#include "clib/random/c_generator.h"
#include "include/stdio.h"
#include "include/stdlib.h"
#include "runtime/export.h"

namespace {

constexpr unsigned minimum_bytes = orv::rnd::table_words * 4;

// "'initstate' must be called with value of at least 220\n" on stderr.
void complain() {
    static constexpr char text[] = "'initstate' must be called with value of at least ";
    char line[sizeof text + 13];
    unsigned n = 0;
    for (const char *p = text; *p; ++p) line[n++] = *p;
    char digits[10];
    unsigned d = 0;
    for (unsigned v = minimum_bytes; v; v /= 10) digits[d++] = static_cast<char>('0' + v % 10);
    while (d) line[n++] = digits[--d];
    line[n++] = '\n';
    line[n] = 0;
    fputs(line, stderr);
}

} // namespace

extern "C" ORV_EXPORT char *initstate(unsigned seed, char *state, unsigned size) {
    char *former = reinterpret_cast<char *>(orv::rnd::c_generator.table);
    if (size < minimum_bytes) {
        complain();
        return former;
    }
    orv::rnd::c_generator.table = reinterpret_cast<std::int32_t *>(state);
    srand(seed);
    return former;
}

// No check and no re-seed: the positions stay where the last table left
// them.
extern "C" ORV_EXPORT char *setstate(char *state) {
    char *former = reinterpret_cast<char *>(orv::rnd::c_generator.table);
    orv::rnd::c_generator.table = reinterpret_cast<std::int32_t *>(state);
    return former;
}
