#include "start_environment.h"

#include "environment.h"

namespace orv::k32 {

bool startup_variable(const char *name, char *out, unsigned capacity) {
    const char *value = environment_value(name);
    if (value == nullptr) return false;
    unsigned n = 0;
    for (; value[n] && n + 1 < capacity; ++n) out[n] = value[n];
    if (capacity) out[n] = 0;
    return true;
}

} // namespace orv::k32
