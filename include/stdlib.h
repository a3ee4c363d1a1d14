#ifndef _ORV_STDLIB_H
#define _ORV_STDLIB_H

#include "_orv_defs.h"

_ORV_BEGIN

void *malloc(size_t size);
void free(void *block);
void *calloc(size_t count, size_t size);
void *realloc(void *block, size_t size);

_ORV_END

#endif
