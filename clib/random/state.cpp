#include "clib/random/c_generator.h"
#include "include/stdio.h"
#include "include/stdlib.h"
#include "runtime/export.h"

namespace {

constexpr unsigned minimum_bytes = orv::rnd::table_words * 4;

void complain() { fprintf(stderr, "'initstate' must be called with value of at least %d\n", minimum_bytes); }

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
