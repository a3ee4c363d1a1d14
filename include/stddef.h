#ifndef _ORV_STDDEF_H
#define _ORV_STDDEF_H

#include "_orv_defs.h"

typedef __PTRDIFF_TYPE__ ptrdiff_t;
#ifndef __cplusplus
#ifndef _ORV_WCHAR_T
#define _ORV_WCHAR_T
typedef __WCHAR_TYPE__ wchar_t; /* unsigned 16 bits */
#endif
#endif

#define offsetof(type, member) __builtin_offsetof(type, member)

#endif
