// The static initialiser lists in section .CRT, and their walk.
#pragma once

#include "runtime/export.h"

namespace orv {

using init_entry = void (*)();

// Walks the early list, then the main list.
ORV_HIDDEN void walk_init_lists();

} // namespace orv
