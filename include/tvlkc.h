/* The host hooks: a host environment that installs them takes over console
   input and output and hears of process end. */
#ifndef _ORV_TVLKC_H
#define _ORV_TVLKC_H

#include "_orv_defs.h"

_ORV_BEGIN

typedef int (*__hook_read_t)(void *buffer, unsigned count, int *state);
typedef int (*__hook_write_t)(const void *buffer, unsigned *count_pointer,
                              void *handle, int *state);
typedef int (*__hook_exit_t)(void);
typedef int (*__hook_spare_t)(void);

struct __tvlkc_funcs {
    __hook_read_t hook_read;
    __hook_write_t hook_write;
    __hook_exit_t hook_exit;
    __hook_spare_t hook_spare;
};

extern struct __tvlkc_funcs __TVLKCFuncs;

void tvlk_c_init(__hook_read_t read, __hook_write_t write, __hook_exit_t exit,
                 __hook_spare_t spare);

/* The library's entry point, as the loader calls it. */
int __attribute__((stdcall)) _start(void *module, unsigned long reason,
                                    void *reserved);

_ORV_END

#endif
