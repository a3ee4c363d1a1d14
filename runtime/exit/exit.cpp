#include "include/stdio.h"
#include "include/stdlib.h"
#include "include/tvlkc.h"
#include "platform/kernel32.h"
#include "runtime/exit/exit_list.h"

// Handlers last registered first, the count read afresh each time so a
// handler may register another or call exit itself; then every open
// stream is closed, in array order.
extern "C" ORV_EXPORT void exit(int status) {
    while (__atexit_count > 0) {
        --__atexit_count;
        __atexit_table[__atexit_count]();
    }
    for (FILE *s = _orviob; s < _orviob + FOPEN_MAX; ++s)
        if (s->_flag & (_IOREAD | _IOWRT | _IORW)) fclose(s);
    _exit(status);
}

// Ends the process without handlers and without touching streams.
extern "C" ORV_EXPORT void _exit(int status) {
    __TVLKCFuncs.hook_exit();
    ExitProcess(static_cast<UINT>(status));
}
