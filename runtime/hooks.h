// The host hook table __TVLKCFuncs.
#pragma once

#include "include/tvlkc.h"

#include <cstddef>

static_assert(sizeof(__tvlkc_funcs) == 16);
static_assert(offsetof(__tvlkc_funcs, hook_read) == 0);
static_assert(offsetof(__tvlkc_funcs, hook_write) == 4);
static_assert(offsetof(__tvlkc_funcs, hook_exit) == 8);
static_assert(offsetof(__tvlkc_funcs, hook_spare) == 12);
