// Whether a path names anything, for the temporary-name functions.
#pragma once

#include "runtime/export.h"

extern "C" ORV_EXPORT int _orv_file_exists(const char *path);
