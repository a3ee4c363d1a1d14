// The current time as seconds and the millisecond within them.
#pragma once

#include "include/time.h"

namespace orv::cal {

struct Stamp {
    time_t seconds;
    long millisecond;
};

Stamp current_stamp();

} // namespace orv::cal
