// The first entry of the main initialiser list: the library's own static
// objects of the C library side.
#include "clib/random/random_generator.h"

extern "C" ORV_EXPORT void __sinit_init_clib() {
    orv::rnd::shared_generator = __random_generator(orv::rnd::start_seed);
}
