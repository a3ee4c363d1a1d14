// The exit-handler list behind atexit.
#pragma once

#include "runtime/export.h"

using exit_handler = void (*)(void);

extern "C" {
extern ORV_EXPORT int __atexit_count;
extern ORV_EXPORT exit_handler *__atexit_table;
}
