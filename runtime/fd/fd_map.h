// The descriptor map: one list of nodes, sorted by descriptor number.
#pragma once

#include "include/fdmap.h"
#include "runtime/export.h"

#include <cstddef>

static_assert(sizeof(fd_map) == 16);
static_assert(offsetof(fd_map, next) == 0);
static_assert(offsetof(fd_map, handle) == 4);
static_assert(offsetof(fd_map, fd) == 8);
static_assert(offsetof(fd_map, flags) == 12);

extern "C" {
ORV_HIDDEN extern fd_map *__fd_map_head;
ORV_HIDDEN void __free_fd_map(fd_map *node);
}
